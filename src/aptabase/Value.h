#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

// A property value of one of the five kinds the client accepts (integer, double, float,
// string, Boolean), checked at compile time. It keeps its exact type, so a Boolean stays one.
class Value {
public:
    Value(int value) : m_variant(qint64(value)) {}
    Value(qint64 value) : m_variant(value) {}
    Value(double value) : m_variant(value) {}
    Value(float value) : m_variant(value) {}
    Value(bool value) : m_variant(value) {}
    Value(const QString &value) : m_variant(value) {}
    Value(const char *value) : m_variant(QString::fromUtf8(value)) {}

    const QVariant &toVariant() const { return m_variant; }

private:
    QVariant m_variant;
};

using ValueProps = QMap<QString, Value>;
