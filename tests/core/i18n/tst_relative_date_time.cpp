#include "core/i18n/RelativeDateTime.h"

#include <QTest>

using namespace std::chrono_literals;

// Relative times in the largest whole calendar unit, through ICU's wording of the locale,
// and the moment the wording changes next.
class RelativeDateTimeTest : public QObject {
    Q_OBJECT

    static QDateTime now() { return QDateTime(QDate(2026, 3, 14), QTime(10, 0, 0)); }

private Q_SLOTS:
    void largestWholeUnit_data()
    {
        QTest::addColumn<QDateTime>("date");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");
        const QDateTime at = now();
        const auto row = [](const char *name, const QDateTime &date, const QString &locale,
                            const QString &expected) {
            QTest::newRow(name) << date << locale << expected;
        };
        row("same moment", at, "en_US", "0 seconds ago");
        row("seconds", at.addSecs(-59), "en_US", "59 seconds ago");
        row("minutes", at.addSecs(-61), "en_US", "1 minute ago");
        row("hours, truncated", at.addSecs(-(2 * 3600 + 3599)), "en_US", "2 hours ago");
        row("days", at.addDays(-6), "en_US", "6 days ago");
        row("weeks", at.addDays(-20), "en_US", "2 weeks ago");
        // Feb 14 to Mar 14 is one calendar month although it is only 28 days.
        row("calendar month", at.addMonths(-1), "en_US", "1 month ago");
        row("years", at.addYears(-3).addDays(-40), "en_US", "3 years ago");
        row("ahead", at.addSecs(300), "en_US", "in 5 minutes");
        row("german", at.addSecs(-7200), "de_DE", "vor 2 Stunden");
    }
    void largestWholeUnit()
    {
        QFETCH(QDateTime, date);
        QFETCH(QString, locale);
        QFETCH(QString, expected);
        QCOMPARE(RelativeDateTime::format(date, now(), QLocale(locale)), expected);
    }

    void nextChangeIsWhenTheCountGrows()
    {
        const QDateTime at = now();
        QCOMPARE(RelativeDateTime::untilNextChange(at.addSecs(-90), at), 30s);
        QCOMPARE(RelativeDateTime::untilNextChange(at.addMSecs(-1500), at), 1000ms);
        QCOMPARE(RelativeDateTime::untilNextChange(at.addDays(-2).addSecs(-3600), at), 23h);
        QCOMPARE(RelativeDateTime::untilNextChange(at.addSecs(60), at), 1s);
    }
};

QTEST_GUILESS_MAIN(RelativeDateTimeTest)
#include "tst_relative_date_time.moc"
