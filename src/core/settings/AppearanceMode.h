#pragma once

#include <QList>
#include <QString>

#include <optional>

// Light, dark, or the system's own look. Stored by its raw value.
class AppearanceMode {
public:
    enum Value { system, light, dark };

    constexpr AppearanceMode(Value value = system) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<AppearanceMode> allCases();
    static std::optional<AppearanceMode> fromRawValue(const QString &raw);

    QString rawValue() const;
    QString localizationKey() const;

private:
    Value m_value;
};
