#pragma once

#include <QCoreApplication>

// Runs what is ready in the event loop, and what that posts in turn, a few rounds deep:
// queued calls, deferred deletions, data already on a socket. It never waits for time.
inline void settle()
{
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}
