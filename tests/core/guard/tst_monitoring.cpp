#include "GuardWorld.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"

// The monitoring loop: the timer, the immediate check of startMonitoring, what a check
// records on a mismatch, and the odd rules it keeps on purpose.
class MonitoringTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMismatchIsLoggedCountedAndAlertedOnEveryCheck()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        ConsoleCapture console;
        world.tick();
        QVERIFY(console.lines().isEmpty());

        world.browsersDefault("chromium");
        world.clock.advance(600);
        world.tick();
        QCOMPARE(console.take(), QStringList({"📝 Log: Browser changed from Firefox to Chromium"}));
        QCOMPARE(browser.browserChangeCount(), 1);
        QCOMPARE(browser.lastBrowserChange(), world.clock.now());
        QCOMPARE(browser.currentDefaultBrowser()->bundleIdentifier, QString("chromium"));
        QCOMPARE(world.log.getAllLogs().size(), 1);

        // The alert goes on screen on a later turn, not inside the check.
        QVERIFY(world.alerts.shown().isEmpty());
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 1);
        const ModalPrompt alert = world.alerts.shown().first();
        QCOMPARE(alert.title, QString("Default browser changed"));
        QCOMPARE(alert.text,
                 QString("Another program has made Chromium your default browser. "
                         "Your target browser is Firefox. Do you want to change it back?"));
        QCOMPARE(alert.buttons, QStringList({"Change back", "Keep Chromium for now"}));
        QCOMPARE(alert.symbolName, QString("exclamationmark.shield"));

        // A default that stays away counts again, logged from itself to itself.
        browser.checkDefaultBrowser();
        QCOMPARE(console.lines(),
                 QStringList({"📝 Log: Browser changed from Chromium to Chromium"}));
        QCOMPARE(browser.browserChangeCount(), 2);
        QCOMPARE(world.alerts.pendingCount(), 1);
    }

    void checksThatCountNothing()
    {
        { // No target: nothing counted however the default changes.
            GuardWorld world;
            BrowserManager browser(world.environment());
            ConsoleCapture console;
            for (const char *id : {"chromium", "epiphany", "firefox-esr"}) {
                world.browsersDefault(id);
                world.tick();
                Q_EMIT world.events.didWake();
                QCOMPARE(browser.currentDefaultBrowser()->bundleIdentifier, QString(id));
            }
            QCOMPARE(console.lines(), QStringList(3, "🔍 Checking after wake"));
            QCOMPARE(browser.browserChangeCount(), 0);
            GuardWorld::settle();
            QVERIFY(world.alerts.shown().isEmpty());
        }
        { // Monitoring off: a check only resolves.
            GuardWorld world;
            BrowserManager browser(world.environment());
            browser.setTargetDefaultBrowser(GuardWorld::firefox());
            browser.setMonitoringEnabled(false);
            QVERIFY(world.timers.active().isEmpty());
            world.browsersDefault("chromium");
            Q_EMIT world.events.didWake();
            QCOMPARE(browser.currentDefaultBrowser()->name, QString("Chromium"));
            QCOMPARE(browser.browserChangeCount(), 0);
            GuardWorld::settle();
            QVERIFY(world.alerts.shown().isEmpty());
        }
        { // No previous default: the alert comes, but nothing is logged or counted.
            GuardWorld world;
            world.handlers.setHandlers("https", {});
            world.handlers.setHandlers("http", {});
            BrowserManager browser(world.environment());
            browser.setTargetDefaultBrowser(GuardWorld::firefox());
            world.browsersDefault("epiphany");
            ConsoleCapture console;
            world.tick();
            QVERIFY(console.lines().isEmpty());
            QCOMPARE(browser.browserChangeCount(), 0);
            QVERIFY(!browser.lastBrowserChange());
            QVERIFY(world.log.getAllLogs().isEmpty());
            GuardWorld::settle();
            QCOMPARE(world.alerts.shown().size(), 1);
            QCOMPARE(world.alerts.shown().first().buttons.at(1), QString("Keep Web for now"));
        }
    }

    void theIntervalDecidesTheTimerAndStartingChecksAtOnce()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        world.browsersDefault("chromium");

        // One immediate check per restart; exactly one timer, of the new period.
        browser.setCheckInterval(CheckInterval::daily);
        QCOMPARE(browser.browserChangeCount(), 1);
        QCOMPARE(world.timers.active().size(), 1);
        QCOMPARE(world.timers.active().first()->interval(), std::chrono::milliseconds(86400s));
        QVERIFY(world.timers.active().first()->isRepeating());
        browser.setMonitoringEnabled(true);
        QCOMPARE(browser.browserChangeCount(), 2);
        QCOMPARE(world.timers.active().size(), 1);

        // none: the timer stops, and no check is made.
        browser.setCheckInterval(CheckInterval::none);
        browser.setMonitoringEnabled(true);
        QCOMPARE(browser.browserChangeCount(), 2);
        QVERIFY(world.timers.active().isEmpty());

        // An interval written while monitoring is off starts nothing.
        browser.setMonitoringEnabled(false);
        browser.setCheckInterval(CheckInterval::oneMinute);
        QVERIFY(world.timers.active().isEmpty());
        browser.setMonitoringEnabled(true);
        QCOMPARE(world.timers.activeWithInterval(60s).size(), 1);
        QCOMPARE(browser.browserChangeCount(), 3);
    }

    void theMailGuardWatchesMailto()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        EmailClientManager email(world.environment());
        email.setTargetDefaultEmailClient(GuardWorld::thunderbird());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        world.mailDefault("evolution");
        ConsoleCapture console;
        QCOMPARE(world.tick(), 2);
        QCOMPARE(console.lines(),
                 QStringList({"📝 Log: Email client changed from Thunderbird to Evolution"}));
        QCOMPARE(email.emailChangeCount(), 1);
        QCOMPARE(email.lastEmailChange(), world.clock.now());
        QCOMPARE(browser.browserChangeCount(), 0);
        QCOMPARE(world.log.getAllLogs().first().type, ChangeLogType::email);
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 1);
        QCOMPARE(world.alerts.shown().first().title, QString("Default mail client changed"));
        QCOMPARE(world.alerts.shown().first().text,
                 QString("Another program has made Evolution your default mail client. "
                         "Your target mail client is Thunderbird. Do you want to change it back?"));
    }
};

QTEST_GUILESS_MAIN(MonitoringTest)
#include "tst_monitoring.moc"
