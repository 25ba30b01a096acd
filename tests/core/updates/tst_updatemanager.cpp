#include "core/updates/UpdateManager.h"
#include "core/updates/UpdatePresenter.h"
#include "core/updates/UpdaterController.h"

#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "FakeTimerFactory.h"
#include "FeedServer.h"
#include "TempSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;

namespace {

QByteArray feed(const QByteArray &version) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<rss version=\"2.0\" "
           "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
           "<channel><item><title>Vandorel</title>"
           "<enclosure url=\"http://127.0.0.1/v.tar\" sparkle:version=\"" +
           version +
           "\" length=\"1\" type=\"application/octet-stream\"/>"
           "</item></channel></rss>\n";
}

struct Calls {
    QStringList log;
};

class RecordingController final : public UpdaterController {
public:
    explicit RecordingController(Calls &calls)
        : m_calls(calls) {}
    void startUpdater() override { m_calls.log.append(QStringLiteral("startUpdater")); }
    void checkForUpdates() override { m_calls.log.append(QStringLiteral("checkForUpdates")); }

private:
    Calls &m_calls;
};

class RecordingPresenter final : public UpdatePresenter {
public:
    void presentUpdateAvailable(const QString &version, bool isBrewInstall) override {
        shown.append(u"sheet " + version + (isBrewInstall ? u" brew" : u""));
    }
    void presentNoUpdate() override { shown.append(QStringLiteral("up to date")); }
    QStringList shown;
};

struct Answer {
    QString tag;
    bool available;
    std::optional<QString> version;
};

// One manager over a loopback feed, a temporary store, a still clock and fake timers.
class Rig {
public:
    explicit Rig(const QString &currentVersion = QStringLiteral("1.9.9"),
                 bool ownController = false) {
        UpdateManager::Options options;
        options.settings = &settings.store();
        options.clock = &clock;
        options.timers = &timers;
        options.appcastURL = QUrl(server.url());
        options.currentVersion = currentVersion;
        options.installPath = QStringLiteral("/usr/bin/vandorel");
        options.brewPrefixes = {prefixes.path() + u"/opt/homebrew",
                                prefixes.path() + u"/usr/local"};
        if (!ownController)
            options.makeController = [this](UpdateManager &) {
                return std::make_unique<RecordingController>(calls);
            };
        manager = std::make_unique<UpdateManager>(options);
    }

    UpdateManager::Completion recorder(const QString &tag) {
        return [this, tag](bool available, const std::optional<QString> &version) {
            answers.append({tag, available, version});
        };
    }

    // Runs one automatic check to its end, including the queued updater call.
    void runAutomaticCheck() {
        const qsizetype before = server.requestLines.size();
        const qsizetype linesBefore = console.lines().size();
        manager->checkAutomaticallyAndPresentIfAvailable();
        QTRY_VERIFY(server.requestLines.size() > before);
        // The check ends with "✅ ..." and at most one line of the reminder after it.
        QTRY_VERIFY(console.lines().mid(linesBefore).join(u'\n').contains(u"✅"));
        QTest::qWait(20);
    }

    ConsoleCapture console;
    TempSettings settings;
    FakeClock clock{QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC)};
    FakeTimerFactory timers;
    FeedServer server;
    QTemporaryDir prefixes;
    Calls calls;
    QList<Answer> answers;
    std::unique_ptr<UpdateManager> manager;
};

double epochSeconds(const QDateTime &when) {
    return static_cast<double>(when.toMSecsSinceEpoch()) / 1000.0;
}

} // namespace

class UpdateManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void comparesTheFeedWithTheRunningVersion_data();
    void comparesTheFeedWithTheRunningVersion();
    void httpErrorPagesAreReadAsFeeds_data();
    void httpErrorPagesAreReadAsFeeds();
    void transportFailureIsReported();
    void oversizedFeedIsRefused();
    void judgesFetchResultsWithoutNetwork();
    void supersededRequestNeverAnswers();
    void detectsHomebrewInstall_data();
    void detectsHomebrewInstall();
    void homebrewInstallHasNoUpdaterAndNoAutomaticCheck();
    void updaterGuardHoldsForEightSeconds();
    void reminderSnoozeFollowsTheOfferedVersion();
    void busyUpdaterSetsNoSnooze();
    void snoozeNeedsBothKeys();
    void resetRemovesTheSnooze();
    void ownUpdaterShowsWhatTheFeedSays();
};

