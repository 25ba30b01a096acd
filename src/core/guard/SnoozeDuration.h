#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

class TextLookup;

// How long the keep answer silences a guard. Stored by its raw value.
class SnoozeDuration {
public:
    enum Value { fifteenMinutes, thirtyMinutes, oneHour, fourHours, today };

    constexpr SnoozeDuration(Value value) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<SnoozeDuration> allCases();
    static std::optional<SnoozeDuration> fromRawValue(const QString &raw);

    QString rawValue() const;
    QString id() const { return rawValue(); }
    // Seconds from `now`. For today: until 23:59:59 of now's day in local time, which
    // can be zero or negative in the day's last second; 8 hours if that time does not
    // exist.
    double timeInterval(const QDateTime &now) const;
    QString localizationKey() const;
    QString displayName(const TextLookup &texts) const;

private:
    Value m_value;
};
