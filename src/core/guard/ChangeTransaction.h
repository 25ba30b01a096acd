#pragma once

#include "core/guard/HandlerRecord.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <optional>

class HandlerDatabase;
class Timer;
class TimerFactory;
struct GuardProfile;

// One change of a guard's default: the system is asked on a worker (its calls may block),
// then the default is read once a second until it is the target, or for at most a minute.
// The worker never outlives the transaction: destroying it waits for a write under way, so
// the handler database only has to outlive the transaction.
class ChangeTransaction : public QObject {
    Q_OBJECT
public:
    using DefaultReader = std::function<std::optional<HandlerRecord>()>;

    // `lastRead` gives the default as it was last read, without asking the system;
    // `read` asks the system once and gives what it answered.
    ChangeTransaction(const GuardProfile &profile, HandlerDatabase &handlers, TimerFactory &timers,
                      DefaultReader lastRead, DefaultReader read, QObject *parent = nullptr);
    ~ChangeTransaction() override;

    // Asks the system to make `target` the default and returns at once. Once the system
    // has answered, watching starts afresh from the default as last read, replacing any
    // watch still running.
    void start(const HandlerRecord &target);
    // Stops watching; a hand-back still to come starts a watch of its own.
    void cancel();
    bool isWatching() const;

Q_SIGNALS:
    // The default became the target; `from` is the default it replaced.
    void switched(const HandlerRecord &from, const HandlerRecord &to);
    // Watching ended: the target was seen, the minute passed, or the user cancelled.
    void ended();

private:
    void write(const HandlerRecord &target);
    void watch(const HandlerRecord &target);
    void poll();

    const GuardProfile &m_profile;
    HandlerDatabase &m_handlers;
    DefaultReader m_lastRead;
    DefaultReader m_read;
    Timer *m_timer = nullptr;
    QThreadPool m_writer;

    int m_pollCount = 0;
    std::optional<HandlerRecord> m_previous;
    std::optional<HandlerRecord> m_target;
};
