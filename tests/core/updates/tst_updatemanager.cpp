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
    return "<?xml version=\"1.0\"?><rss xmlns:sparkle=\"urn:x\"><channel><item>"
           "<enclosure url=\"http://127.0.0.1/v.tar\" sparkle:version=\"" +
           version + "\"/></item></channel></rss>\n";
}

class RecordingController final : public UpdaterController {
public:
    explicit RecordingController(QStringList &calls)
        : m_calls(calls) {}
    void startUpdater() override { m_calls.append(QStringLiteral("startUpdater")); }
    void checkForUpdates() override { m_calls.append(QStringLiteral("checkForUpdates")); }

private:
    QStringList &m_calls;
};

class RecordingPresenter final : public UpdatePresenter {
public:
    void presentUpdateAvailable(const QString &version, bool) override {
        shown << u"sheet " + version;
    }
    void presentNoUpdate() override { shown << QStringLiteral("up to date"); }
    QStringList shown;
};

// A manager over a loopback feed, a temporary store, a still clock (09:00 UTC) and fake timers.
// Its updater only records calls unless the program's own one is asked for.
class Rig {
public:
    explicit Rig(const QString &currentVersion = QStringLiteral("1.9.9"), bool ownUpdater = false,
                 QUrl feedUrl = {}) {
        UpdateManager::Options options;
        options.settings = &settings.store();
        options.clock = &clock;
        options.timers = &timers;
        options.appcastURL = feedUrl.isEmpty() ? QUrl(server.url()) : feedUrl;
        options.currentVersion = currentVersion;
        options.installPath = QStringLiteral("/usr/bin/vandorel");
        options.brewPrefixes = {prefixes.path() + u"/opt/homebrew",
                                prefixes.path() + u"/usr/local"};
        if (!ownUpdater)
            options.makeController = [this](UpdateManager &) {
                return std::make_unique<RecordingController>(calls);
            };
        manager = std::make_unique<UpdateManager>(options);
    }

    UpdateManager::Completion recorder(const QString &tag) {
        return [this, tag](bool available, const std::optional<QString> &version) {
            answers << tag + (available ? u" yes " : u" no ") + version.value_or(u"-"_qs);
        };
    }

    // Starts an automatic check and waits until the feed has been judged.
    void runAutomaticCheck() {
        const qsizetype before = console.lines().size();
        manager->checkAutomaticallyAndPresentIfAvailable();
        QTRY_VERIFY(console.lines().mid(before).join(u'\n').contains(u"✅"));
        QTest::qWait(20); // the queued answer and the updater's turn
    }

    double snoozeUntil() {
        return settings.store().doubleValue(UpdateManager::updateSnoozeUntilKey);
    }

    ConsoleCapture console;
    TempSettings settings;
    FakeClock clock{QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC)};
    FakeTimerFactory timers;
    FeedServer server;
    QTemporaryDir prefixes;
    QStringList calls;
    QStringList answers;
    std::unique_ptr<UpdateManager> manager;
};

double epochSeconds(const QDateTime &when) {
    return when.toMSecsSinceEpoch() / 1000.0;
}

} // namespace

class UpdateManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void judgesTheFeed_data();
    void judgesTheFeed();
    void transportFailureAndMissingData();
    void supersededRequestNeverAnswers();
    void detectsHomebrewInstall_data();
    void detectsHomebrewInstall();
    void homebrewInstallHasNoUpdaterAndNoAutomaticCheck();
    void updaterGuardHoldsForEightSeconds();
    void reminderSnoozeFollowsTheOfferedVersion();
    void busyUpdaterSetsNoSnooze();
    void snoozeNeedsBothKeysAndEndsOnReset();
    void ownUpdaterShowsWhatTheFeedSays();
};

void UpdateManagerTest::judgesTheFeed_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("lines");
    const QStringList versions{"📦 Current version: 1.9.9", "📦 Latest version: "};
    const QStringList unparsable{"❌ Failed to parse appcast"};
    QTest::newRow("2.0 over 1.9.9")
        << 200 << feed("2.0") << "check yes 2.0"
        << QStringList{versions[0], versions[1] + u"2.0", "✅ Update available!"};
    QTest::newRow("1.9.9.0 equal")
        << 200 << feed("1.9.9.0") << "check no -"
        << QStringList{versions[0], versions[1] + u"1.9.9.0", "✅ No update available"};
    QTest::newRow("404 html page")
        << 404 << QByteArray("<html><body><hr></body></html>") << "check no -" << unparsable;
    QTest::newRow("500 xml error")
        << 500 << QByteArray("<?xml version=\"1.0\"?><error/>") << "check no -"
        << versions + QStringList{"✅ No update available"};
    QTest::newRow("empty body") << 200 << QByteArray() << "check no -" << unparsable;
    QByteArray huge = feed("9.0");
    huge.insert(huge.indexOf("<channel>"), QByteArray(5 * 1024 * 1024, ' '));
    QTest::newRow("oversized feed") << 200 << huge << "check no -" << unparsable;
}

