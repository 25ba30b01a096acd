#pragma once

#include <QByteArray>
#include <QHashFunctions>
#include <QString>
#include <QUuid>

#include <optional>

// One installed application that handles web links or mailto links. Its identity is the
// bundle identifier alone (on freedesktop: the desktop file id without ".desktop"),
// compared exactly; `id` only tells list rows apart.
class HandlerRecord {
public:
    HandlerRecord(QString name, QString bundleIdentifier, std::optional<QString> path = {},
                  std::optional<QString> version = {}, QUuid id = QUuid::createUuid());

    QUuid id;
    QString name;
    QString bundleIdentifier;
    std::optional<QString> path;
    std::optional<QString> version;

    // "Name (version)", or the name alone when there is no version.
    QString displayName() const;

    // The stored JSON form, keys in the order id, name, bundleIdentifier, path, version.
    QByteArray toJson() const;
    // Nothing when id, name or bundleIdentifier is missing or mistyped, or id is no UUID.
    static std::optional<HandlerRecord> fromJson(const QByteArray &json);

    friend bool operator==(const HandlerRecord &a, const HandlerRecord &b)
    {
        return a.bundleIdentifier == b.bundleIdentifier;
    }
};

inline size_t qHash(const HandlerRecord &record, size_t seed = 0)
{
    return qHash(record.bundleIdentifier, seed);
}