void UpdateManagerTest::comparesTheFeedWithTheRunningVersion_data() {
    QTest::addColumn<QByteArray>("latest");
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("available");
    QTest::newRow("2.0 over 1.9.9") << QByteArray("2.0") << "1.9.9" << true;
    QTest::newRow("1.10 over 1.9") << QByteArray("1.10") << "1.9" << true;
    QTest::newRow("same version") << QByteArray("1.2") << "1.2.0" << false;
    QTest::newRow("older feed") << QByteArray("1.0") << "1.9.9" << false;
}

void UpdateManagerTest::comparesTheFeedWithTheRunningVersion() {
    QFETCH(QByteArray, latest);
    QFETCH(QString, current);
    QFETCH(bool, available);
    Rig rig(current);
    rig.server.serve({.body = feed(latest)});

    rig.manager->checkForUpdates(rig.recorder("check"));
    QVERIFY(rig.answers.isEmpty()); // never answers before returning
    QTRY_COMPARE(rig.answers.size(), 1);

    QCOMPARE(rig.server.requestLines, QList<QByteArray>{"GET /app/Vandorel/appcast.xml HTTP/1.1"});
    QCOMPARE(rig.answers[0].available, available);
    QCOMPARE(rig.answers[0].version, available ? std::optional<QString>(latest) : std::nullopt);
    QCOMPARE(rig.console.lines(),
             QStringList({u"📦 Current version: " + current, u"📦 Latest version: " + latest,
                          available ? QStringLiteral("✅ Update available!")
                                    : QStringLiteral("✅ No update available")}));
}

void UpdateManagerTest::httpErrorPagesAreReadAsFeeds_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("404 html page")
        << 404 << QByteArray("<html><body><h1>Not Found</h1><hr></body></html>")
        << QStringList{"❌ Failed to parse appcast"};
    QTest::newRow("500 xml error")
        << 500 << QByteArray("<?xml version=\"1.0\"?><error><code>500</code></error>")
        << QStringList{"📦 Current version: 1.9.9", "📦 Latest version: ", "✅ No update available"};
    QTest::newRow("200 empty body")
        << 200 << QByteArray() << QStringList{"❌ Failed to parse appcast"};
}

void UpdateManagerTest::httpErrorPagesAreReadAsFeeds() {
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(QStringList, lines);
    Rig rig;
    rig.server.serve(
        {.status = status, .reason = "Whatever", .contentType = "text/html", .body = body});

    rig.manager->checkForUpdates(rig.recorder("check"));
    QTRY_COMPARE(rig.answers.size(), 1);
    QCOMPARE(rig.answers[0].available, false);
    QCOMPARE(rig.answers[0].version, std::nullopt);
    QCOMPARE(rig.console.lines(), lines);
}

void UpdateManagerTest::transportFailureIsReported() {
    Rig rig;
    quint16 closedPort = 0;
    {
        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        closedPort = probe.serverPort();
    }
    UpdateManager::Options options;
    options.settings = &rig.settings.store();
    options.clock = &rig.clock;
    options.timers = &rig.timers;
    options.appcastURL =
        QUrl(QStringLiteral("http://127.0.0.1:%1/app/Vandorel/appcast.xml").arg(closedPort));
    options.currentVersion = QStringLiteral("1.0");
    UpdateManager manager(options);

    manager.checkForUpdates(rig.recorder("check"));
    QTRY_COMPARE(rig.answers.size(), 1);
    QCOMPARE(rig.answers[0].available, false);
    QCOMPARE(rig.answers[0].version, std::nullopt);
    QCOMPARE(rig.console.lines().size(), 1);
    QVERIFY2(rig.console.lines()[0].startsWith(u"❌ Update check failed: Connection refused"),
             qPrintable(rig.console.lines()[0]));
}