void UpdateManagerTest::judgesTheFeed() {
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(QString, answer);
    QFETCH(QStringList, lines);
    Rig rig;
    rig.server.serve(
        {.status = status, .reason = "Whatever", .contentType = "text/xml", .body = body});

    rig.manager->checkForUpdates(rig.recorder("check"));
    QVERIFY(rig.answers.isEmpty()); // never answers before returning
    QTRY_COMPARE(rig.answers, QStringList{answer});
    QCOMPARE(rig.server.requestLines, QList<QByteArray>{"GET /app/Vandorel/appcast.xml HTTP/1.1"});
    QCOMPARE(rig.console.lines(), lines);
}

void UpdateManagerTest::transportFailureAndMissingData() {
    quint16 closedPort = 0;
    {
        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        closedPort = probe.serverPort();
    }
    Rig rig(QStringLiteral("1.0"), false,
            QUrl(QStringLiteral("http://127.0.0.1:%1/a.xml").arg(closedPort)));
    rig.manager->checkForUpdates(rig.recorder("check"));
    QTRY_COMPARE(rig.answers, QStringList{"check no -"});
    QCOMPARE(rig.console.take(), QStringList{"❌ Update check failed: Connection refused"});

    UpdateManager::FetchResult cancelled;
    cancelled.cancelled = true;
    QVERIFY(!UpdateManager::answerFor(cancelled, "1.0"));
    QVERIFY(rig.console.lines().isEmpty());
    QVERIFY(!UpdateManager::answerFor({}, "1.0")->available);
    QCOMPARE(rig.console.take(), QStringList{"❌ No data received from appcast"});
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
    QCOMPARE(rig.answers, QStringList{"second yes 2.0"});
    QVERIFY(rig.console.startingWith("❌").isEmpty());
}

void UpdateManagerTest::detectsHomebrewInstall_data() {
    QTest::addColumn<QString>("installPath");
    QTest::addColumn<QStringList>(
        "present");                    // under the temporary root; ":link" makes a dangling link
    QTest::addColumn<QString>("line"); // %1 stands for the temporary root

    const QString none = QStringLiteral("📦 No Homebrew install detected");
    const QString viaDir = QStringLiteral("🍺 Homebrew install detected via Caskroom directory: %1");
    QTest::newRow("plain install")
        << "/usr/bin/vandorel" << QStringList{"/opt/homebrew/Caskroom/firefox"} << none;
    QTest::newRow("resolved path in a Caskroom")
        << "/opt/homebrew/Caskroom/vandorel/1.0/vandorel" << QStringList()
        << "🍺 Homebrew install detected via symlink resolution";
    QTest::newRow("first path wins")
        << "/usr/bin/vandorel"
        << QStringList{"/usr/local/Caskroom/vandorel", "/opt/homebrew/Caskroom/van-dorel"}
        << viaDir.arg("%1/opt/homebrew/Caskroom/van-dorel");
    QTest::newRow("fourth path alone")
        << "/usr/bin/vandorel" << QStringList{"/usr/local/Caskroom/van-dorel"}
        << viaDir.arg("%1/usr/local/Caskroom/van-dorel");
    QTest::newRow("dangling link")
        << "/usr/bin/vandorel" << QStringList{"/opt/homebrew/Caskroom/vandorel:link"} << none;
}

void UpdateManagerTest::detectsHomebrewInstall() {
    QFETCH(QString, installPath);
    QFETCH(QStringList, present);
    QFETCH(QString, line);
    QTemporaryDir root;
    for (const QString &entry : present) {
        const QString path = root.path() + entry.section(u':', 0, 0);
        QVERIFY(QDir().mkpath(entry.endsWith(u":link") ? QFileInfo(path).path() : path));
        if (entry.endsWith(u":link"))
            QVERIFY(QFile::link(root.path() + u"/gone", path));
    }

    ConsoleCapture console;
    const QStringList prefixes{root.path() + u"/opt/homebrew", root.path() + u"/usr/local"};
    QCOMPARE(UpdateManager::detectBrewInstall(installPath, prefixes), !line.startsWith(u"📦"));
    QCOMPARE(console.lines(), QStringList{line.contains(u"%1") ? line.arg(root.path()) : line});
}

void UpdateManagerTest::homebrewInstallHasNoUpdaterAndNoAutomaticCheck() {
    Rig rig;
    QVERIFY(QDir().mkpath(rig.prefixes.path() + u"/usr/local/Caskroom/vandorel"));
    rig.server.serve({.body = feed("9.0")});
    QVERIFY(rig.manager->isBrewInstall()); // detected once, at the first read
    QCOMPARE(rig.manager->sparkleUpdaterController(), nullptr);
    QCOMPARE(rig.console.take().size(), 1);

    QVERIFY(!rig.manager->checkForUpdatesWithSparkle());
    rig.manager->checkAutomaticallyAndPresentIfAvailable();
    QTest::qWait(200);
    QVERIFY(rig.server.requestLines.isEmpty());
    QVERIFY(rig.console.lines().isEmpty());
    QVERIFY(rig.calls.isEmpty());
}

