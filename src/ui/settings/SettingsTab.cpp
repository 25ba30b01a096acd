#include "ui/settings/SettingsTab.h"

#include "core/support/RowTable.h"

#include <array>

namespace {

struct Row {
    SettingsTab::Value value;
    const char *raw;
    const char *titleKey;
    const char *symbol;
};

constexpr std::array<Row, 5> rows = {{
    {SettingsTab::general, "general", "tab_general", "gear"},
    {SettingsTab::browser, "browser", "tab_browser", "globe"},
    {SettingsTab::email, "email", "tab_email", "envelope"},
    {SettingsTab::log, "log", "tab_log", "list.bullet.rectangle"},
    {SettingsTab::feedback, "feedback", "tab_feedback", "bubble.left.and.bubble.right"},
}};

const Row &rowOf(SettingsTab::Value value)
{
    return rows[static_cast<size_t>(value)];
}

} // namespace

QList<SettingsTab> SettingsTab::allCases()
{
    return RowTable::allCases<SettingsTab>(rows);
}

std::optional<SettingsTab> SettingsTab::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<SettingsTab>(rows, &Row::raw, raw);
}

QString SettingsTab::rawValue() const
{
    return QLatin1StringView(rowOf(m_value).raw);
}

QString SettingsTab::titleKey() const
{
    return QLatin1StringView(rowOf(m_value).titleKey);
}

QString SettingsTab::symbol() const
{
    return QLatin1StringView(rowOf(m_value).symbol);
}
