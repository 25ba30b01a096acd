#include "core/feedback/FeedbackPayload.h"

#include <QJsonDocument>
#include <QSysInfo>

QJsonObject FeedbackPayload::toJson() const
{
    return {
        {QStringLiteral("mood"), mood},
        {QStringLiteral("rating"), rating},
        {QStringLiteral("tag"), tag},
        {QStringLiteral("message"), message},
        {QStringLiteral("language"), language},
        {QStringLiteral("appVersion"), appVersion},
        {QStringLiteral("appBuild"), appBuild},
        {QStringLiteral("osVersion"), osVersion},
        {QStringLiteral("createdAt"), createdAt},
    };
}

QByteArray FeedbackPayload::encoded() const
{
    return QJsonDocument(toJson()).toJson(QJsonDocument::Compact);
}

QString FeedbackPayload::timestamp(const QDateTime &moment)
{
    QDateTime utc = moment.toUTC();
    utc.setTime(QTime(utc.time().hour(), utc.time().minute(), utc.time().second()));
    return utc.toString(Qt::ISODate);
}

QString FeedbackPayload::systemVersionText()
{
    return QSysInfo::prettyProductName() + u" (" + QSysInfo::kernelType() + u' '
           + QSysInfo::kernelVersion() + u')';
}