void UpdateManagerTest::updaterGuardHoldsForEightSeconds() {
    Rig rig;
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QVERIFY(rig.calls.isEmpty()); // runs right after the current work
    QVERIFY(!rig.manager->checkForUpdatesWithSparkle());
    QCOMPARE(rig.console.lines().last(),
             u"ℹ️ Sparkle check skipped: session already in progress"_qs);
    QTRY_COMPARE(rig.calls, QStringList({"startUpdater", "checkForUpdates"}));

    QVERIFY(!rig.manager->checkForUpdatesWithSparkle());
    QCOMPARE(rig.timers.fire(8s), 1);
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    QTRY_COMPARE(rig.calls.size(), 4); // the updater is started before every check
    QCOMPARE(rig.timers.activeWithInterval(8s).size(), 1);

    // A manager gone before its queued task runs calls nothing.
    rig.timers.fire(8s);
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    rig.manager.reset();
    QTest::qWait(20);
    QCOMPARE(rig.calls.size(), 4);
}

void UpdateManagerTest::reminderSnoozeFollowsTheOfferedVersion() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    rig.runAutomaticCheck();
    QCOMPARE(rig.calls.size(), 2);
    QCOMPARE(rig.console.lines().last(),
             QStringLiteral("🔕 Auto update reminder snoozed for 4h (version 2.0)"));
    const QDateTime end = rig.clock.now().addSecs(4 * 3600);
    {
        SettingsStore fresh(rig.settings.path());
        QCOMPARE(fresh.doubleValue(UpdateManager::updateSnoozeUntilKey), epochSeconds(end));
        QCOMPARE(fresh.stringValue(UpdateManager::updateSnoozeVersionKey), u"2.0"_qs);
    }

    // Quiet about 2.0 until the end, telling the whole seconds left.
    rig.timers.fire(8s);
    rig.clock.set(end.addMSecs(-60'500));
    rig.runAutomaticCheck();
    QCOMPARE(rig.console.lines().last(),
             QStringLiteral("😴 Auto update reminder snoozed for version 2.0, remaining: 60s"));
    QCOMPARE(rig.calls.size(), 2);

    // A newer version shows at once and takes the snooze over.
    rig.server.serve({.body = feed("2.1")});
    rig.runAutomaticCheck();
    QCOMPARE(rig.calls.size(), 4);
    QCOMPARE(rig.snoozeUntil(), epochSeconds(rig.clock.now().addSecs(4 * 3600)));

    // Exactly at the stored end the snooze is over.
    rig.timers.fire(8s);
    rig.clock.set(QDateTime::fromMSecsSinceEpoch(qint64(rig.snoozeUntil() * 1000), Qt::UTC));
    rig.runAutomaticCheck();
    QCOMPARE(rig.calls.size(), 6);
}

void UpdateManagerTest::busyUpdaterSetsNoSnooze() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    QVERIFY(rig.manager->checkForUpdatesWithSparkle());
    rig.runAutomaticCheck();
    QVERIFY(rig.console.contains("ℹ️ Sparkle check skipped: session already in progress"));
    QVERIFY(!rig.settings.store().contains(UpdateManager::updateSnoozeUntilKey));
    QVERIFY(!rig.settings.store().contains(UpdateManager::updateSnoozeVersionKey));

    rig.timers.fire(8s); // the next firing tries again
    rig.runAutomaticCheck();
    QCOMPARE(rig.calls.size(), 4);
    QCOMPARE(rig.console.startingWith("🔕").size(), 1);
}

void UpdateManagerTest::snoozeNeedsBothKeysAndEndsOnReset() {
    Rig rig;
    rig.server.serve({.body = feed("2.0")});
    SettingsStore &store = rig.settings.store();
    store.setString(UpdateManager::updateSnoozeVersionKey, "2.0");
    rig.runAutomaticCheck(); // no end stored: not snoozed
    QCOMPARE(rig.calls.size(), 2);

    rig.timers.fire(8s);
    store.setDouble(UpdateManager::updateSnoozeUntilKey, epochSeconds(rig.clock.now()) + 90.75);
    rig.runAutomaticCheck();
    QCOMPARE(rig.console.lines().last(),
             QStringLiteral("😴 Auto update reminder snoozed for version 2.0, remaining: 90s"));

    rig.manager->resetAutoReminderSnooze();
    QCOMPARE(rig.console.lines().last(), QStringLiteral("🔄 Update reminder snooze reset"));
    QVERIFY(!store.contains(UpdateManager::updateSnoozeUntilKey) &&
            !store.contains(UpdateManager::updateSnoozeVersionKey));
    rig.runAutomaticCheck();
    QCOMPARE(rig.calls.size(), 4);
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
}

QTEST_GUILESS_MAIN(UpdateManagerTest)
#include "tst_updatemanager.moc"
