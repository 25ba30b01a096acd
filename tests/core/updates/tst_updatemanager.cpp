#include "core/i18n/LanguageManager.h"
#include "core/settings/SettingsTable.h"
#include "core/updates/UpdateManager.h"
#include "platform/freedesktop/FreedesktopInstallLayout.h"

#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "FakeTimerFactory.h"
#include "LoopbackHttp.h"
#include "ScriptedPrompter.h"
#include "Settle.h"
#include "TempSettings.h"
#include "UpdateFakes.h"

#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;

namespace {

// A manager over a loopback feed, a temporary store, a still clock (09:00 UTC) and fake timers.
// Its updater only records calls unless the program's own one is asked for.
class Rig {
public:
    explicit Rig(bool ownUpdater = false, const QUrl &feedUrl = {})
    {
        UpdateManager::Options options;
        options.settings = &settings.store();
        options.clock = &clock;
        options.timers = &timers;
        options.appcastURL = feedUrl.isEmpty() ? QUrl(appcast()) : feedUrl;
        options.currentVersion = QStringLiteral("1.9.9");
        options.install = &install;
        options.sheet = &sheet;
        options.prompter = &prompter;
        options.language = &language;
        if (!ownUpdater)
            options.makeController = [this] {
                return std::make_unique<RecordingController>(calls);
            };
        manager = std::make_unique<UpdateManager>(options);
    }

    UpdateManager::Completion recorder(const QString &tag)
    {
        return [this, tag](bool available, const std::optional<QString> &version) {
            answers << tag + (available ? u" yes " : u" no ") + version.value_or(u"-"_qs);
        };
    }

    // Starts an automatic check and waits until the feed has been judged.
    void runAutomaticCheck()
    {
        const qsizetype before = console.lines().size();
        manager->checkAutomaticallyAndPresentIfAvailable();
        QTRY_VERIFY(console.lines().mid(before).join(u'\n').contains(u"✅"));
        settle(); // the queued answer and the updater's turn
    }

    QString appcast() const { return server.baseUrl() + u"/app/Vandorel/appcast.xml"; }
    double snoozeUntil()
    {
        return settings.store().doubleValue(SettingsTable::updateSnoozeUntil.key());
    }

    TempSettings settings;
    FakeTimerFactory timers;
    LanguageManager language{settings.store(), timers, {QStringLiteral("en")}};
    ConsoleCapture console;
    FakeClock clock{QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC)};
    LoopbackHttp server;
    QTemporaryDir prefixes;
    FreedesktopInstallLayout install{
        QStringLiteral("/usr/bin/vandorel"),
        {prefixes.path() + u"/opt/homebrew", prefixes.path() + u"/usr/local"}};
    QStringList calls;
    QStringList answers;
    RecordingSheet sheet;
    ScriptedPrompter prompter;
    std::unique_ptr<UpdateManager> manager;
};

double epochSeconds(const QDateTime &when)
{
    return when.toMSecsSinceEpoch() / 1000.0;
}

} // namespace

class UpdateManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void judgesTheFeed_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("lines");
        const QString current = QStringLiteral("📦 Current version: 1.9.9");
        QTest::newRow("2.0 over 1.9.9")
            << 200 << feed("2.0") << "check yes 2.0"
            << QStringList{current, "📦 Latest version: 2.0", "✅ Update available!"};
        QTest::newRow("404 html page") << 404 << QByteArray("<html><body><hr></body></html>")
                                       << "check no -" << QStringList{"❌ Failed to parse appcast"};
        QTest::newRow("500 xml error")
            << 500 << QByteArray("<?xml version=\"1.0\"?><error/>") << "check no -"
            << QStringList{current, "📦 Latest version: ", "✅ No update available"};
    }

    void judgesTheFeed()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, answer);
        QFETCH(QStringList, lines);
        Rig rig;
        rig.server.serve({status, body});

        rig.manager->checkForUpdates(rig.recorder("check"));
        QVERIFY(rig.answers.isEmpty()); // never answers before returning
        QTRY_COMPARE(rig.answers, QStringList{answer});
        QCOMPARE(rig.server.requests.size(), 1);
        QCOMPARE(rig.server.requests[0].line, "GET /app/Vandorel/appcast.xml HTTP/1.1");
        QCOMPARE(rig.console.lines(), lines);
    }

    void cancelledOrEmptyFetches()
    {
        ConsoleCapture console;
        UpdateManager::FetchResult cancelled;
        cancelled.cancelled = true;
        QVERIFY(!UpdateManager::answerFor(cancelled, "1.0"));
        QVERIFY(console.lines().isEmpty());
        QVERIFY(!UpdateManager::answerFor({}, "1.0")->available);
        QCOMPARE(console.take(), QStringList{"❌ No data received from appcast"});
    }

    // A transfer that did not end as HTTP says fails the check, whatever came before it.
    void brokenTransfersFailTheCheck_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("refused") << "refused";
        QTest::newRow("body cut off") << "cut";
        QTest::newRow("redirect loop") << "loop";
        QTest::newRow("silent server") << "silent";
    }
    void brokenTransfersFailTheCheck()
    {
        QFETCH(QString, how);
        LoopbackHttp closed;
        closed.close();
        Rig rig(false, how == "refused" ? QUrl(closed.baseUrl() + u"/a.xml") : QUrl());
        rig.server.serve({200, feed("2.0")});
        if (how == "cut") // the whole feed comes, then a reset short of the length announced
            rig.server.serve({200, feed("2.0") + QByteArray(64, ' '), {}, feed("2.0").size()});
        if (how == "loop")
            rig.server.serve({302, {}, rig.appcast().toUtf8()});
        if (how == "silent")
            rig.server.hold();

        rig.manager->checkForUpdates(rig.recorder("check"));
        if (how == "silent") {
            QTRY_COMPARE(rig.server.requests.size(), 1);
            QCOMPARE(rig.timers.fire(59s), 0);
            QCOMPARE(rig.timers.fire(60s), 1);
        }
        QTRY_COMPARE(rig.answers, QStringList{"check no -"});
        const QStringList lines = rig.console.lines();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().startsWith(u"❌ Update check failed: "), qPrintable(lines.first()));
    }

    void supersededRequestNeverAnswers()
    {
        Rig rig;
        rig.server.serve({200, feed("2.0")});
        rig.server.hold();
        rig.manager->checkForUpdates(rig.recorder("first"));
        QTRY_COMPARE(rig.server.requests.size(), 1);
        rig.manager->checkForUpdates(rig.recorder("second"));
        QTRY_COMPARE(rig.server.requests.size(), 2);
        rig.server.release();

        QTRY_COMPARE(rig.answers.size(), 1);
        settle();
        QCOMPARE(rig.answers, QStringList{"second yes 2.0"});
        QVERIFY(rig.console.startingWith("❌").isEmpty());
    }

    void homebrewInstallIsDetectedAndHasNoUpdater()
    {
        Rig rig;
        const QString opt = rig.prefixes.path() + u"/opt/homebrew";
        const QString local = rig.prefixes.path() + u"/usr/local";
        const auto detect = [&](const QString &installPath) {
            rig.console.take();
            const FreedesktopInstallLayout layout(installPath, {opt, local});
            return UpdateManager::detectBrewInstall(&layout);
        };

        // Another cask and a dangling link of ours do not count.
        QVERIFY(QDir().mkpath(opt + u"/Caskroom/firefox"));
        QVERIFY(QFile::link(rig.prefixes.path() + u"/gone", opt + u"/Caskroom/vandorel"));
        QVERIFY(!detect(u"/usr/bin/vandorel"_qs));
        QCOMPARE(rig.console.lines(), QStringList{"📦 No Homebrew install detected"});

        QVERIFY(detect(u"/opt/homebrew/Caskroom/vandorel/1.0/vandorel"_qs));
        QCOMPARE(rig.console.lines(),
                 QStringList{"🍺 Homebrew install detected via symlink resolution"});

        // The prefixes are searched in order, each for both names.
        QVERIFY(QDir().mkpath(local + u"/Caskroom/vandorel"));
        QVERIFY(QDir().mkpath(opt + u"/Caskroom/van-dorel"));
        QVERIFY(detect(u"/usr/bin/vandorel"_qs));
        const QString found = u"🍺 Homebrew install detected via Caskroom directory: "_qs;
        QCOMPARE(rig.console.take(), QStringList{found + opt + u"/Caskroom/van-dorel"});

        // Such a copy has no updater and never checks by itself.
        rig.server.serve({200, feed("9.0")});
        QVERIFY(rig.manager->isBrewInstall()); // detected once, at the first read
        QCOMPARE(rig.manager->sparkleUpdaterController(), nullptr);
        QCOMPARE(rig.console.take().size(), 1);
        QVERIFY(!rig.manager->checkForUpdatesWithSparkle());
        rig.manager->checkAutomaticallyAndPresentIfAvailable();
        settle();
        QVERIFY(!rig.manager->findChild<QNetworkAccessManager *>()); // no request was made
        QVERIFY(rig.console.lines().isEmpty());
        QVERIFY(rig.calls.isEmpty());
    }

    void updaterGuardHoldsForEightSeconds()
    {
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
        settle();
        QCOMPARE(rig.calls.size(), 4);
    }

    void reminderSnoozeFollowsTheOfferedVersion()
    {
        Rig rig;
        rig.server.serve({200, feed("2.0")});
        SettingsStore &store = rig.settings.store();
        // A busy updater shows nothing and sets no snooze; the next firing tries again.
        QVERIFY(rig.manager->checkForUpdatesWithSparkle());
        rig.runAutomaticCheck();
        QCOMPARE(rig.console.lines().last(),
                 u"ℹ️ Sparkle check skipped: session already in progress"_qs);
        QVERIFY(!store.contains(SettingsTable::updateSnoozeUntil.key()));
        QCOMPARE(rig.calls.size(), 2);

        rig.timers.fire(8s);
        store.setString(SettingsTable::updateSnoozeVersion.key(), "2.0");
        rig.runAutomaticCheck(); // a version without an end is no snooze
        QCOMPARE(rig.calls.size(), 4);
        QCOMPARE(rig.console.lines().last(),
                 QStringLiteral("🔕 Auto update reminder snoozed for 4h (version 2.0)"));
        const QDateTime end = rig.clock.now().addSecs(4 * 3600);
        QCOMPARE(rig.snoozeUntil(), epochSeconds(end));
        QCOMPARE(store.stringValue(SettingsTable::updateSnoozeVersion.key()), u"2.0"_qs);

        // Quiet about 2.0 until the end, telling the whole seconds left.
        rig.timers.fire(8s);
        rig.clock.set(end.addMSecs(-60'500));
        rig.runAutomaticCheck();
        QCOMPARE(rig.console.lines().last(),
                 QStringLiteral("😴 Auto update reminder snoozed for version 2.0, remaining: 60s"));
        QCOMPARE(rig.calls.size(), 4);

        // A newer version shows at once and takes the snooze over.
        rig.server.serve({200, feed("2.1")});
        rig.runAutomaticCheck();
        QCOMPARE(rig.calls.size(), 6);
        QCOMPARE(rig.snoozeUntil(), epochSeconds(rig.clock.now().addSecs(4 * 3600)));

        // Exactly at the stored end the snooze is over.
        rig.timers.fire(8s);
        rig.clock.set(QDateTime::fromMSecsSinceEpoch(qint64(rig.snoozeUntil() * 1000), Qt::UTC));
        rig.runAutomaticCheck();
        QCOMPARE(rig.calls.size(), 8);

        // A reset ends the snooze that check set.
        rig.timers.fire(8s);
        rig.manager->resetAutoReminderSnooze();
        QCOMPARE(rig.console.lines().last(), QStringLiteral("🔄 Update reminder snooze reset"));
        QVERIFY(!store.contains(SettingsTable::updateSnoozeUntil.key())
                && !store.contains(SettingsTable::updateSnoozeVersion.key()));
        rig.runAutomaticCheck();
        QCOMPARE(rig.calls.size(), 10);
    }

    // The automatic path never says there is no update: not when the updater's own look at
    // the feed fails after the check found one. A check the user asked for that fails says
    // nothing either; only a feed without a newer version brings that box.
    void ownUpdaterSaysNoUpdateOnlyWhenAskedAndTrue()
    {
        Rig rig(true);
        rig.server.script({{200, feed("2.0")}, {200, "<html>broken"}});
        rig.manager->checkAutomaticallyAndPresentIfAvailable();
        QTRY_COMPARE(rig.console.startingWith("❌"), QStringList{"❌ Failed to parse appcast"});
        settle();
        QCOMPARE(rig.server.requests.size(), 2);
        QVERIFY(rig.prompter.shown().isEmpty());
        QVERIFY(rig.sheet.shown.isEmpty());
        // Nor when that look finds nothing newer.
        rig.timers.fire(8s);
        rig.server.script({{200, feed("2.1")}, {200, feed("1.0")}});
        rig.manager->checkAutomaticallyAndPresentIfAvailable();
        QTRY_COMPARE(rig.console.startingWith("✅ No update").size(), 1);
        settle();
        QVERIFY(rig.prompter.shown().isEmpty());

        rig.timers.fire(8s);
        rig.server.serve({200, "<html>broken"});
        QVERIFY(rig.manager->checkForUpdatesWithSparkle());
        QTRY_COMPARE(rig.console.startingWith("❌").size(), 2);
        settle();
        QVERIFY(rig.prompter.shown().isEmpty());

        // Asked for, it shows what the feed offers, or the box that says there is nothing.
        rig.timers.fire(8s);
        rig.server.serve({200, feed("2.0")});
        QVERIFY(rig.manager->checkForUpdatesWithSparkle());
        QTRY_COMPARE(rig.sheet.shown, QStringList{"2.0"});
        rig.timers.fire(8s);
        rig.server.serve({200, feed("1.0")});
        QVERIFY(rig.manager->checkForUpdatesWithSparkle());
        QTRY_VERIFY(rig.prompter.isPresenting());
        QCOMPARE(rig.prompter.last().title,
                 rig.language.localizedString("update_no_updates_title"));
        QCOMPARE(rig.prompter.last().text,
                 rig.language.localizedString("update_no_updates_message"));
        QCOMPARE(rig.prompter.last().buttons,
                 QStringList{rig.language.localizedString("general_ok")});
        QCOMPARE(rig.sheet.shown, QStringList{"2.0"});
    }
};

QTEST_GUILESS_MAIN(UpdateManagerTest)
#include "tst_updatemanager.moc"
