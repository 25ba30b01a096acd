#pragma once

#include <QObject>

#include <chrono>

// A main-thread timer. Made only through a TimerFactory so tests can fire it.
class Timer : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void start(std::chrono::milliseconds interval, bool repeating) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;
    virtual std::chrono::milliseconds interval() const = 0;

Q_SIGNALS:
    void timeout();
};
