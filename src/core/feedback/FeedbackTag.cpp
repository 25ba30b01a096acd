#include "core/feedback/FeedbackTag.h"

#include "core/support/RowTable.h"

#include <array>

namespace {

struct Row {
    FeedbackTag::Value value;
    const char *raw;
    const char *key;
};

constexpr std::array<Row, 5> rows = {{
    {FeedbackTag::coolApp, "coolApp", "feedback_tag_cool_app"},
    {FeedbackTag::idea, "idea", "feedback_tag_idea"},
    {FeedbackTag::issue, "issue", "feedback_tag_issue"},
    {FeedbackTag::translation, "translation", "feedback_tag_translation"},
    {FeedbackTag::other, "other", "feedback_tag_other"},
}};

const Row &rowOf(FeedbackTag::Value value)
{
    return rows[static_cast<size_t>(value)];
}

} // namespace

QList<FeedbackTag> FeedbackTag::allCases()
{
    return RowTable::allCases<FeedbackTag>(rows);
}

std::optional<FeedbackTag> FeedbackTag::fromRawValue(const QString &raw)
{
    return RowTable::fromRaw<FeedbackTag>(rows, &Row::raw, raw);
}

QString FeedbackTag::rawValue() const
{
    return QLatin1StringView(rowOf(m_value).raw);
}
QString FeedbackTag::localizationKey() const
{
    return QLatin1StringView(rowOf(m_value).key);
}
