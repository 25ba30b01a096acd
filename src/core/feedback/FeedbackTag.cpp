#include "core/feedback/FeedbackTag.h"

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
    QList<FeedbackTag> cases;
    for (const Row &row : rows)
        cases.append(row.value);
    return cases;
}

std::optional<FeedbackTag> FeedbackTag::fromRawValue(const QString &raw)
{
    for (const Row &row : rows) {
        if (raw == QLatin1StringView(row.raw))
            return FeedbackTag(row.value);
    }
    return std::nullopt;
}

QString FeedbackTag::rawValue() const { return QLatin1StringView(rowOf(m_value).raw); }
QString FeedbackTag::localizationKey() const { return QLatin1StringView(rowOf(m_value).key); }
