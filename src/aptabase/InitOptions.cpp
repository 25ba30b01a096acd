#include "aptabase/InitOptions.h"

InitOptions::InitOptions(std::optional<QString> host, std::optional<double> flushInterval,
                         const TrackingMode &trackingMode)
    : m_host(std::move(host)), m_flushInterval(flushInterval), m_trackingMode(&trackingMode)
{
}
