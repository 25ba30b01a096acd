#pragma once

#include <QList>
#include <QString>

#include <optional>

// The interface languages, in the order of the language picker. Stored by its code.
class AppLanguage {
public:
    enum Value {
        english,
        german,
        spanish,
        french,
        dutch,
        chinese,
        japanese,
        italian,
        polish,
        portuguese
    };

    constexpr AppLanguage(Value value = english) : m_value(value) {}
    constexpr operator Value() const { return m_value; }

    static QList<AppLanguage> allCases();
    // The language whose code equals `raw` exactly.
    static std::optional<AppLanguage> fromRawValue(const QString &raw);

    QString rawValue() const;
    QString code() const { return rawValue(); }
    QString id() const { return rawValue(); }
    // The language's own name for itself; the same in every interface language.
    QString displayName() const;

private:
    Value m_value;
};
