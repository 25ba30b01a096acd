#include "core/guard/CheckInterval.h"
#include "core/guard/SnoozeDuration.h"

#include <QTest>

// The two stored enumerations: their raw values are the store's format, and the end of
// the day is computed in local time at the moment of snoozing.
class IntervalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rawValuesRoundTripInOrder()
    {
        QStringList raws;
        for (CheckInterval interval : CheckInterval::allCases()) {
            raws << interval.rawValue();
            QCOMPARE(CheckInterval::fromRawValue(interval.rawValue()), interval);
        }
        QCOMPARE(raws, QStringList({"none", "1min", "5min", "10min", "60min", "daily"}));
        QStringList snoozes;
        for (SnoozeDuration duration : SnoozeDuration::allCases())
            snoozes << duration.rawValue();
        QCOMPARE(snoozes, QStringList({"15min", "30min", "1hour", "4hours", "today"}));
        QVERIFY(!CheckInterval::fromRawValue("10MIN"));
        QVERIFY(!SnoozeDuration::fromRawValue(""));
    }

    void todayEndsOneSecondBeforeMidnightLocally()
    {
        qputenv("TZ", "Europe/Berlin");
        const SnoozeDuration today = SnoozeDuration::today;
        const QDateTime morning(QDate(2026, 6, 1), QTime(9, 0, 0));
        QCOMPARE(today.timeInterval(morning), 14 * 3600.0 + 59 * 60 + 59);
        QCOMPARE(today.timeInterval(QDateTime(QDate(2026, 6, 1), QTime(23, 59, 59, 500))), -0.5);
        // The day the clocks go forward is an hour shorter.
        const QDateTime springMorning(QDate(2026, 3, 29), QTime(0, 30, 0));
        QCOMPARE(today.timeInterval(springMorning), 22 * 3600.0 + 29 * 60 + 59);
    }
};

QTEST_GUILESS_MAIN(IntervalsTest)
#include "tst_intervals.moc"
