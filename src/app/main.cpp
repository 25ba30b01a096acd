#include "app/CommandLine.h"
#include "core/guard/StatusReport.h"
#include "core/settings/SettingsStore.h"
#include "core/support/AppInfo.h"
#include "foundation/Console.h"
#include "platform/PlatformBackend.h"
#include "platform/ProgramModule.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

void write(FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

// `vandorel --status`: what the guards would see now, as JSON on standard output,
// without writing anything or claiming the single-instance lock. It needs no application
// object: no event loop, and the locale Qt assumes (UTF-8) is the one it writes.
int printStatus()
{
    Console::toStandardError();
    SettingsStore settings(SettingsStore::defaultFilePath());
    const auto handlers = PlatformBackend::createHandlerDatabase();
    write(stdout, StatusReport::build(settings, *handlers));
    return 0;
}

// Help, version and a refused command line are answered before anything of the program
// exists: no lock is claimed and no setting is written.
int answer(int argc, char **argv, const CommandLine &commandLine)
{
    QCoreApplication core(argc, argv);
    switch (commandLine.mode()) {
    case CommandLine::Mode::Help:
        write(stdout, commandLine.helpText().toUtf8());
        return 0;
    case CommandLine::Mode::Version:
        write(stdout, (u"Vandorel " + AppInfo::fullVersion() + u'\n').toUtf8());
        return 0;
    default:
        write(stderr, (commandLine.errorText() + u'\n' + commandLine.usageLine() + u'\n').toUtf8());
        return 2;
    }
}

} // namespace

int main(int argc, char **argv)
{
    const CommandLine commandLine(argumentsOf(argc, argv));
    if (commandLine.mode() == CommandLine::Mode::Status)
        return printStatus();
    if (commandLine.mode() != CommandLine::Mode::Run)
        return answer(argc, argv, commandLine);

    QString error;
    const ProgramModule::Run run = ProgramModule::load(&error);
    if (!run) {
        write(stderr, (u"Vandorel cannot start: " + error + u'\n').toUtf8());
        return 1;
    }
    return run(argc, argv, commandLine.launchedAtLogin(), commandLine.url().toUtf8().constData());
}
