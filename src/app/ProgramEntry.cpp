// The windowed program's entry, exported from its module (see platform/ProgramModule.h).
#include "app/VandorelApp.h"
#include "platform/PlatformBackend.h"
#include "platform/ProgramModule.h"

#include "BuildConfig.h"

#include <QApplication>

extern "C" Q_DECL_EXPORT int vandorelRunProgram(int argc, char **argv, bool launchedAtLogin,
                                                const char *url)
{
    static_assert(std::is_same_v<decltype(&vandorelRunProgram), ProgramModule::Run>);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vandorel"));
    QApplication::setDesktopFileName(QString::fromUtf8(BuildConfig::appId));
    QApplication::setQuitOnLastWindowClosed(false);
    // Logout, Ctrl+C and a closed terminal end the program as a quit does.
    const auto quitRequests = PlatformBackend::createQuitRequests();
    QObject::connect(quitRequests.get(), &QuitRequests::quitRequested, &application,
                     &QCoreApplication::quit);

    VandorelApp::Options options;
    options.launchedAtLogin = launchedAtLogin;
    options.url = QString::fromUtf8(url);
    VandorelApp app(options);
    return QApplication::exec();
}
