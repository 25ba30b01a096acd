#pragma once

#include <QDateTime>
#include <QString>
#include <QUuid>

// Which default a change-log record is about. Stored by its raw value.
enum class ChangeLogType { browser, email };

// One observed change of a default: a finished English sentence and its moment.
struct ChangeLogEntry {
    QUuid id = QUuid::createUuid();
    ChangeLogType type = ChangeLogType::browser;
    QString message;
    QDateTime timestamp;

    // "[<medium date and time in the user's locale>] BROWSER: <message>"
    QString description() const;
};
