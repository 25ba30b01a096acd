#include "LoopbackIngestion.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

void LoopbackIngestion::received(const Request &request)
{
    if (request.headers.value("content-type") != "application/json")
        problems << QStringLiteral("Content-Type is not application/json");
    const QList<QByteArray> keyParts = request.headers.value("app-key").split('-');
    if (keyParts.size() < 3 || keyParts.first() != "A")
        problems << QStringLiteral("App-Key is malformed");
    problems << validateEvents(request.body, validateTimestamps);
}

QJsonArray LoopbackIngestion::events(const Request &request)
{
    return QJsonDocument::fromJson(request.body).array();
}

QStringList LoopbackIngestion::eventNames(const Request &request)
{
    QStringList names;
    for (const QJsonValue &event : events(request))
        names << event[QLatin1String("eventName")].toString();
    return names;
}

namespace {

void checkText(QStringList &problems, const QJsonObject &object, const char *key, int maximum,
               bool required)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isUndefined() || value.isNull()) {
        if (required)
            problems << QStringLiteral("%1 is missing").arg(QLatin1String(key));
        return;
    }
    if (!value.isString())
        problems << QStringLiteral("%1 is not a string").arg(QLatin1String(key));
    else if (required && value.toString().isEmpty())
        problems << QStringLiteral("%1 is empty").arg(QLatin1String(key));
    else if (value.toString().size() > maximum)
        problems << QStringLiteral("%1 is longer than %2").arg(QLatin1String(key)).arg(maximum);
}

void checkTimestamp(QStringList &problems, const QJsonValue &value)
{
    static const QRegularExpression form(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ$"));
    const QString text = value.toString();
    if (!form.match(text).hasMatch()) {
        problems << QStringLiteral("timestamp %1 is not in the expected form").arg(text);
        return;
    }
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (moment > now.addSecs(60))
        problems << QStringLiteral("timestamp %1 is in the future").arg(text);
    if (moment < now.addDays(-1))
        problems << QStringLiteral("timestamp %1 is older than a day").arg(text);
}

void checkProps(QStringList &problems, const QJsonValue &value)
{
    if (value.isUndefined())
        return;
    if (!value.isObject()) {
        problems << QStringLiteral("props is not an object");
        return;
    }
    const QJsonObject props = value.toObject();
    for (auto it = props.begin(); it != props.end(); ++it) {
        if (it.key().isEmpty() || it.key().size() > 40)
            problems << QStringLiteral("property key '%1' is empty or too long").arg(it.key());
        const QJsonValue v = it.value();
        if (!v.isDouble() && !v.isString() && !v.isBool())
            problems
                << QStringLiteral("property %1 is not a number, string or Boolean").arg(it.key());
        if (v.isString() && v.toString().size() > 200)
            problems << QStringLiteral("property %1 is longer than 200").arg(it.key());
    }
}

} // namespace

QStringList LoopbackIngestion::validateEvents(const QByteArray &body, bool checkTimestamps)
{
    QStringList problems;
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isArray() || document.array().isEmpty() || document.array().size() > 25)
        return {QStringLiteral("body is not an array of 1 to 25 events")};
    for (const QJsonValue &value : document.array()) {
        const QJsonObject event = value.toObject();
        checkText(problems, event, "eventName", 60, true);
        checkText(problems, event, "sessionId", 36, true);
        if (checkTimestamps)
            checkTimestamp(problems, event.value(QLatin1String("timestamp")));
        const QJsonObject system = event.value(QLatin1String("systemProps")).toObject();
        checkText(problems, system, "osName", 30, false);
        checkText(problems, system, "osVersion", 30, false);
        checkText(problems, system, "locale", 10, false);
        checkText(problems, system, "appVersion", 20, false);
        checkText(problems, system, "appBuildNumber", 20, false);
        checkText(problems, system, "sdkVersion", 40, true);
        checkProps(problems, event.value(QLatin1String("props")));
    }
    return problems;
}
