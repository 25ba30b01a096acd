#pragma once

#include <QDateTime>

#include <optional>

// Moments as the log stores them: seconds since 2001-01-01 00:00:00 UTC.
namespace ReferenceDate {

// 2001-01-01 00:00:00 UTC in milliseconds since 1970.
inline constexpr qint64 epochOffsetMSecs = 978307200000LL;

double secondsFrom(const QDateTime &moment);

// The moment to the millisecond; nothing for values no QDateTime can hold.
std::optional<QDateTime> momentFrom(double seconds);

// Milliseconds since 1970 without rounding, as ICU counts them.
inline double unixMSecsFrom(double seconds)
{
    return seconds * 1000.0 + static_cast<double>(epochOffsetMSecs);
}

} // namespace ReferenceDate
