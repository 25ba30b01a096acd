#include "core/changelog/LogManager.h"

#include "core/changelog/ChangeLogCodec.h"
#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "core/support/SystemClock.h"
#include "foundation/Console.h"

#include <algorithm>
#include <utility>

namespace {

LogManager *g_shared = nullptr;

} // namespace

LogManager::LogManager(SettingsStore &store, const Clock &clock) : m_store(store), m_clock(clock) {}

LogManager &LogManager::shared()
{
    if (!g_shared) {
        static const SystemClock clock;
        g_shared = new LogManager(SettingsStore::standard(), clock);
    }
    return *g_shared;
}

void LogManager::setShared(LogManager *log)
{
    g_shared = log;
}

void LogManager::logBrowserChange(const QString &from, const QString &to)
{
    logChange(ChangeLogType::browser, u"Browser changed from " + from + u" to " + to);
}

void LogManager::logEmailChange(const QString &from, const QString &to)
{
    logChange(ChangeLogType::email, u"Email client changed from " + from + u" to " + to);
}

void LogManager::logChange(ChangeLogType type, const QString &message)
{
    ChangeLogEntry entry;
    entry.type = type;
    entry.message = message;
    entry.timestamp = m_clock.now();
    addLog(entry);
    Console::line(u"📝 Log: " + entry.message);
}

QList<ChangeLogEntry> LogManager::getAllLogs() const
{
    const auto bytes = m_store.value(SettingsTable::changeLog);
    if (!bytes)
        return {};
    const auto entries = ChangeLogCodec::decode(*bytes);
    if (!entries)
        return {};
    // Each moment is worked out once; the sort is stable, so records of the same
    // moment keep their stored order.
    QList<std::pair<double, qsizetype>> order;
    order.reserve(entries->size());
    for (qsizetype i = 0; i < entries->size(); ++i)
        order.append({entries->at(i).secondsSinceReferenceDate(), i});
    std::stable_sort(order.begin(), order.end(),
                     [](const auto &a, const auto &b) { return a.first > b.first; });
    QList<ChangeLogEntry> sorted;
    sorted.reserve(order.size());
    for (const auto &item : order)
        sorted.append(entries->at(item.second));
    return sorted;
}

void LogManager::clearAllLogs()
{
    m_store.remove(SettingsTable::changeLog);
    Console::line(QStringLiteral("🗑️ All logs cleared"));
}

void LogManager::addLog(const ChangeLogEntry &entry)
{
    // The new record goes first whatever its timestamp; the next read sorts it in.
    QList<ChangeLogEntry> entries = getAllLogs();
    entries.prepend(entry);
    if (entries.size() > maxLogs)
        entries.resize(maxLogs);
    if (const auto bytes = ChangeLogCodec::encode(entries))
        m_store.set(SettingsTable::changeLog, *bytes);
}
