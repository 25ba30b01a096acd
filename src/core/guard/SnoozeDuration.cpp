#include "core/guard/SnoozeDuration.h"

#include "core/i18n/TextLookup.h"
#include "core/support/RowTable.h"

#include <QTimeZone>

#include <array>

namespace {

struct Row {
    SnoozeDuration::Value value;
    const char *raw;
    double seconds;
    const char *key;
};

constexpr double endOfDayFallback = 28800;

constexpr std::array<Row, 5> rows = {{
    {SnoozeDuration::fifteenMinutes, "15min", 900, "snooze_15_minutes"},
    {SnoozeDuration::thirtyMinutes, "30min", 1800, "snooze_30_minutes"},
    {SnoozeDuration::oneHour, "1hour", 3600, "snooze_1_hour"},
    {SnoozeDuration::fourHours, "4hours", 14400, "snooze_4_hours"},
    {SnoozeDuration::today, "today", 0, "snooze_rest_of_today"},
}};

const Row &rowOf(SnoozeDuration::Value value)
{
    return rows[static_cast<size_t>(value)];
}

} // namespace

QList<SnoozeDuration> SnoozeDuration::allCases()
{
    return RowTable::allCases<SnoozeDuration>(rows);
}

std::optional<SnoozeDuration> SnoozeDuration::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<SnoozeDuration>(rows, &Row::raw, raw);
}

QString SnoozeDuration::rawValue() const
{
    return QLatin1StringView(rowOf(m_value).raw);
}
QString SnoozeDuration::localizationKey() const
{
    return QLatin1StringView(rowOf(m_value).key);
}

double SnoozeDuration::timeInterval(const QDateTime &now) const
{
    if (m_value != today)
        return rowOf(m_value).seconds;
    const QDateTime local = now.toLocalTime();
    const QDateTime endOfDay(local.date(), QTime(23, 59, 59), QTimeZone::systemTimeZone());
    if (!endOfDay.isValid() || endOfDay.time() != QTime(23, 59, 59))
        return endOfDayFallback;
    return static_cast<double>(now.msecsTo(endOfDay)) / 1000.0;
}

QString SnoozeDuration::displayName(const TextLookup &texts) const
{
    return texts.localizedString(localizationKey());
}
