#include "core/i18n/RelativeDateTime.h"

#include "core/changelog/MediumDateTime.h"

#include <unicode/locid.h>
#include <unicode/reldatefmt.h>
#include <unicode/unistr.h>

#include <array>

namespace {

// A distance between two moments in the largest calendar unit that holds it at least once,
// counted in whole steps of that unit (always >= 0; the sign is the caller's).
struct Distance {
    URelativeDateTimeUnit unit;
    qint64 count;
    QDateTime nextStep; // where the count grows by one, seen from the earlier moment
};

Distance distance(const QDateTime &from, const QDateTime &to)
{
    // Whole years, months and days by the calendar, so month lengths and daylight-saving
    // days count as the user's calendar counts them.
    using Step = QDateTime (*)(const QDateTime &, int);
    struct CalendarUnit {
        URelativeDateTimeUnit unit;
        Step step;
    };
    constexpr std::array<CalendarUnit, 4> calendarUnits{{
        {UDAT_REL_UNIT_YEAR, [](const QDateTime &at, int n) { return at.addYears(n); }},
        {UDAT_REL_UNIT_MONTH, [](const QDateTime &at, int n) { return at.addMonths(n); }},
        {UDAT_REL_UNIT_WEEK, [](const QDateTime &at, int n) { return at.addDays(7 * n); }},
        {UDAT_REL_UNIT_DAY, [](const QDateTime &at, int n) { return at.addDays(n); }},
    }};
    for (const CalendarUnit &unit : calendarUnits) {
        int count = 0;
        while (unit.step(from, count + 1) <= to)
            ++count;
        if (count > 0)
            return {unit.unit, count, unit.step(from, count + 1)};
    }
    const qint64 seconds = from.secsTo(to);
    struct ClockUnit {
        URelativeDateTimeUnit unit;
        qint64 seconds;
    };
    constexpr std::array<ClockUnit, 3> clockUnits{{
        {UDAT_REL_UNIT_HOUR, 3600},
        {UDAT_REL_UNIT_MINUTE, 60},
        {UDAT_REL_UNIT_SECOND, 1},
    }};
    for (const ClockUnit &unit : clockUnits) {
        const qint64 count = seconds / unit.seconds;
        if (count > 0 || unit.seconds == 1)
            return {unit.unit, count, from.addSecs((count + 1) * unit.seconds)};
    }
    return {UDAT_REL_UNIT_SECOND, 0, from.addSecs(1)};
}

} // namespace

namespace RelativeDateTime {

QString format(const QDateTime &date, const QDateTime &now, const QLocale &locale)
{
    const bool past = date <= now;
    const Distance span = past ? distance(date, now) : distance(now, date);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale(MediumDateTime::icuLocaleName(locale).constData());
    const icu::RelativeDateTimeFormatter formatter(icuLocale, status);
    if (U_FAILURE(status))
        return QString();
    icu::UnicodeString text;
    const double offset = past ? -double(span.count) : double(span.count);
    formatter.formatNumeric(offset, span.unit, text, status);
    if (U_FAILURE(status))
        return QString();
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

std::chrono::milliseconds untilNextChange(const QDateTime &date, const QDateTime &now)
{
    constexpr std::chrono::milliseconds atLeast{1000};
    // A moment ahead (a clock set back) is rare; counting it down by the second will do.
    if (date > now)
        return atLeast;
    return std::max(atLeast, std::chrono::milliseconds(now.msecsTo(distance(date, now).nextStep)));
}

} // namespace RelativeDateTime
