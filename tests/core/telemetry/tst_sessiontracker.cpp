#include "FakeClock.h"
#include "core/telemetry/SessionTracker.h"

#include <QTest>

class SessionTrackerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void durationCountsWholeSecondsFromTheLatestStart()
    {
        FakeClock clock;
        SessionTracker tracker(clock);
        QCOMPARE(tracker.sessionDuration(), 0);
        clock.advance(2.999);
        QCOMPARE(tracker.sessionDuration(), 2);
        clock.advance(86400);
        QCOMPARE(tracker.sessionDuration(), 86402);

        tracker.start();
        clock.advance(0.5);
        QCOMPARE(tracker.sessionDuration(), 0);
        // A clock set back truncates toward zero as well.
        clock.advance(-1.7);
        QCOMPARE(tracker.sessionDuration(), -1);
    }
};

QTEST_GUILESS_MAIN(SessionTrackerTest)
#include "tst_sessiontracker.moc"
