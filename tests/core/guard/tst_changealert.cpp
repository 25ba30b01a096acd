#include "GuardWorld.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"

#include <QScopeGuard>

// The change alert and the snooze: the two answers, which paths honour and end a snooze,
// alerts one at a time, and ticks held back while one is up.
class ChangeAlertTest : public QObject {
    Q_OBJECT

    // A browser guard guarding Firefox while Chromium has taken over, its first alert up.
    struct Incident {
        GuardWorld world;
        BrowserManager browser{world.environment()};
        Incident()
        {
            browser.setTargetDefaultBrowser(GuardWorld::firefox());
            world.browsersDefault("chromium");
            world.tick();
            GuardWorld::settle();
        }
    };

private Q_SLOTS:
    void keepSnoozesAndTheFirstTickAfterwardsAlertsAgain()
    {
        Incident incident;
        auto &[world, browser] = incident;
        QCOMPARE(world.alerts.shown().size(), 1);
        QCOMPARE(browser.browserChangeCount(), 1);

        world.clock.advance(5);
        const QDateTime answeredAt = world.clock.now();
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        QVERIFY(browser.isSnoozed());
        QCOMPARE(browser.snoozeUntil(), answeredAt.addSecs(3600));
        QVERIFY(world.handlers.setCalls().isEmpty());

        // Ticks during the snooze do nothing at all.
        ConsoleCapture console;
        for (int i = 0; i < 5; ++i) {
            world.clock.advance(600);
            world.tick();
        }
        QCOMPARE(world.clock.now(), answeredAt.addSecs(3000));
        GuardWorld::settle();
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(browser.browserChangeCount(), 1);
        QCOMPARE(world.alerts.shown().size(), 1);

        // At the very instant of its end the tick ends the snooze and checks.
        world.clock.set(answeredAt.addSecs(3600));
        world.tick();
        QVERIFY(!browser.isSnoozed());
        QVERIFY(!browser.snoozeUntil());
        QCOMPARE(console.lines(),
                 QStringList({"📝 Log: Browser changed from Chromium to Chromium"}));
        QCOMPARE(browser.browserChangeCount(), 2);
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 2);
    }

    void eventsHonourASnoozeButOnlyTheTickEndsIt()
    {
        Incident incident;
        auto &[world, browser] = incident;
        browser.setSnoozeDuration(SnoozeDuration::fifteenMinutes);
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        const QDateTime until = *browser.snoozeUntil();
        browser.setCheckInterval(CheckInterval::none); // no timer: nothing will end the snooze
        QCOMPARE(browser.browserChangeCount(), 1);

        ConsoleCapture console;
        Q_EMIT world.events.didWake();
        Q_EMIT world.events.screenUnlocked();
        QVERIFY(console.lines().isEmpty());

        // Lapsed: the events check again while the snooze still shows.
        world.clock.set(until);
        Q_EMIT world.events.screenUnlocked();
        QCOMPARE(console.lines(),
                 QStringList({"🔍 Checking after unlock",
                              "📝 Log: Browser changed from Chromium to Chromium"}));
        QVERIFY(browser.isSnoozed());
        QCOMPARE(browser.snoozeUntil(), until);
        QCOMPARE(browser.browserChangeCount(), 2);
    }

    void startingTheMonitoringChecksThroughASnooze()
    {
        Incident incident;
        auto &[world, browser] = incident;
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        const auto until = browser.snoozeUntil();
        world.clock.advance(60);

        browser.setCheckInterval(CheckInterval::fiveMinutes);
        QCOMPARE(browser.browserChangeCount(), 2);
        QVERIFY(browser.isSnoozed());
        QCOMPARE(browser.snoozeUntil(), until);
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 2);
    }

    // Alerts come one at a time, each worded in the language of the moment it comes up.
    void alertsQueueAndShowOneAtATime()
    {
        struct SwitchableTexts final : TextLookup {
            EnglishTexts english;
            QString accent;
            QString localizedString(const QString &key) const override
            {
                return accent + english.localizedString(key);
            }
        } texts;
        GuardWorld world;
        GuardEnvironment environment = world.environment();
        environment.texts = &texts;
        BrowserManager browser(environment);
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        world.browsersDefault("chromium");
        browser.checkDefaultBrowser();
        world.browsersDefault("epiphany");
        browser.checkDefaultBrowser();
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 1);
        QCOMPARE(world.alerts.pendingCount(), 1);
        const ModalPrompt first = world.alerts.last();
        QCOMPARE(first.style, ModalPrompt::Style::warning);
        QCOMPARE(first.symbolDescription, QString("Warning"));

        // Each answer goes to its own alert; the next comes only after the first is gone.
        texts.accent = QStringLiteral("» ");
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        QVERIFY(!world.alerts.isPresenting());
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 2);
        const ModalPrompt second = world.alerts.last();
        QCOMPARE(second.title, QString("» Default browser changed"));
        QVERIFY(second.text.startsWith(u"» "));
        QCOMPARE(second.buttons, QStringList({"» Change back", "» Keep Web for now"}));
        QVERIFY(world.alerts.answer(GuardWorld::changeBack));
        QVERIFY(world.waitForPolling());
        QCOMPARE(world.handlers.setCalls(), QStringList({"http=firefox-esr", "https=firefox-esr"}));
        QVERIFY(!world.alerts.answer(GuardWorld::changeBack));
        world.poll();
    }

    void aMonitoringTickDuringAnAlertRunsOnceAfterItCloses()
    {
        GuardWorld world;
        BrowserManager browser(world.environment());
        EmailClientManager email(world.environment());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        email.setTargetDefaultEmailClient(GuardWorld::thunderbird());
        world.mailDefault("evolution");
        world.tick();
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 1);
        QCOMPARE(email.emailChangeCount(), 1);

        // The mail alert is up: no guard's tick runs, however often it comes.
        world.browsersDefault("chromium");
        ConsoleCapture console;
        for (int i = 0; i < 3; ++i)
            QCOMPARE(world.tick(), 2);
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(browser.browserChangeCount(), 0);
        QCOMPARE(email.emailChangeCount(), 1);

        // Keep snoozes the mail guard only. Each guard then runs its missed tick once: the
        // mail guard's is silenced by its new snooze, the browser guard's finds Chromium.
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        QVERIFY(email.isSnoozed());
        QVERIFY(!browser.isSnoozed());
        QCOMPARE(console.lines(), QStringList({"📝 Log: Browser changed from Firefox to Chromium"}));
        QCOMPARE(browser.browserChangeCount(), 1);
        QCOMPARE(email.emailChangeCount(), 1);
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 2);
        QCOMPARE(world.alerts.shown().last().title, QString("Default browser changed"));

        // Nothing more is owed once that tick ran.
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        QCOMPARE(browser.browserChangeCount(), 1);
    }

    // A tick missed while the alert was up waits for the change back its answer started:
    // run before the change lands, it would find the old default, count it and alert again.
    void aTickMissedDuringTheAlertWaitsForTheChangeBack()
    {
        Incident incident;
        auto &[world, browser] = incident;
        QCOMPARE(world.tick(), 1); // missed: the alert is up
        world.handlers.holdWrites();
        auto release = qScopeGuard([&] { world.handlers.releaseWrites(); });
        ConsoleCapture console;
        QVERIFY(world.alerts.answer(GuardWorld::changeBack));
        world.handlers.waitUntilWriting();
        GuardWorld::settle();
        QCOMPARE(browser.browserChangeCount(), 1);
        QVERIFY(!world.alerts.isPresenting());

        release.dismiss();
        world.handlers.releaseWrites();
        QVERIFY(world.waitForPolling());
        world.poll();
        GuardWorld::settle();
        QCOMPARE(console.startingWith("📝"),
                 QStringList({"📝 Log: Browser changed from Chromium to Firefox"}));
        QCOMPARE(browser.browserChangeCount(), 2);
        QCOMPARE(world.alerts.shown().size(), 1);
    }

    // ... and it does run once the change has ended: one refused, the default is still away.
    void aTickMissedDuringTheAlertRunsWhenTheChangeBackTimesOut()
    {
        Incident incident;
        auto &[world, browser] = incident;
        world.handlers.refuse("http");
        world.handlers.refuse("https");
        world.tick();
        QVERIFY(world.alerts.answer(GuardWorld::changeBack));
        QVERIFY(world.waitForPolling());
        world.poll(59);
        QCOMPARE(browser.browserChangeCount(), 1);
        world.poll();
        QVERIFY(!browser.isChangingBrowser());
        QCOMPARE(browser.browserChangeCount(), 2);
        GuardWorld::settle();
        QCOMPARE(world.alerts.shown().size(), 2);
    }

    void theAnswerToAGoneGuardIsDropped()
    {
        GuardWorld world;
        auto browser = std::make_unique<BrowserManager>(world.environment());
        browser->setTargetDefaultBrowser(GuardWorld::firefox());
        world.browsersDefault("chromium");
        browser->checkDefaultBrowser();
        GuardWorld::settle();
        browser.reset();
        QVERIFY(world.alerts.answer(GuardWorld::changeBack));
        QVERIFY(world.handlers.setCalls().isEmpty());
        QVERIFY(!world.alerts.isPresenting());
    }

    void theMailGuardSnoozesByItsOwnDuration()
    {
        GuardWorld world;
        EmailClientManager email(world.environment());
        email.setTargetDefaultEmailClient(GuardWorld::thunderbird());
        email.setSnoozeDuration(SnoozeDuration::thirtyMinutes);
        world.mailDefault("evolution");
        world.alerts.answerNext(GuardWorld::keep);
        world.tick();
        GuardWorld::settle();
        QCOMPARE(email.snoozeUntil(), world.clock.now().addSecs(1800));
        world.clock.advance(1800);
        world.tick();
        QCOMPARE(email.emailChangeCount(), 2);
    }
};

QTEST_GUILESS_MAIN(ChangeAlertTest)
#include "tst_changealert.moc"
