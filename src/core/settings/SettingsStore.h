#pragma once

#include "core/settings/SettingKey.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QString>

#include <optional>

// The persistent settings of the program: typed values under text keys, in one INI file.
// INI keeps no type for booleans, numbers and text (after a restart they read back as
// text), so every getter converts by the type asked for: "true"/"false" and numbers
// convert, other text reads as the absent default. Bytes and dates keep their type
// markers; anything else under their keys reads as absent and is left in place.
// Absent keys read as false, 0 or nothing. Every write is flushed to disk and then
// announced with changed(key).
class SettingsStore : public QObject {
    Q_OBJECT
public:
    explicit SettingsStore(const QString &filePath, QObject *parent = nullptr);

    // $XDG_CONFIG_HOME/io.kestrane.vandorel/settings.ini (or its platform equivalent).
    static QString defaultFilePath();

    // The store the process-wide objects use. Made on first use at defaultFilePath();
    // replaceable, so a test or a diagnostic run can point everything elsewhere.
    static SettingsStore &standard();
    static void setStandard(SettingsStore *store);

    QString filePath() const;

    bool contains(const QString &key) const;
    bool boolValue(const QString &key) const;
    qint64 integerValue(const QString &key) const;
    double doubleValue(const QString &key) const;
    std::optional<QString> stringValue(const QString &key) const;
    std::optional<QByteArray> dataValue(const QString &key) const;
    std::optional<QDateTime> dateValue(const QString &key) const;

    void setBool(const QString &key, bool value);
    void setInteger(const QString &key, qint64 value);
    void setDouble(const QString &key, double value);
    void setString(const QString &key, const QString &value);
    void setData(const QString &key, const QByteArray &value);
    void setDate(const QString &key, const QDateTime &value);
    void remove(const QString &key);

    // The same by a key of SettingsTable. An absent key reads as the key's read default, and
    // so does a text key that holds no text; otherwise a key reads as above.
    bool value(const BoolKey &key) const;
    qint64 value(const IntegerKey &key) const;
    double value(const RealKey &key) const;
    std::optional<QString> value(const TextKey &key) const;
    std::optional<QByteArray> value(const DataKey &key) const;
    std::optional<QDateTime> value(const DateKey &key) const;
    void set(const BoolKey &key, bool value);
    void set(const IntegerKey &key, qint64 value);
    void set(const RealKey &key, double value);
    void set(const TextKey &key, const QString &value);
    void set(const DataKey &key, const QByteArray &value);
    void set(const DateKey &key, const QDateTime &value);
    template <typename Key>
    requires requires { Key::type; }
    bool contains(const Key &key) const { return contains(QString(key.key())); }
    template <typename Key>
    requires requires { Key::type; }
    void remove(const Key &key) { remove(QString(key.key())); }

Q_SIGNALS:
    void changed(const QString &key);

private:
    void write(const QString &key, const QVariant &value);

    mutable QSettings m_settings;
};