void UpdateManagerTest::oversizedFeedIsRefused() {
    Rig rig;
    QByteArray body = feed("9.0");
    body.insert(body.indexOf("<channel>"), QByteArray(5 * 1024 * 1024, ' '));
    rig.server.serve({.body = body});

    rig.manager->checkForUpdates(rig.recorder("check"));
    QTRY_COMPARE(rig.answers.size(), 1);
    QCOMPARE(rig.answers[0].available, false);
    QCOMPARE(rig.console.lines(), QStringList{"❌ Failed to parse appcast"});
}

void UpdateManagerTest::judgesFetchResultsWithoutNetwork() {
    ConsoleCapture console;
    UpdateManager::FetchResult cancelled;
    cancelled.cancelled = true;
    QCOMPARE(UpdateManager::answerFor(cancelled, "1.0").has_value(), false);
    QVERIFY(console.lines().isEmpty());

    const std::optional<UpdateManager::Answer> noData = UpdateManager::answerFor({}, "1.0");
    QVERIFY(noData && !noData->available && !noData->version);
    QCOMPARE(console.take(), QStringList{"❌ No data received from appcast"});

    UpdateManager::FetchResult broken;
    broken.data = QByteArray("<rss><item></rss>");
    QVERIFY(!UpdateManager::answerFor(broken, "1.0")->available);
    QCOMPARE(console.take(), QStringList{"❌ Failed to parse appcast"});
}

void UpdateManagerTest::supersededRequestNeverAnswers() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    rig.server.hold();

    rig.manager->checkForUpdates(rig.recorder("first"));
    QTRY_COMPARE(rig.server.requestLines.size(), 1);
    rig.manager->checkForUpdates(rig.recorder("second"));
    QTRY_COMPARE(rig.server.requestLines.size(), 2);
    rig.server.release();

    QTRY_COMPARE(rig.answers.size(), 1);
    QTest::qWait(100);
    QCOMPARE(rig.answers.size(), 1);
    QCOMPARE(rig.answers[0].tag, QStringLiteral("second"));
    QCOMPARE(rig.answers[0].version, std::optional<QString>("2.0"));
    QCOMPARE(rig.console.count("✅ Update available!"), 1);
    QVERIFY(rig.console.startingWith("❌").isEmpty());
}

void UpdateManagerTest::detectsHomebrewInstall_data() {
    QTest::addColumn<QString>("installPath");
    QTest::addColumn<QStringList>("present"); // made under the temporary root
    QTest::addColumn<bool>("isBrew");
    QTest::addColumn<QString>("line"); // %1 stands for the temporary root

    const QString none = QStringLiteral("📦 No Homebrew install detected");
    const QString viaDir = QStringLiteral("🍺 Homebrew install detected via Caskroom directory: %1");
    QTest::newRow("plain install") << "/usr/bin/vandorel" << QStringList() << false << none;
    QTest::newRow("resolved path in a Caskroom")
        << "/opt/homebrew/Caskroom/vandorel/1.0/Vandorel" << QStringList() << true
        << "🍺 Homebrew install detected via symlink resolution";
    QTest::newRow("caskroom is case-sensitive")
        << "/opt/homebrew/caskroom/vandorel/bin/vandorel" << QStringList() << false << none;
    QTest::newRow("first path wins")
        << "/usr/bin/vandorel"
        << QStringList{"/usr/local/Caskroom/vandorel", "/opt/homebrew/Caskroom/van-dorel"} << true
        << viaDir.arg("%1/opt/homebrew/Caskroom/van-dorel");
    QTest::newRow("fourth path alone")
        << "/usr/bin/vandorel" << QStringList{"/usr/local/Caskroom/van-dorel"} << true
        << viaDir.arg("%1/usr/local/Caskroom/van-dorel");
    QTest::newRow("a file counts too")
        << "/usr/bin/vandorel" << QStringList{"/usr/local/Caskroom/vandorel:file"} << true
        << viaDir.arg("%1/usr/local/Caskroom/vandorel");
    QTest::newRow("other casks do not")
        << "/usr/bin/vandorel" << QStringList{"/opt/homebrew/Caskroom/firefox"} << false << none;
    QTest::newRow("dangling link does not")
        << "/usr/bin/vandorel" << QStringList{"/opt/homebrew/Caskroom/vandorel:dangling"} << false
        << none;
}

