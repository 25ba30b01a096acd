#pragma once

#include <QByteArray>
#include <QDateTime>

// The year as the user's calendar counts it: the calendar ICU prefers for a locale (a Thai
// region counts Buddhist years), or the one its "@calendar=" keyword names
// ("ja_JP@calendar=japanese" counts the years of the era).
class UserCalendar {
public:
    // The system locale's ICU name.
    static QByteArray systemLocale();
    // The calendar year of `moment` in the process's time zone; the Gregorian year if ICU
    // cannot make the calendar.
    static int year(const QDateTime &moment, const QByteArray &icuLocale = systemLocale());
};
