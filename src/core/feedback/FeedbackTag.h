#pragma once

#include <QList>
#include <QString>

#include <optional>

// The category of a feedback message, in the order the page offers them. Sent by its raw value.
class FeedbackTag {
public:
    enum Value { coolApp, idea, issue, translation, other };

    constexpr FeedbackTag(Value value = coolApp) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<FeedbackTag> allCases();
    static std::optional<FeedbackTag> fromRawValue(const QString &raw);

    QString rawValue() const;
    QString id() const { return rawValue(); }
    QString localizationKey() const;

private:
    Value m_value;
};
