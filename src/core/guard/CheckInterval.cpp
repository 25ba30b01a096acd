#include "core/guard/CheckInterval.h"

#include "core/i18n/TextLookup.h"
#include "core/support/RowTable.h"

#include <array>

namespace {

struct Row {
    CheckInterval::Value value;
    const char *raw;
    double seconds;
    const char *key;
};

constexpr std::array<Row, 6> rows = {{
    {CheckInterval::none, "none", 0, "interval_none"},
    {CheckInterval::oneMinute, "1min", 60, "interval_every_minute"},
    {CheckInterval::fiveMinutes, "5min", 300, "interval_every_5_minutes"},
    {CheckInterval::tenMinutes, "10min", 600, "interval_every_10_minutes"},
    {CheckInterval::sixtyMinutes, "60min", 3600, "interval_every_hour"},
    {CheckInterval::daily, "daily", 86400, "interval_daily"},
}};

const Row &rowOf(CheckInterval::Value value)
{
    return rows[static_cast<size_t>(value)];
}

} // namespace

QList<CheckInterval> CheckInterval::allCases()
{
    return RowTable::allCases<CheckInterval>(rows);
}

std::optional<CheckInterval> CheckInterval::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<CheckInterval>(rows, &Row::raw, raw);
}

QString CheckInterval::rawValue() const
{
    return QLatin1StringView(rowOf(m_value).raw);
}
double CheckInterval::timeInterval() const
{
    return rowOf(m_value).seconds;
}
QString CheckInterval::localizationKey() const
{
    return QLatin1StringView(rowOf(m_value).key);
}

QString CheckInterval::displayName(const TextLookup &texts) const
{
    return texts.localizedString(localizationKey());
}
