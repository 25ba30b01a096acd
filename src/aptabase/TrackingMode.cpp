#include "aptabase/TrackingMode.h"

const TrackingMode &TrackingMode::asDebug()
{
    static const TrackingMode mode(0);
    return mode;
}

const TrackingMode &TrackingMode::asRelease()
{
    static const TrackingMode mode(1);
    return mode;
}

const TrackingMode &TrackingMode::readFromEnvironment()
{
    static const TrackingMode mode(2);
    return mode;
}
