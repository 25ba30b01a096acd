#include "platform/freedesktop/LockFileSingleInstance.h"

#include "foundation/AbandonedLockFile.h"

#include <QDir>
#include <QStandardPaths>

LockFileSingleInstance::LockFileSingleInstance(const QString &appId) : m_appId(appId) {}

QString LockFileSingleInstance::lockPath(const QString &appId)
{
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty())
        dir = QDir::tempPath();
    return dir + u'/' + appId + u".lock";
}

bool LockFileSingleInstance::claim()
{
    // Without a holder's name, the lock would count as held for ever.
    removeAbandonedLockFile(lockPath(m_appId));
    m_lock = std::make_unique<QLockFile>(lockPath(m_appId));
    m_lock->setStaleLockTime(0); // only a dead owner makes a lock stale, never its age
    return m_lock->tryLock(0);
}
