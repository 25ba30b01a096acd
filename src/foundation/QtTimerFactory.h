#pragma once

#include "foundation/TimerFactory.h"

// Timers backed by QTimer on the calling thread's event loop.
class QtTimerFactory final : public TimerFactory {
public:
    Timer *createTimer(QObject *parent) override;
};
