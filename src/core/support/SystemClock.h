#pragma once

#include "core/support/Clock.h"

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};
