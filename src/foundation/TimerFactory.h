#pragma once

#include "foundation/Timer.h"

#include <chrono>
#include <functional>

class TimerFactory {
public:
    virtual ~TimerFactory() = default;

    // A stopped timer owned by `parent`.
    virtual Timer *createTimer(QObject *parent) = 0;

    // Runs `work` once after `delay` on the main thread, unless `context` is gone by then.
    void singleShot(std::chrono::milliseconds delay, QObject *context, std::function<void()> work);
};
