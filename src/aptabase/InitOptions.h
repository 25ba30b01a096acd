#pragma once

#include "aptabase/TrackingMode.h"

#include <QString>

#include <optional>

// Options of Aptabase::initialize; immutable once built, and every argument must be given.
class InitOptions {
public:
    InitOptions(std::optional<QString> host, std::optional<double> flushInterval,
                const TrackingMode &trackingMode);

    // Base address of a self-hosted server; only the "SH" region looks at it.
    const std::optional<QString> &host() const { return m_host; }
    // Seconds between flushes; absent means the client's default.
    std::optional<double> flushInterval() const { return m_flushInterval; }
    const TrackingMode &trackingMode() const { return *m_trackingMode; }

private:
    std::optional<QString> m_host;
    std::optional<double> m_flushInterval;
    const TrackingMode *m_trackingMode;
};