void UpdateManagerTest::detectsHomebrewInstall() {
    QFETCH(QString, installPath);
    QFETCH(QStringList, present);
    QFETCH(bool, isBrew);
    QFETCH(QString, line);

    QTemporaryDir root;
    for (const QString &entry : present) {
        const QStringList parts = entry.split(u':');
        const QString path = root.path() + parts[0];
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        const QString kind = parts.value(1);
        if (kind == u"file") {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
        } else if (kind == u"dangling") {
            QVERIFY(QFile::link(root.path() + u"/gone", path));
        } else {
            QVERIFY(QDir().mkpath(path));
        }
    }

    Rig rig;
    UpdateManager::Options options;
    options.settings = &rig.settings.store();
    options.clock = &rig.clock;
    options.timers = &rig.timers;
    options.installPath = installPath;
    options.brewPrefixes = {root.path() + u"/opt/homebrew", root.path() + u"/usr/local"};
    UpdateManager manager(options);

    QCOMPARE(manager.isBrewInstall(), isBrew);
    QCOMPARE(manager.isBrewInstall(), isBrew);
    QCOMPARE(rig.console.lines(), QStringList{line.contains(u"%1") ? line.arg(root.path()) : line});
}

void UpdateManagerTest::homebrewInstallHasNoUpdaterAndNoAutomaticCheck() {
    Rig rig;
    QVERIFY(QDir().mkpath(rig.prefixes.path() + u"/usr/local/Caskroom/vandorel"));
    rig.server.serve({.body = feed("9.0")});

    QCOMPARE(rig.manager->sparkleUpdaterController(), nullptr);
    rig.console.take();
    QCOMPARE(rig.manager->checkForUpdatesWithSparkle(), false);
    rig.manager->checkAutomaticallyAndPresentIfAvailable();
    QTest::qWait(200);
    QVERIFY(rig.server.requestLines.isEmpty());
    QVERIFY(rig.console.lines().isEmpty());
    QVERIFY(rig.calls.log.isEmpty());

    // The manual check still reads the feed.
    rig.manager->checkForUpdates(rig.recorder("manual"));
    QTRY_COMPARE(rig.answers.size(), 1);
    QCOMPARE(rig.answers[0].version, std::optional<QString>("9.0"));
}

void UpdateManagerTest::updaterGuardHoldsForEightSeconds() {
    Rig rig;
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QVERIFY(rig.calls.log.isEmpty()); // runs right after the current work
    QVERIFY(!rig.manager->checkForUpdatesWithSparkle());
    QCOMPARE(rig.console.count("ℹ️ Sparkle check skipped: session already in progress"), 1);
    QTRY_COMPARE(rig.calls.log, QStringList({"startUpdater", "checkForUpdates"}));
    QCOMPARE(rig.timers.activeWithInterval(8s).size(), 1);

    QVERIFY(!rig.manager->checkForUpdatesWithSparkle());
    QCOMPARE(rig.timers.fire(8s), 1);
    QVERIFY(!rig.manager->isSparkleCheckInProgress());
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QTRY_COMPARE(rig.calls.log.size(), 4);
    QCOMPARE(rig.calls.log,
             QStringList({"startUpdater", "checkForUpdates", "startUpdater", "checkForUpdates"}));
    QCOMPARE(rig.timers.activeWithInterval(8s).size(), 1);

    // A manager gone before its queued task runs calls nothing.
    rig.timers.fire(8s);
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    rig.manager.reset();
    QTest::qWait(20);
    QCOMPARE(rig.calls.log.size(), 4);
}

