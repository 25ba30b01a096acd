#include "core/settings/SettingsStore.h"

#include "BuildConfig.h"
#include "foundation/AbandonedLockFile.h"

#include <QStandardPaths>

namespace {

SettingsStore *g_standard = nullptr;

bool isNumberType(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

// Text as a number: integers and decimals; anything else gives nothing.
std::optional<double> numberFromText(const QString &text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    return ok ? std::optional<double>(number) : std::nullopt;
}

std::optional<bool> boolFromText(const QString &text)
{
    const QString t = text.trimmed().toLower();
    if (t == u"true" || t == u"yes")
        return true;
    if (t == u"false" || t == u"no")
        return false;
    if (const auto number = numberFromText(t))
        return *number != 0.0;
    return std::nullopt;
}

} // namespace

SettingsStore::SettingsStore(const QString &filePath, QObject *parent)
    : QObject(parent), m_settings(filePath, QSettings::IniFormat)
{
    // QSettings writes under this lock; one left by a killed writer would hold every write
    // back for thirty seconds, and the guards' checks with them.
    removeAbandonedLockFile(filePath + QStringLiteral(".lock"));
}

QString SettingsStore::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/'
           + QLatin1StringView(BuildConfig::appId) + u"/settings.ini";
}

SettingsStore &SettingsStore::standard()
{
    if (!g_standard)
        g_standard = new SettingsStore(defaultFilePath());
    return *g_standard;
}

void SettingsStore::setStandard(SettingsStore *store)
{
    g_standard = store;
}

QString SettingsStore::filePath() const
{
    return m_settings.fileName();
}

bool SettingsStore::contains(const QString &key) const
{
    return m_settings.contains(key);
}

bool SettingsStore::boolValue(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (isNumberType(value))
        return value.toDouble() != 0.0;
    if (value.typeId() == QMetaType::QString)
        return boolFromText(value.toString()).value_or(false);
    return false;
}

qint64 SettingsStore::integerValue(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? 1 : 0;
    if (value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int)
        return value.toLongLong();
    if (isNumberType(value))
        return static_cast<qint64>(value.toDouble());
    if (value.typeId() == QMetaType::QString) {
        bool ok = false;
        const qint64 whole = value.toString().trimmed().toLongLong(&ok);
        if (ok)
            return whole;
        if (const auto number = numberFromText(value.toString()))
            return static_cast<qint64>(*number);
        if (const auto flag = boolFromText(value.toString()))
            return *flag ? 1 : 0;
    }
    return 0;
}

double SettingsStore::doubleValue(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? 1.0 : 0.0;
    if (isNumberType(value))
        return value.toDouble();
    if (value.typeId() == QMetaType::QString)
        return numberFromText(value.toString()).value_or(0.0);
    return 0.0;
}

std::optional<QString> SettingsStore::stringValue(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (value.typeId() == QMetaType::Bool || isNumberType(value))
        return value.toString();
    return std::nullopt;
}

std::optional<QByteArray> SettingsStore::dataValue(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray();
    return std::nullopt;
}

std::optional<QDateTime> SettingsStore::dateValue(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() == QMetaType::QDateTime && value.toDateTime().isValid())
        return value.toDateTime();
    return std::nullopt;
}

void SettingsStore::setBool(const QString &key, bool value)
{
    write(key, value);
}
void SettingsStore::setInteger(const QString &key, qint64 value)
{
    write(key, value);
}
void SettingsStore::setDouble(const QString &key, double value)
{
    write(key, value);
}
void SettingsStore::setString(const QString &key, const QString &value)
{
    write(key, value);
}
void SettingsStore::setData(const QString &key, const QByteArray &value)
{
    write(key, value);
}
void SettingsStore::setDate(const QString &key, const QDateTime &value)
{
    write(key, value);
}

void SettingsStore::remove(const QString &key)
{
    m_settings.remove(key);
    m_settings.sync();
    Q_EMIT changed(key);
}

void SettingsStore::write(const QString &key, const QVariant &value)
{
    m_settings.setValue(key, value);
    m_settings.sync();
    Q_EMIT changed(key);
}

bool SettingsStore::value(const BoolKey &key) const
{
    return contains(key) ? boolValue(key.key()) : key.readDefault;
}
qint64 SettingsStore::value(const IntegerKey &key) const
{
    return contains(key) ? integerValue(key.key()) : key.readDefault;
}
double SettingsStore::value(const RealKey &key) const
{
    return contains(key) ? doubleValue(key.key()) : key.readDefault;
}
std::optional<QString> SettingsStore::value(const TextKey &key) const
{
    if (auto stored = stringValue(key.key()))
        return stored;
    if (key.readDefault)
        return QString::fromLatin1(key.readDefault);
    return std::nullopt;
}
std::optional<QByteArray> SettingsStore::value(const DataKey &key) const
{
    return dataValue(key.key());
}
std::optional<QDateTime> SettingsStore::value(const DateKey &key) const
{
    return dateValue(key.key());
}

void SettingsStore::set(const BoolKey &key, bool value)
{
    setBool(key.key(), value);
}
void SettingsStore::set(const IntegerKey &key, qint64 value)
{
    setInteger(key.key(), value);
}
void SettingsStore::set(const RealKey &key, double value)
{
    setDouble(key.key(), value);
}
void SettingsStore::set(const TextKey &key, const QString &value)
{
    setString(key.key(), value);
}
void SettingsStore::set(const DataKey &key, const QByteArray &value)
{
    setData(key.key(), value);
}
void SettingsStore::set(const DateKey &key, const QDateTime &value)
{
    setDate(key.key(), value);
}

// The meta-object is built into this file rather than with the other classes', so that the
// status command links the store without the rest of the core.
#include "moc_SettingsStore.cpp"
