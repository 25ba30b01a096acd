#include "GuardWorld.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/DefaultFileMonitor.h"
#include "core/guard/EmailClientManager.h"
#include "platform/HandlerChangeWatcher.h"

#include <memory>

namespace {

// A watcher the test speaks for: change() is another program writing a deciding file.
class ScriptedWatcher final : public HandlerChangeWatcher {
public:
    QStringList schemes;
    QStringList identifiers;
    QByteArray digest = "first";

    void watch(const QStringList &s, const QStringList &i) override
    {
        schemes = s;
        identifiers = i;
        m_watching = true;
    }
    void stop() override { m_watching = false; }
    bool isWatching() const override { return m_watching; }
    QByteArray contentsDigest() const override { return digest; }

    void change(const QByteArray &contents)
    {
        digest = contents;
        Q_EMIT touched();
    }

private:
    bool m_watching = false;
};

} // namespace

// A change to the files that decide a default runs the tick's check once its events
// settle, under the tick's conditions, and never where there is no interval.
class InstantDetectionTest : public QObject {
    Q_OBJECT

    std::unique_ptr<GuardWorld> m_world;
    QList<ScriptedWatcher *> m_watchers; // one per guard, in the order the guards are made

    GuardEnvironment environment()
    {
        GuardEnvironment env = m_world->environment();
        env.changeWatchers = [this] {
            auto watcher = std::make_unique<ScriptedWatcher>();
            m_watchers.append(watcher.get());
            return watcher;
        };
        return env;
    }
    int settle() { return m_world->timers.fire(DefaultFileMonitor::settleDelay); }

private Q_SLOTS:
    void init()
    {
        m_world = std::make_unique<GuardWorld>();
        m_watchers.clear();
    }
    void cleanup() { m_world.reset(); }

    void aBurstOfChangesIsOneCheckThatRestartsTheInterval()
    {
        BrowserManager browser(environment());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        ScriptedWatcher &watcher = *m_watchers.first();
        QVERIFY(watcher.isWatching());
        QCOMPARE(watcher.schemes, QStringList({"https", "http"}));
        QCOMPARE(watcher.identifiers, QStringList({"firefox-esr"}));
        QVERIFY(DefaultFileMonitor::settleDelay <= 250ms);
        FakeTimer *interval = m_world->timers.activeWithInterval(GuardWorld::tenMinutes).first();
        const int intervalStarts = interval->starts();

        ConsoleCapture console;
        m_world->browsersDefault("chromium");
        for (const char *step : {"tmp file", "renamed", "cache"})
            watcher.change(step);
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(settle(), 1);
        QCOMPARE(console.take(), QStringList({"📝 Log: Browser changed from Firefox to Chromium"}));
        QCOMPARE(browser.browserChangeCount(), 1);
        GuardWorld::settle();
        QCOMPARE(m_world->alerts.shown().size(), 1);
        QCOMPARE(interval->starts(), intervalStarts + 1);
        QVERIFY(interval->isActive());
        // The new default's entry is followed from now on.
        QCOMPARE(watcher.identifiers, QStringList({"chromium", "firefox-esr"}));
        // Between events only the interval is due: nothing polls.
        QCOMPARE(m_world->timers.active(), QList<FakeTimer *>{interval});
    }

    void changesThatRunNoCheck()
    {
        BrowserManager browser(environment());
        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        ScriptedWatcher &watcher = *m_watchers.first();

        // The files were touched, but hold what they held: the moved default is not seen.
        m_world->browsersDefault("chromium");
        watcher.change(watcher.digest);
        settle();
        QCOMPARE(browser.browserChangeCount(), 0);

        // While the alert is up, and while snoozed after "keep".
        browser.checkDefaultBrowser();
        QTRY_VERIFY(m_world->alerts.isPresenting());
        watcher.change("while the alert is up");
        settle();
        QCOMPARE(browser.browserChangeCount(), 1);
        QVERIFY(m_world->alerts.answer(GuardWorld::keep));
        const FakeTimer *interval =
            m_world->timers.activeWithInterval(GuardWorld::tenMinutes).first();
        const int intervalStarts = interval->starts();
        watcher.change("while snoozed");
        settle();
        QCOMPARE(browser.browserChangeCount(), 1);
        QCOMPARE(interval->starts(), intervalStarts); // the tick after the snooze stays due
        GuardWorld::settle();
        QCOMPARE(m_world->alerts.shown().size(), 1);

        // While our own change back is being made: its writes are no takeover.
        m_world->clock.advance(3600);
        watcher.change("after the snooze");
        settle();
        QCOMPARE(browser.browserChangeCount(), 2);
        QTRY_VERIFY(m_world->alerts.isPresenting());
        QVERIFY(m_world->alerts.answer(GuardWorld::changeBack));
        QVERIFY(browser.isChangingBrowser());
        watcher.change("our own write");
        settle();
        QCOMPARE(browser.browserChangeCount(), 2);
        QVERIFY(m_world->waitForPolling());
        m_world->poll();
        QVERIFY(!browser.isChangingBrowser());
        QCOMPARE(browser.browserChangeCount(), 3); // the change back
        GuardWorld::settle();
        QCOMPARE(m_world->alerts.shown().size(), 2);
    }

    void onlyARunningIntervalWatches()
    {
        BrowserManager browser(environment());
        EmailClientManager mail(environment());
        ScriptedWatcher &web = *m_watchers.at(0);
        ScriptedWatcher &mailto = *m_watchers.at(1);
        QCOMPARE(mailto.schemes, QStringList({"mailto"}));
        QVERIFY(web.isWatching());

        browser.setCheckInterval(CheckInterval::none);
        QVERIFY(!web.isWatching());
        m_world->browsersDefault("chromium");
        web.change("no interval");
        QCOMPARE(settle(), 0);
        browser.setCheckInterval(CheckInterval::oneMinute);
        QVERIFY(web.isWatching());

        mail.setMonitoringEnabled(false);
        QVERIFY(!mailto.isWatching());
        QVERIFY(web.isWatching());
        mail.setMonitoringEnabled(true);
        QVERIFY(mailto.isWatching());
    }
};

QTEST_GUILESS_MAIN(InstantDetectionTest)
#include "tst_instantdetection.moc"
