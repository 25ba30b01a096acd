#include "core/settings/AppearanceMode.h"

#include "core/support/RowTable.h"

#include <array>

namespace {

struct Row {
    AppearanceMode::Value value;
    const char *raw;
    const char *key;
};

constexpr std::array<Row, 3> rows = {{
    {AppearanceMode::system, "system", "general_appearance_system"},
    {AppearanceMode::light, "light", "general_appearance_light"},
    {AppearanceMode::dark, "dark", "general_appearance_dark"},
}};

} // namespace

QList<AppearanceMode> AppearanceMode::allCases()
{
    return RowTable::allCases<AppearanceMode>(rows);
}

std::optional<AppearanceMode> AppearanceMode::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<AppearanceMode>(rows, &Row::raw, raw);
}

QString AppearanceMode::rawValue() const
{
    return QLatin1StringView(rows[static_cast<size_t>(m_value)].raw);
}

QString AppearanceMode::localizationKey() const
{
    return QLatin1StringView(rows[static_cast<size_t>(m_value)].key);
}
