#include "core/guard/HandlerRecord.h"

#include "core/support/UuidText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// A JSON string literal as the stored format writes it (slashes escaped too).
QByteArray jsonString(const QString &text)
{
    QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    QByteArray literal = array.mid(1, array.size() - 2);
    return literal.replace("/", "\\/");
}

void appendMember(QByteArray &out, const char *key, const QString &value)
{
    if (out.size() > 1)
        out += ',';
    out += '"';
    out += key;
    out += "\":";
    out += jsonString(value);
}

std::optional<QUuid> uuidFromText(const QString &text)
{
    if (text.size() != 36)
        return std::nullopt;
    const QUuid uuid = QUuid::fromString(text);
    if (uuid.isNull() && text != u"00000000-0000-0000-0000-000000000000")
        return std::nullopt;
    return uuid;
}

// An optional member: absent or null reads as nothing; any other non-string fails.
bool readOptional(const QJsonObject &object, const char *key, std::optional<QString> *out)
{
    const QJsonValue value = object.value(QLatin1StringView(key));
    if (value.isUndefined() || value.isNull())
        return true;
    if (!value.isString())
        return false;
    *out = value.toString();
    return true;
}

} // namespace

HandlerRecord::HandlerRecord(QString name, QString bundleIdentifier, std::optional<QString> path,
                             std::optional<QString> version, QUuid id)
    : id(id), name(std::move(name)), bundleIdentifier(std::move(bundleIdentifier)),
      path(std::move(path)), version(std::move(version))
{
}

QString HandlerRecord::displayName() const
{
    if (!version)
        return name;
    return name + u" (" + *version + u')';
}

QByteArray HandlerRecord::toJson() const
{
    QByteArray out = "{";
    appendMember(out, "id", canonicalUuid(id));
    appendMember(out, "name", name);
    appendMember(out, "bundleIdentifier", bundleIdentifier);
    if (path)
        appendMember(out, "path", *path);
    if (version)
        appendMember(out, "version", *version);
    out += '}';
    return out;
}

std::optional<HandlerRecord> HandlerRecord::fromJson(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const QJsonValue id = object.value(u"id");
    const QJsonValue name = object.value(u"name");
    const QJsonValue identifier = object.value(u"bundleIdentifier");
    if (!id.isString() || !name.isString() || !identifier.isString())
        return std::nullopt;
    const auto uuid = uuidFromText(id.toString());
    if (!uuid)
        return std::nullopt;
    std::optional<QString> path;
    std::optional<QString> version;
    if (!readOptional(object, "path", &path) || !readOptional(object, "version", &version))
        return std::nullopt;
    return HandlerRecord(name.toString(), identifier.toString(), path, version, *uuid);
}
