#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

// A private X server for one test: Xvfb on a display number it picks itself (-displayfd,
// so tests and engineers running at once never collide), with key auto-repeat off.
// DISPLAY names it while the object lives; the server ends with the object.
class XvfbDisplay {
public:
    XvfbDisplay()
    {
        m_server.start(
            "Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-r"});
        QByteArray number;
        while (!number.contains('\n') && m_server.waitForReadyRead(20000))
            number += m_server.readAllStandardOutput();
        if (number.trimmed().isEmpty())
            return;
        m_name = u':' + QString::fromLatin1(number.trimmed());
        if (qEnvironmentVariableIsSet("DISPLAY"))
            m_saved = qgetenv("DISPLAY");
        qputenv("DISPLAY", m_name.toLatin1());
    }
    ~XvfbDisplay()
    {
        if (m_saved)
            qputenv("DISPLAY", *m_saved);
        else
            qunsetenv("DISPLAY");
        m_server.terminate();
        m_server.waitForFinished(5000);
    }
    XvfbDisplay(const XvfbDisplay &) = delete;
    XvfbDisplay &operator=(const XvfbDisplay &) = delete;

    bool isRunning() const { return !m_name.isEmpty(); }

private:
    QProcess m_server;
    QString m_name;
    std::optional<QByteArray> m_saved;
};
