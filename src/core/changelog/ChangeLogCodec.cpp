#include "core/changelog/ChangeLogCodec.h"

#include "core/changelog/ReferenceDate.h"
#include "core/support/UuidText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

// Only the plain 8-4-4-4-12 form, in either case: QUuid would also take braces.
std::optional<QUuid> uuidFrom(const QJsonValue &value)
{
    if (!value.isString())
        return std::nullopt;
    const QString text = value.toString();
    if (text.size() != 36)
        return std::nullopt;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
        if (dash ? text[i] != u'-' : !isHexDigit(text[i]))
            return std::nullopt;
    }
    return QUuid::fromString(text);
}

std::optional<ChangeLogEntry> entryFrom(const QJsonValue &value)
{
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    const QJsonValue type = object.value(u"type");
    const QJsonValue message = object.value(u"message");
    const QJsonValue timestamp = object.value(u"timestamp");
    const auto id = uuidFrom(object.value(u"id"));
    const auto kind = type.isString() ? changeLogTypeFromRawValue(type.toString()) : std::nullopt;
    if (!id || !kind || !message.isString() || !timestamp.isDouble())
        return std::nullopt;
    const double seconds = timestamp.toDouble();
    const auto moment = ReferenceDate::momentFrom(seconds);
    if (!moment)
        return std::nullopt;

    ChangeLogEntry entry;
    entry.id = *id;
    entry.type = *kind;
    entry.message = message.toString();
    entry.timestamp = *moment;
    entry.storedSeconds = seconds;
    return entry;
}

} // namespace

namespace ChangeLogCodec {

std::optional<QByteArray> encode(const QList<ChangeLogEntry> &entries)
{
    QJsonArray array;
    for (const ChangeLogEntry &entry : entries) {
        const double seconds = entry.secondsSinceReferenceDate();
        if (!std::isfinite(seconds))
            return std::nullopt;
        array.append(QJsonObject{{QStringLiteral("id"), canonicalUuid(entry.id)},
                                 {QStringLiteral("type"), rawValue(entry.type)},
                                 {QStringLiteral("message"), entry.message},
                                 {QStringLiteral("timestamp"), seconds}});
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::optional<QList<ChangeLogEntry>> decode(const QByteArray &bytes)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    const QJsonArray array = document.array();
    QList<ChangeLogEntry> entries;
    entries.reserve(array.size());
    for (const QJsonValue &value : array) {
        auto entry = entryFrom(value);
        if (!entry)
            return std::nullopt;
        entries.append(std::move(*entry));
    }
    return entries;
}

} // namespace ChangeLogCodec
