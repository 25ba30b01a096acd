#include "core/changelog/ReferenceDate.h"

#include <cmath>

namespace ReferenceDate {

double secondsFrom(const QDateTime &moment)
{
    return static_cast<double>(moment.toMSecsSinceEpoch() - epochOffsetMSecs) / 1000.0;
}

std::optional<QDateTime> momentFrom(double seconds)
{
    // About ±285,000 years: far inside both qint64 milliseconds and QDateTime's range.
    constexpr double limit = 9e12;
    if (!std::isfinite(seconds) || std::fabs(seconds) > limit)
        return std::nullopt;
    const auto msecs = static_cast<qint64>(std::llround(seconds * 1000.0));
    return QDateTime::fromMSecsSinceEpoch(msecs + epochOffsetMSecs, Qt::UTC);
}

} // namespace ReferenceDate