void UpdateManagerTest::reminderSnoozeFollowsTheOfferedVersion() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    const QString until = QString::fromLatin1(UpdateManager::updateSnoozeUntilKey);
    const QString version = QString::fromLatin1(UpdateManager::updateSnoozeVersionKey);

    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.calls.log.size(), 2);
    QCOMPARE(rig.console.lines().last(),
             QStringLiteral("🔕 Auto update reminder snoozed for 4h (version 2.0)"));
    const QDateTime end = rig.clock.now().addSecs(4 * 3600);
    {
        SettingsStore fresh(rig.settings.path());
        QCOMPARE(fresh.doubleValue(until), epochSeconds(end));
        QCOMPARE(fresh.stringValue(version), std::optional<QString>("2.0"));
    }

    // Quiet about 2.0 until the end, telling the whole seconds left.
    rig.timers.fire(8s);
    rig.clock.set(end.addMSecs(-60'500));
    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.console.lines().last(),
                 QStringLiteral("😴 Auto update reminder snoozed for version 2.0, remaining: 60s"));
    QTest::qWait(20);
    QCOMPARE(rig.calls.log.size(), 2);

    // A newer version is shown at once and takes the snooze over.
    rig.server.serve({.body = feed("2.1")});
    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.calls.log.size(), 4);
    QCOMPARE(rig.console.lines().last(),
             QStringLiteral("🔕 Auto update reminder snoozed for 4h (version 2.1)"));
    const QDateTime secondEnd = rig.clock.now().addSecs(4 * 3600);
    QCOMPARE(rig.settings.store().doubleValue(until), epochSeconds(secondEnd));
    QCOMPARE(rig.settings.store().stringValue(version), std::optional<QString>("2.1"));

    // Exactly at the stored end the snooze is over.
    rig.timers.fire(8s);
    rig.clock.set(secondEnd);
    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.calls.log.size(), 6);
}

void UpdateManagerTest::busyUpdaterSetsNoSnooze() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QTRY_COMPARE(rig.calls.log.size(), 2);

    rig.runAutomaticCheck();
    QTRY_VERIFY(rig.console.contains("ℹ️ Sparkle check skipped: session already in progress"));
    QVERIFY(!rig.settings.store().contains(UpdateManager::updateSnoozeUntilKey));
    QVERIFY(!rig.settings.store().contains(UpdateManager::updateSnoozeVersionKey));
    QVERIFY(rig.console.startingWith("🔕").isEmpty());

    // The next firing tries again.
    rig.timers.fire(8s);
    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.calls.log.size(), 4);
    QCOMPARE(rig.console.startingWith("🔕").size(), 1);
}

void UpdateManagerTest::snoozeNeedsBothKeys() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    rig.settings.store().setString(UpdateManager::updateSnoozeVersionKey, "2.0");
    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.calls.log.size(), 2);
    QVERIFY(rig.console.startingWith("😴").isEmpty());
}

void UpdateManagerTest::resetRemovesTheSnooze() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    rig.settings.store().setDouble(UpdateManager::updateSnoozeUntilKey,
                                   epochSeconds(rig.clock.now()) + 90.75);
    rig.settings.store().setString(UpdateManager::updateSnoozeVersionKey, "2.0");
    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.console.lines().last(),
                 QStringLiteral("😴 Auto update reminder snoozed for version 2.0, remaining: 90s"));

    rig.manager->resetAutoReminderSnooze();
    QCOMPARE(rig.console.lines().last(), QStringLiteral("🔄 Update reminder snooze reset"));
    SettingsStore fresh(rig.settings.path());
    QVERIFY(!fresh.contains(UpdateManager::updateSnoozeUntilKey));
    QVERIFY(!fresh.contains(UpdateManager::updateSnoozeVersionKey));

    rig.runAutomaticCheck();
    QTRY_COMPARE(rig.calls.log.size(), 2);
}

void UpdateManagerTest::ownUpdaterShowsWhatTheFeedSays() {
    Rig rig(QStringLiteral("1.9.9"), true);
    auto presenter = std::make_shared<RecordingPresenter>();
    rig.manager->setPresenter(presenter);

    rig.server.serve({.body = feed("2.0")});
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QTRY_COMPARE(presenter->shown, QStringList{"sheet 2.0"});

    rig.timers.fire(8s);
    rig.server.serve({.body = feed("1.0")});
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QTRY_COMPARE(presenter->shown, QStringList({"sheet 2.0", "up to date"}));

    // The automatic path reads the feed, then the updater reads it again and shows the sheet.
    rig.timers.fire(8s);
    rig.server.serve({.body = feed("3.0")});
    rig.server.requestLines.clear();
    rig.manager->checkAutomaticallyAndPresentIfAvailable();
    QTRY_COMPARE(presenter->shown.size(), 3);
    QCOMPARE(presenter->shown.last(), QStringLiteral("sheet 3.0"));
    QCOMPARE(rig.server.requestLines.size(), 2);
}

QTEST_GUILESS_MAIN(UpdateManagerTest)
#include "tst_updatemanager.moc"
