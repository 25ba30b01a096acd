#include "core/i18n/AppLanguage.h"

#include <array>

namespace {

struct Row {
    AppLanguage::Value value;
    const char *code;
    const char16_t *name;
};

constexpr std::array<Row, 10> rows = {{
    {AppLanguage::english, "en", u"English"},
    {AppLanguage::german, "de", u"Deutsch"},
    {AppLanguage::spanish, "es", u"Español"},
    {AppLanguage::french, "fr", u"Français"},
    {AppLanguage::dutch, "nl", u"Nederlands"},
    {AppLanguage::chinese, "zh", u"中文"},
    {AppLanguage::japanese, "ja", u"日本語"},
    {AppLanguage::italian, "it", u"Italiano"},
    {AppLanguage::polish, "pl", u"Polski"},
    {AppLanguage::portuguese, "pt", u"Português"},
}};

const Row &rowOf(AppLanguage::Value value)
{
    return rows[static_cast<size_t>(value)];
}

} // namespace

QList<AppLanguage> AppLanguage::allCases()
{
    QList<AppLanguage> cases;
    for (const Row &row : rows)
        cases.append(row.value);
    return cases;
}

std::optional<AppLanguage> AppLanguage::fromRawValue(const QString &raw)
{
    for (const Row &row : rows) {
        if (raw == QLatin1StringView(row.code))
            return AppLanguage(row.value);
    }
    return std::nullopt;
}

QString AppLanguage::rawValue() const { return QLatin1StringView(rowOf(m_value).code); }
QString AppLanguage::displayName() const { return QString::fromUtf16(rowOf(m_value).name); }
