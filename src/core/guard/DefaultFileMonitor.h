#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <chrono>
#include <memory>

class HandlerChangeWatcher;
class Timer;
class TimerFactory;

// Tells a guard at once when a file that decides its default has changed, rather than at
// its next tick. File events settle for a moment first, so a burst of them is one change,
// and a change that leaves the deciding files' contents as they were is none.
class DefaultFileMonitor : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds settleDelay{200};

    DefaultFileMonitor(std::unique_ptr<HandlerChangeWatcher> watcher, TimerFactory &timers,
                       QStringList schemes, QObject *parent = nullptr);
    ~DefaultFileMonitor() override;

    // Watches the files that decide the schemes' default and hold these applications'
    // entries. What the files hold when watching starts, or when other identifiers are
    // given, is what later changes are measured against.
    void watch(const QStringList &identifiers);
    void stop();
    bool isWatching() const;

Q_SIGNALS:
    void changed();

private:
    void touched();
    void settled();

    std::unique_ptr<HandlerChangeWatcher> m_watcher;
    Timer *m_settle = nullptr;
    QStringList m_schemes;
    QStringList m_identifiers;
    QByteArray m_digest;
};
