#pragma once

#include "platform/SingleInstance.h"

#include <QLockFile>
#include <QString>

#include <memory>

// One copy per application id: a lock file named after the id in the runtime directory.
// A lock left by a copy that died is taken over.
class LockFileSingleInstance final : public SingleInstance {
public:
    explicit LockFileSingleInstance(const QString &appId);

    bool claim() override;
    static QString lockPath(const QString &appId);

private:
    QString m_appId;
    std::unique_ptr<QLockFile> m_lock;
};
