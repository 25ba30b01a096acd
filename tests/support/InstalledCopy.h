#pragma once

#include "ProgramRun.h"

#include <QString>
#include <QTemporaryDir>

// The program as the build's install rules lay it out, in a temporary prefix that goes
// with the object.
class InstalledCopy {
public:
    explicit InstalledCopy(const QString &buildDir)
    {
        const ProgramRun install =
            runProgram("cmake", {"--install", buildDir, "--prefix", m_prefix.path()}, 120000, true);
        m_installed = install.succeeded();
        m_log = install.out;
    }

    bool isInstalled() const { return m_installed; }
    const QByteArray &log() const { return m_log; }
    QString path(const QString &relative = {}) const
    {
        return relative.isEmpty() ? m_prefix.path() : m_prefix.path() + u'/' + relative;
    }

private:
    QTemporaryDir m_prefix;
    bool m_installed = false;
    QByteArray m_log;
};
