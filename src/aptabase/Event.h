#pragma once

#include "aptabase/AnyCodableValue.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <optional>

// One tracked event as it goes over the wire.
struct Event {
    struct SystemProps {
        bool isDebug = false;
        QString locale;
        QString osName;
        QString osVersion;
        QString appVersion;
        QString appBuildNumber;
        QString sdkVersion;
        QString deviceModel;

        QJsonObject toJson() const;
    };

    QDateTime timestamp;
    QString sessionId;
    QString eventName;
    SystemProps systemProps;
    std::optional<CodableProps> props;

    // None when a property has no JSON form.
    std::optional<QJsonObject> toJson() const;

    // yyyy-MM-ddTHH:mm:ssZ in UTC, whole seconds.
    static QString formatTimestamp(const QDateTime &moment);
};
