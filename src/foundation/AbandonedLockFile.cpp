#include "foundation/AbandonedLockFile.h"

#include <QLockFile>

void removeAbandonedLockFile(const QString &path)
{
    QLockFile lock(path);
    qint64 pid = 0;
    QString hostname;
    QString application;
    if (!lock.getLockInfo(&pid, &hostname, &application))
        lock.removeStaleLockFile();
}
