#include "core/i18n/AppLanguage.h"
#include "core/support/RowTable.h"

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
    return RowTable::allCases<AppLanguage>(rows);
}

std::optional<AppLanguage> AppLanguage::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<AppLanguage>(rows, &Row::code, raw);
}

QString AppLanguage::rawValue() const
{
    return QLatin1StringView(rowOf(m_value).code);
}
QString AppLanguage::displayName() const
{
    return QString::fromUtf16(rowOf(m_value).name);
}
