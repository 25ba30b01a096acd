#pragma once

#include <QString>

// Removes the lock file at `path` when it names no holder: what a process killed between
// creating its lock file and writing itself into it leaves behind. QLockFile would take such
// a file for a live holder until it is old enough to count as stale, or for ever where age
// never makes a lock stale. A holder that is alive keeps its file locked, so it stays.
void removeAbandonedLockFile(const QString &path);
