#pragma once

#include <QJsonValue>
#include <QMap>
#include <QString>

#include <optional>
#include <variant>

// The closed set of property values the wire format knows. Each encodes as one bare JSON
// value of its kind.
class AnyCodableValue {
public:
    enum class Kind { Integer, String, Float, Double, Boolean, Null };

    static AnyCodableValue integer(qint64 value) { return AnyCodableValue(value); }
    static AnyCodableValue string(const QString &value) { return AnyCodableValue(value); }
    static AnyCodableValue floatValue(float value) { return AnyCodableValue(value); }
    static AnyCodableValue doubleValue(double value) { return AnyCodableValue(value); }
    static AnyCodableValue boolean(bool value) { return AnyCodableValue(value); }
    static AnyCodableValue null() { return AnyCodableValue(std::monostate()); }

    Kind kind() const { return static_cast<Kind>(m_value.index()); }
    // The text of a string value; null for the other kinds.
    const QString *text() const { return std::get_if<QString>(&m_value); }

    // None when the value has no JSON form (a NaN or an infinity).
    std::optional<QJsonValue> toJson() const;

    bool operator==(const AnyCodableValue &other) const = default;

private:
    using Storage = std::variant<qint64, QString, float, double, bool, std::monostate>;
    explicit AnyCodableValue(Storage value) : m_value(std::move(value)) {}
    Storage m_value;
};

using CodableProps = QMap<QString, AnyCodableValue>;
