#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QUuid>

#include <optional>

// Which default a change-log record is about. Stored by its raw value.
enum class ChangeLogType { browser, email };

// "browser" / "email".
QString rawValue(ChangeLogType type);
std::optional<ChangeLogType> changeLogTypeFromRawValue(const QString &raw);

// One observed change of a default: a finished English sentence and its moment.
struct ChangeLogEntry {
    QUuid id = QUuid::createUuid();
    ChangeLogType type = ChangeLogType::browser;
    QString message;
    QDateTime timestamp;

    // The moment exactly as it was read from the store, in seconds since the reference
    // date. QDateTime holds milliseconds only; this keeps a finer stored value from
    // being rounded at the next write. Ignored once timestamp no longer matches it.
    std::optional<double> storedSeconds;

    // Seconds since 2001-01-01 00:00:00 UTC, the form the log stores; NaN without a moment.
    double secondsSinceReferenceDate() const;

    // "[<medium date and time in the user's locale>] BROWSER: <message>"
    QString description() const;
    QString description(const QLocale &locale) const;
};
