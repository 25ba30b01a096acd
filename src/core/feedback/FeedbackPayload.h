#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>

// The record posted to the feedback endpoint; each JSON key is the field's name.
struct FeedbackPayload {
    QString mood;
    int rating = 0;
    QString tag;
    QString message;
    QString language;
    QString appVersion;
    QString appBuild;
    QString osVersion;
    QString createdAt;

    QJsonObject toJson() const;
    QByteArray encoded() const;

    // Internet date and time in UTC, whole seconds, ending in Z.
    static QString timestamp(const QDateTime &moment);
    // The system's long, human-readable name and version.
    static QString systemVersionText();
};
