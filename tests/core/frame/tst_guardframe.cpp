#include "../guard/GuardWorld.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTest>

// The frame both guards share: first-launch defaults, settings over the store, the
// order in which a setter stores, acts and tells, and the construction sequence.
class GuardFrameTest : public QObject {
    Q_OBJECT

    // The environment of a start at login.
    static GuardEnvironment atLogin(GuardWorld &world)
    {
        GuardEnvironment env = world.environment();
        env.launchedAtLogin = true;
        return env;
    }

private Q_SLOTS:
    void firstLaunchWritesTheDefaultsOnce()
    {
        GuardWorld world;
        {
            ConsoleCapture console;
            BrowserManager browser(world.environment());
            EmailClientManager email(world.environment());
            QCOMPARE(console.count("✨ First launch - defaults set"), 1);
            QCOMPARE(console.count("✨ Email: First launch - defaults set"), 1);
        }
        QSettings file(world.settings.path(), QSettings::IniFormat);
        QStringList keys = file.allKeys();
        keys.sort();
        QCOMPARE(keys,
                 QStringList({"checkInterval", "checkOnLogin", "checkOnUnlock", "checkOnWake",
                              "emailCheckInterval", "emailCheckOnLogin", "emailCheckOnUnlock",
                              "emailCheckOnWake", "emailMonitoringEnabled", "emailSnoozeDuration",
                              "hasLaunchedBefore", "hasLaunchedBeforeEmail", "monitoringEnabled",
                              "snoozeDuration"}));
        QCOMPARE(file.value("checkInterval").toString(), QString("10min"));
        QCOMPARE(file.value("emailSnoozeDuration").toString(), QString("1hour"));

        world.settings.reopen();
        ConsoleCapture console;
        BrowserManager again(world.environment());
        EmailClientManager emailAgain(world.environment());
        QVERIFY(console.startingWith("✨").isEmpty());
        QVERIFY(again.monitoringEnabled() && emailAgain.checkOnLogin());
    }

    void eachGuardHasItsOwnMarker()
    {
        GuardWorld world;
        world.settings.store().setBool("hasLaunchedBefore", true);
        ConsoleCapture console;
        BrowserManager browser(world.environment());
        EmailClientManager email(world.environment());
        QCOMPARE(console.startingWith("✨"), QStringList({"✨ Email: First launch - defaults set"}));
        // The marker alone: the switches read their absent defaults, not the first-launch values.
        QVERIFY(!browser.monitoringEnabled() && !browser.checkOnWake() && !browser.checkOnLogin());
        QVERIFY(!browser.isProtected());
        QVERIFY(email.isProtected());
    }

    void unreadableValuesReadAsDefaultsAndStayStored()
    {
        GuardWorld world;
        SettingsStore &store = world.settings.store();
        store.setBool("hasLaunchedBefore", true);
        store.setData("targetDefaultBrowser", "\x89not json at all");
        store.setString("checkInterval", "fortnightly");
        store.setString("snoozeDuration", "forever");
        store.setString("monitoringEnabled", "sure");
        store.setString("lastBrowserChange", "yesterday");
        for (int pass = 0; pass < 2; ++pass) {
            if (pass == 1)
                world.settings.reopen(); // read afresh, as after a restart
            BrowserManager browser(world.environment());
            QVERIFY(!browser.targetDefaultBrowser());
            QCOMPARE(browser.checkInterval(), CheckInterval::tenMinutes);
            QCOMPARE(browser.snoozeDuration(), SnoozeDuration::oneHour);
            QVERIFY(!browser.monitoringEnabled());
            QVERIFY(!browser.lastBrowserChange());
        }
        SettingsStore &after = world.settings.reopen();
        QCOMPARE(after.dataValue("targetDefaultBrowser"), QByteArray("\x89not json at all"));
        QCOMPARE(after.stringValue("checkInterval"), QString("fortnightly"));
    }

    void aTargetIsStoredAsItsRecordAndRemovedByNone()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        const Browser firefox("Firefox", "firefox-esr",
                              QString("/usr/share/applications/firefox-esr.desktop"));
        browser.setTargetDefaultBrowser(firefox);
        QCOMPARE(world.settings.reopen().dataValue("targetDefaultBrowser"), firefox.toJson());
        BrowserManager restarted(world.environment());
        QCOMPARE(restarted.targetDefaultBrowser()->id, firefox.id);
        restarted.setTargetDefaultBrowser(std::nullopt);
        QVERIFY(!world.settings.store().contains("targetDefaultBrowser"));
    }

    void settersStoreBeforeTheyTellAndTellEveryTime()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        QStringList seen;
        connect(&browser, &HandlerGuard::objectWillChange, this, [&] {
            seen << world.settings.store().stringValue("snoozeDuration").value_or("-");
        });
        browser.setSnoozeDuration(SnoozeDuration::fourHours);
        browser.setSnoozeDuration(SnoozeDuration::fourHours);
        browser.setBrowserChangeCount(3);
        QCOMPARE(seen, QStringList({"4hours", "4hours", "4hours"}));
    }

    void isProtectedNeedsMonitoringAndOneTrigger()
    {
        GuardWorld world;
        EmailClientManager email(world.environment());
        email.setCheckInterval(CheckInterval::none);
        QVERIFY(email.isProtected()); // the event switches still fire
        email.setCheckOnWake(false);
        email.setCheckOnUnlock(false);
        email.setCheckOnLogin(false);
        QVERIFY(!email.isProtected());
        email.setCheckInterval(CheckInterval::daily);
        QVERIFY(email.isProtected());
        email.setMonitoringEnabled(false);
        QVERIFY(!email.isProtected());
    }

    void resetToDefaultsKeepsTheTargetAndTheMarker()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        browser.setTargetDefaultBrowser(Browser("Chromium", "chromium"));
        browser.setCheckInterval(CheckInterval::daily);
        browser.setBrowserChangeCount(7);
        ConsoleCapture console;
        browser.resetToDefaults();
        QCOMPARE(browser.checkInterval(), CheckInterval::tenMinutes);
        QCOMPARE(browser.browserChangeCount(), 0);
        QCOMPARE(browser.targetDefaultBrowser()->bundleIdentifier, QString("chromium"));
        QVERIFY(world.settings.store().boolValue("hasLaunchedBefore"));
        QCOMPARE(console.lines().last(), QString("🔄 Browser counters reset"));
    }

    void constructionResolvesTheDefaultAndSchedulesTheLoginCheck()
    {
        GuardWorld world;
        world.handlers.install("firefox-esr", QString("Firefox ESR"));
        world.handlers.setHandlers("https", {"firefox-esr"});
        ConsoleCapture console;
        BrowserManager browser(atLogin(world));
        QCOMPARE(browser.currentDefaultBrowser()->name, QString("Firefox ESR"));
        QCOMPARE(
            console.lines().filter(QRegularExpression("^(✨|📊|🚀)")),
            QStringList({"✨ First launch - defaults set", "📊 Total: 2", "🚀 Launched at login"}));
        QCOMPARE(world.timers.activeWithInterval(std::chrono::milliseconds(2000)).size(), 1);

        // Without the login switch the launch is not even looked at.
        GuardWorld other;
        other.settings.store().setBool("hasLaunchedBefore", true);
        ConsoleCapture quiet;
        BrowserManager notAtLogin(atLogin(other));
        QVERIFY(!quiet.contains("🚀 Launched at login"));
        QVERIFY(other.timers.activeWithInterval(std::chrono::milliseconds(2000)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(GuardFrameTest)
#include "tst_guardframe.moc"
