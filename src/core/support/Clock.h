#pragma once

#include <QDateTime>

// The one source of "now", so snoozes, sessions and the end of the day are testable.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};
