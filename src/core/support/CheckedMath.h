#pragma once

#include <QtGlobal>

// Counters must never wrap: an overflow is a programming fault and stops the process.
inline qint64 checkedIncrement(qint64 value)
{
    qint64 result = 0;
    if (__builtin_add_overflow(value, qint64{1}, &result))
        qFatal("Fatal error: arithmetic overflow");
    return result;
}
