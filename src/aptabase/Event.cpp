#include "aptabase/Event.h"

QJsonObject Event::SystemProps::toJson() const
{
    return QJsonObject{
        {QStringLiteral("isDebug"), isDebug},
        {QStringLiteral("locale"), locale},
        {QStringLiteral("osName"), osName},
        {QStringLiteral("osVersion"), osVersion},
        {QStringLiteral("appVersion"), appVersion},
        {QStringLiteral("appBuildNumber"), appBuildNumber},
        {QStringLiteral("sdkVersion"), sdkVersion},
        {QStringLiteral("deviceModel"), deviceModel},
    };
}

std::optional<QJsonObject> Event::toJson() const
{
    QJsonObject object{
        {QStringLiteral("timestamp"), formatTimestamp(timestamp)},
        {QStringLiteral("sessionId"), sessionId},
        {QStringLiteral("eventName"), eventName},
        {QStringLiteral("systemProps"), systemProps.toJson()},
    };
    if (props) {
        QJsonObject propsObject;
        for (auto it = props->cbegin(); it != props->cend(); ++it) {
            const std::optional<QJsonValue> value = it.value().toJson();
            if (!value)
                return std::nullopt;
            propsObject.insert(it.key(), *value);
        }
        object.insert(QStringLiteral("props"), propsObject);
    }
    return object;
}

QString Event::formatTimestamp(const QDateTime &moment)
{
    return moment.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}
