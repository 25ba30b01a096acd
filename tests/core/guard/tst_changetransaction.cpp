#include "GuardWorld.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"

// Setting a default: system calls on a worker, then a poll once a second, at most 60 times.
class ChangeTransactionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aChangeBackIsPolledUntilTheSystemShowsIt()
    {
        GuardWorld world;
        world.browsersDefault("chromium");
        BrowserManager browser(world.environment());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        browser.setBrowserChangeCount(4);
        world.handlers.refuse("https"); // only http follows for now

        ConsoleCapture console;
        browser.setDefaultBrowser(GuardWorld::firefox());
        QVERIFY(browser.isChangingBrowser());
        QVERIFY(world.waitForPolling());
        QCOMPARE(world.handlers.setCalls(), QStringList({"http=firefox-esr", "https=firefox-esr"}));
        world.poll();
        const int reads = world.handlers.schemeReads();
        world.poll();
        QCOMPARE(world.handlers.schemeReads() - reads, 1); // one reading of the system a poll
        world.handlers.setHandlers("https", {"firefox-esr", "chromium"});
        world.poll();
        QCOMPARE(
            console.lines(),
            QStringList({"🔘 setDefaultBrowser called for: Firefox", "   ✅ isChangingBrowser = true",
                         "   HTTP: 0, HTTPS: -54", "🔄 Starting polling",
                         "📡 Poll 1: chromium vs firefox-esr", "📡 Poll 2: chromium vs firefox-esr",
                         "📡 Poll 3: firefox-esr vs firefox-esr", "✅ Match!",
                         "📝 Log: Browser changed from Chromium to Firefox",
                         "✅ Browser set to Firefox"}));
        QVERIFY(!browser.isChangingBrowser());
        QCOMPARE(browser.browserChangeCount(), 5);
        QCOMPARE(browser.lastBrowserChange(), world.clock.now());
        QCOMPARE(browser.currentDefaultBrowser()->bundleIdentifier, QString("firefox-esr"));
        QVERIFY(!world.pollingTimer());
        // A match is the user's own change: it raises no alert.
        GuardWorld::settle();
        QVERIFY(world.alerts.shown().isEmpty());
    }

    void settingTheDefaultItAlreadyIsCountsNothing()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        ConsoleCapture console;
        browser.setDefaultBrowser(GuardWorld::firefox());
        QVERIFY(world.waitForPolling());
        world.poll();
        QCOMPARE(console.lines().last(), QString("✅ Browser set to Firefox"));
        QCOMPARE(browser.browserChangeCount(), 0);
        QVERIFY(world.log.getAllLogs().isEmpty());
    }

    void cancelStopsThePollOrLetsALateOneRunWithTheFlagDown()
    {
        GuardWorld world;
        world.browsersDefault("chromium");
        BrowserManager browser(world.environment());
        world.handlers.refuse("https");
        browser.setDefaultBrowser(GuardWorld::firefox());
        QVERIFY(world.waitForPolling());
        world.poll(2);
        ConsoleCapture console;
        browser.cancelBrowserChange();
        QCOMPARE(console.take(), QStringList({"🛑 User cancelled browser change"}));
        QVERIFY(!browser.isChangingBrowser());
        QVERIFY(!world.pollingTimer());
        world.browsersDefault("firefox-esr"); // the system completes it after all
        world.poll(5);
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(browser.browserChangeCount(), 0);

        // Cancelled before the worker hands back: the poll still runs, the flag stays down.
        GuardWorld fresh;
        fresh.browsersDefault("chromium");
        BrowserManager early(fresh.environment());
        early.setDefaultBrowser(GuardWorld::firefox());
        early.cancelBrowserChange();
        QVERIFY(!early.isChangingBrowser());
        QVERIFY(fresh.waitForPolling());
        fresh.poll();
        QVERIFY(!early.isChangingBrowser());
        QCOMPARE(console.lines().last(), QString("✅ Browser set to Firefox"));
        QCOMPARE(early.browserChangeCount(), 1);
    }

    // A refused change polls sixty times and gives up; a second request meanwhile starts
    // the count afresh, with one timer.
    void aRefusedChangeTimesOutAfterSixtyPollsOfTheLastRequest()
    {
        GuardWorld world;
        world.browsersDefault("chromium");
        BrowserManager browser(world.environment());
        world.handlers.refuse("https");
        world.handlers.refuse("http");
        browser.setDefaultBrowser(GuardWorld::firefox());
        QVERIFY(world.waitForPolling());
        world.poll(3);

        ConsoleCapture console;
        const int starts = world.pollingStarts();
        browser.setDefaultBrowser(Browser("Web", "epiphany"));
        QVERIFY(world.waitForPolling(starts));
        QCOMPARE(world.timers.activeWithInterval(GuardWorld::pollPeriod).size(), 1);
        world.poll(59);
        QVERIFY(browser.isChangingBrowser());
        QVERIFY(!console.contains("⏱️ Timeout"));
        QCOMPARE(console.lines().last(), QString("📡 Poll 59: chromium vs epiphany"));
        world.handlers.setHandlers("https", {});
        world.handlers.setHandlers("http", {});
        world.poll();
        QCOMPARE(console.lines().last(), QString("⏱️ Timeout"));
        QCOMPARE(console.lines().at(console.lines().size() - 2),
                 QString("📡 Poll 60: none vs epiphany"));
        QVERIFY(!browser.isChangingBrowser());
        QVERIFY(!world.pollingTimer());
        QCOMPARE(browser.browserChangeCount(), 0);
        QCOMPARE(console.startingWith("📡 Poll ").size(), 60);
    }

    // Quitting while the system is still being asked waits for the answer: the worker
    // touches neither a gone guard nor a gone database (the ASan build watches this).
    void quittingWaitsForAWriteUnderWay()
    {
        GuardWorld world;
        world.browsersDefault("chromium");
        auto browser = std::make_unique<BrowserManager>(world.environment());
        world.handlers.holdWrites();
        browser->setDefaultBrowser(GuardWorld::firefox());
        world.handlers.waitUntilWriting();
        // The system answers only once the guard itself is gone, while what it owns is
        // being torn down.
        connect(browser.get(), &QObject::destroyed, [&] { world.handlers.releaseWrites(); });
        browser.reset();
        QCOMPARE(world.handlers.setCalls(), QStringList({"http=firefox-esr", "https=firefox-esr"}));
        GuardWorld::settle(); // the hand-back has no one left to go to
        QVERIFY(!world.pollingTimer());
    }

    void theMailTwinSetsMailto()
    {
        GuardWorld world;
        world.mailDefault("evolution");
        EmailClientManager email(world.environment());
        ConsoleCapture console;
        email.setDefaultEmailClient(GuardWorld::thunderbird());
        QVERIFY(email.isChangingEmailClient());
        QVERIFY(world.waitForPolling());
        world.poll();
        QCOMPARE(console.lines(),
                 QStringList({"📧 setDefaultEmailClient called for: Thunderbird",
                              "   ✅ isChangingEmailClient = true", "   mailto: 0",
                              "🔄 Starting email polling",
                              "📡 Email Poll 1: thunderbird vs thunderbird", "✅ Email Match!",
                              "📝 Log: Email client changed from Evolution to Thunderbird",
                              "✅ Email client set to Thunderbird"}));
        QCOMPARE(world.handlers.setCalls(), QStringList({"mailto=thunderbird"}));
        QCOMPARE(email.emailChangeCount(), 1);
    }
};

QTEST_GUILESS_MAIN(ChangeTransactionTest)
#include "tst_changetransaction.moc"
