#pragma once

#include <QList>
#include <QString>

#include <optional>

class TextLookup;

// How often a guard checks on its own. Stored by its raw value.
class CheckInterval {
public:
    enum Value { none, oneMinute, fiveMinutes, tenMinutes, sixtyMinutes, daily };

    constexpr CheckInterval(Value value) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<CheckInterval> allCases();
    static std::optional<CheckInterval> fromRawValue(const QString &raw);

    QString rawValue() const;
    QString id() const { return rawValue(); }
    double timeInterval() const; // seconds; 0 for none
    QString localizationKey() const;
    QString displayName(const TextLookup &texts) const;

private:
    Value m_value;
};
