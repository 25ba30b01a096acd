#include "app/CommandLine.h"

#include <QCommandLineOption>

CommandLine::CommandLine(const QStringList &arguments)
{
    m_parser.setApplicationDescription(
        QStringLiteral("Keeps your chosen default web browser and mail client in place."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and exit."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version and exit."));
    const QCommandLineOption status(
        QStringLiteral("status"),
        QStringLiteral("Print what the guards would see now, as JSON, and exit. Writes nothing."));
    const QCommandLineOption login(QStringLiteral("login"),
                                   QStringLiteral("Count this start as a start at login."));
    m_parser.addOptions({help, version, status, login});
    m_parser.addPositionalArgument(
        QStringLiteral("url"),
        QStringLiteral("vandorel://settings or vandorel://about: open that window, in the copy "
                       "that already runs if there is one."),
        QStringLiteral("[url]"));

    if (!m_parser.parse(arguments)) {
        m_mode = Mode::Invalid;
        m_errorText = m_parser.errorText();
        return;
    }
    const QStringList positional = m_parser.positionalArguments();
    if (positional.size() > 1) {
        m_mode = Mode::Invalid;
        m_errorText = QStringLiteral("Only one URL may be given.");
        return;
    }
    m_url = positional.value(0);
    m_launchedAtLogin = m_parser.isSet(login);
    if (m_parser.isSet(help))
        m_mode = Mode::Help;
    else if (m_parser.isSet(version))
        m_mode = Mode::Version;
    else if (m_parser.isSet(status))
        m_mode = Mode::Status;
}

QString CommandLine::helpText() const
{
    return m_parser.helpText();
}

QString CommandLine::usageLine() const
{
    return helpText().section(u'\n', 0, 0);
}
