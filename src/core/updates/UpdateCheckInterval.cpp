#include "core/updates/UpdateCheckInterval.h"

#include "core/i18n/TextLookup.h"
#include "core/support/RowTable.h"

#include <array>

namespace {

struct Row {
    UpdateCheckInterval::Value value;
    const char *raw;
    double seconds;
    const char *key;
};

constexpr std::array<Row, 5> rows = {{
    {UpdateCheckInterval::sixHours, "6h", 21600, "update_interval_6h"},
    {UpdateCheckInterval::twelveHours, "12h", 43200, "update_interval_12h"},
    {UpdateCheckInterval::daily, "daily", 86400, "update_interval_daily"},
    {UpdateCheckInterval::weekly, "weekly", 604800, "update_interval_weekly"},
    {UpdateCheckInterval::never, "never", 0, "update_interval_never"},
}};

const Row &rowOf(UpdateCheckInterval::Value value)
{
    return rows[static_cast<size_t>(value)];
}

} // namespace

QList<UpdateCheckInterval> UpdateCheckInterval::allCases()
{
    return RowTable::allCases<UpdateCheckInterval>(rows);
}

std::optional<UpdateCheckInterval> UpdateCheckInterval::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<UpdateCheckInterval>(rows, &Row::raw, raw);
}

QString UpdateCheckInterval::rawValue() const
{
    return QLatin1StringView(rowOf(m_value).raw);
}
double UpdateCheckInterval::timeInterval() const
{
    return rowOf(m_value).seconds;
}
QString UpdateCheckInterval::localizationKey() const
{
    return QLatin1StringView(rowOf(m_value).key);
}

QString UpdateCheckInterval::displayName(const TextLookup &texts) const
{
    return texts.localizedString(localizationKey());
}
