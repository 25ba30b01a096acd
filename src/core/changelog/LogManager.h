#pragma once

#include "core/changelog/ChangeLogEntry.h"

#include <QList>
#include <QString>

class Clock;
class SettingsStore;

// The change log: at most 1000 records, newest first, kept as one JSON blob under
// SettingsTable::changeLog in the settings store. Nothing is held in memory: every operation
// starts from the store, so a reader always reads again.
class LogManager {
public:
    static constexpr qsizetype maxLogs = 1000;

    LogManager(SettingsStore &store, const Clock &clock);

    // The process-wide log over the standard store; a test may put its own in place.
    static LogManager &shared();
    static void setShared(LogManager *log);

    void logBrowserChange(const QString &from, const QString &to);
    void logEmailChange(const QString &from, const QString &to);
    // Newest first by timestamp; empty if the blob is absent or does not decode.
    QList<ChangeLogEntry> getAllLogs() const;
    void clearAllLogs();

private:
    void logChange(ChangeLogType type, const QString &message);
    void addLog(const ChangeLogEntry &entry);

    SettingsStore &m_store;
    const Clock &m_clock;
};
