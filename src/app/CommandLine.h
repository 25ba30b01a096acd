#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

// The program's command line: what it was asked to do, read without touching anything
// else, so that help, version and a mistyped option never start the program.
class CommandLine {
public:
    enum class Mode { Run, Help, Version, Status, Invalid };

    explicit CommandLine(const QStringList &arguments);

    Mode mode() const { return m_mode; }
    bool launchedAtLogin() const { return m_launchedAtLogin; }
    // The URL argument as given, empty when there is none.
    QString url() const { return m_url; }
    // Why the arguments were refused (Invalid only).
    QString errorText() const { return m_errorText; }

    // The help's texts name the program as it was started, so they need the application
    // object; ask for them once it exists.
    QString helpText() const;
    QString usageLine() const;

private:
    QCommandLineParser m_parser;
    Mode m_mode = Mode::Run;
    bool m_launchedAtLogin = false;
    QString m_url;
    QString m_errorText;
};
