#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// The program as the build's install rules lay it out, in a temporary prefix that goes
// with the object.
class InstalledCopy {
public:
    explicit InstalledCopy(const QString &buildDir)
    {
        QProcess install;
        install.setProcessChannelMode(QProcess::MergedChannels);
        install.start(QStringLiteral("cmake"), {QStringLiteral("--install"), buildDir,
                                                QStringLiteral("--prefix"), m_prefix.path()});
        m_installed = install.waitForFinished(120000)
                      && install.exitStatus() == QProcess::NormalExit && install.exitCode() == 0;
        m_log = install.readAll();
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
