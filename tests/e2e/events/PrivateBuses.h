#pragma once

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <signal.h>
#include <sys/types.h>

// A private session bus and a private system-like bus, started with dbus-daemon and
// ended with the object. The addresses are exported so the process's own default
// connections reach them; create this before anything touches D-Bus.
class PrivateBuses {
public:
    PrivateBuses()
    {
        const QString config = m_dir.path() + u"/system.conf";
        QFile file(config);
        if (file.open(QIODevice::WriteOnly)) {
            QTextStream(&file)
                << "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                   "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                << "<busconfig><type>system</type><listen>unix:path=" << m_dir.path()
                << "/system.sock</listen><auth>EXTERNAL</auth>"
                << "<policy context=\"default\"><allow own=\"*\"/><allow send_destination=\"*\"/>"
                << "<allow receive_sender=\"*\"/><allow user=\"*\"/></policy></busconfig>\n";
        }
        m_system = start({QStringLiteral("--config-file=") + config});
        m_session = start({QStringLiteral("--session")});
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_system.address.toUtf8());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_session.address.toUtf8());
    }
    ~PrivateBuses()
    {
        for (qint64 pid : {m_system.pid, m_session.pid}) {
            if (pid <= 0)
                continue;
            ::kill(static_cast<pid_t>(pid), SIGTERM);
            // Let it go before its socket's folder is removed.
            static_cast<void>(
                QTest::qWaitFor([pid] { return ::kill(static_cast<pid_t>(pid), 0) != 0; }, 1000));
        }
    }

    bool isRunning() const { return !m_system.address.isEmpty() && !m_session.address.isEmpty(); }
    QString systemAddress() const { return m_system.address; }
    QString sessionAddress() const { return m_session.address; }

private:
    struct Daemon {
        QString address;
        qint64 pid = 0;
    };

    static Daemon start(QStringList arguments)
    {
        arguments << QStringLiteral("--fork") << QStringLiteral("--print-address=1")
                  << QStringLiteral("--print-pid=1");
        QProcess process;
        process.start(QStringLiteral("dbus-daemon"), arguments);
        if (!process.waitForFinished(10000))
            return {};
        const QStringList lines =
            QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        if (lines.size() < 2)
            return {};
        return {lines.at(0).trimmed(), lines.at(1).trimmed().toLongLong()};
    }

    QTemporaryDir m_dir;
    Daemon m_system;
    Daemon m_session;
};
