#include "app/VandorelApp.h"
#include "core/guard/StatusReport.h"
#include "core/settings/SettingsStore.h"
#include "core/support/Console.h"
#include "platform/PlatformBackend.h"

#include "BuildConfig.h"

#include <QApplication>
#include <QCoreApplication>

#include <cstdio>

namespace {

// `vandorel --status`: what the guards would see now, as JSON on standard output,
// without writing anything or claiming the single-instance lock.
int printStatus(int argc, char **argv)
{
    QCoreApplication core(argc, argv);
    Console::toStandardError();
    SettingsStore settings(SettingsStore::defaultFilePath());
    const auto handlers = PlatformBackend::createHandlerDatabase();
    const QByteArray json = StatusReport::build(settings, *handlers);
    std::fwrite(json.constData(), 1, static_cast<size_t>(json.size()), stdout);
    std::fflush(stdout);
    return 0;
}

bool hasArgument(int argc, char **argv, const char *name)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], name) == 0)
            return true;
    }
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    if (hasArgument(argc, argv, "--status"))
        return printStatus(argc, argv);

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vandorel"));
    QApplication::setDesktopFileName(QString::fromUtf8(BuildConfig::appId));
    QApplication::setQuitOnLastWindowClosed(false);

    VandorelApp::Options options;
    options.launchedAtLogin = hasArgument(argc, argv, "--login");
    VandorelApp app(options);
    return QApplication::exec();
}
