#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

// How a program that the test ran to its end finished, and what it wrote; an exit code of -1
// when it did not finish (in time, or at all).
struct ProgramRun {
    int exitCode = -1;
    QByteArray out; // with the error output too, when merged
    QByteArray err;

    bool succeeded() const { return exitCode == 0; }
    QString text() const { return QString::fromUtf8(out); }
};

inline ProgramRun runProgram(const QString &program, const QStringList &arguments,
                             int timeoutMs = 60000, bool merged = false)
{
    QProcess process;
    if (merged)
        process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}
