#pragma once

#include "core/changelog/ChangeLogEntry.h"

#include <QList>
#include <QString>

class Clock;
class SettingsStore;

// The change log: at most 1000 records, newest first, kept as one JSON blob under
// "VandorelLogs" in the settings store.
class LogManager {
public:
    LogManager(SettingsStore &store, const Clock &clock);

    // The process-wide log over the standard store; a test may put its own in place.
    static LogManager &shared();
    static void setShared(LogManager *log);

    void logBrowserChange(const QString &from, const QString &to);
    void logEmailChange(const QString &from, const QString &to);
    QList<ChangeLogEntry> getAllLogs() const;
    void clearAllLogs();

private:
    void addLog(const ChangeLogEntry &entry);

    SettingsStore &m_store;
    const Clock &m_clock;
};
