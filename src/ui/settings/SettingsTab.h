#pragma once

#include <QList>
#include <QString>

#include <optional>

// The pages of the settings window, in the order of their tabs. Routing hands a tab
// around by its raw value.
class SettingsTab {
public:
    enum Value { general, browser, email, log, feedback };

    constexpr SettingsTab(Value value) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<SettingsTab> allCases();
    static std::optional<SettingsTab> fromRawValue(const QString &raw);

    QString rawValue() const;
    QString titleKey() const;
    // The symbol name of the tab's picture.
    QString symbol() const;

private:
    Value m_value;
};
