#pragma once

#include <QList>
#include <QString>

#include <optional>

class TextLookup;

// How often the automatic update check repeats. Stored by its raw value.
class UpdateCheckInterval {
public:
    enum Value { sixHours, twelveHours, daily, weekly, never };

    constexpr UpdateCheckInterval(Value value) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<UpdateCheckInterval> allCases();
    static std::optional<UpdateCheckInterval> fromRawValue(const QString &raw);

    QString rawValue() const;
    double timeInterval() const; // seconds; 0 for never
    QString localizationKey() const;
    QString displayName(const TextLookup &texts) const;

private:
    Value m_value;
};
