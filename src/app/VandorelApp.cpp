#include "app/VandorelApp.h"

#include "app/AppDelegate.h"
#include "app/AppScenes.h"
#include "core/changelog/LogManager.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "core/settings/SettingsMigration.h"
#include "core/settings/SettingsStore.h"
#include "core/support/SystemClock.h"
#include "core/telemetry/AptabaseManager.h"
#include "core/telemetry/AptabaseTelemetry.h"
#include "core/updates/UpdateManager.h"
#include "foundation/Console.h"
#include "foundation/QtTimerFactory.h"
#include "platform/PlatformBackend.h"
#include "ui/MessageBoxPrompter.h"
#include "ui/UpdateSheetDialogPresenter.h"

#include "aptabase/Aptabase.h"

#include "BuildConfig.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTimer>
#include <QUrl>

#include <cstdlib>

VandorelApp::VandorelApp(const Options &options)
{
    ensureSingleInstance(options.url);
    SettingsMigration::run(SettingsStore::standard());
    startAnalytics();
    // Events wait in the queue until a window of ours first becomes active.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    Aptabase::shared().startPolling();
            });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [] { Aptabase::shared().stopPolling(); });
    m_telemetry = std::make_unique<AptabaseTelemetry>();
    m_language = &LanguageManager::shared();
    m_prompter = std::make_unique<MessageBoxPrompter>();
    startUpdates();

    m_handlers = PlatformBackend::createHandlerDatabase();
    m_handlers->setDiagnostics(&Console::line);
    m_clock = std::make_unique<SystemClock>();
    m_timers = std::make_unique<QtTimerFactory>();
    m_events = PlatformBackend::createSystemEvents();
    m_environment.settings = &SettingsStore::standard();
    m_environment.handlers = m_handlers.get();
    m_environment.clock = m_clock.get();
    m_environment.timers = m_timers.get();
    m_environment.events = m_events.get();
    m_environment.alerts = m_prompter.get();
    m_environment.log = &LogManager::shared();
    m_environment.telemetry = m_telemetry.get();
    m_environment.texts = m_language;
    m_environment.launchedAtLogin = options.launchedAtLogin;
    m_environment.changeWatchers = &PlatformBackend::createHandlerChangeWatcher;

    m_delegate = new AppDelegate(this);
    m_browserManager = std::make_unique<BrowserManager>(m_environment);
    m_emailClientManager = std::make_unique<EmailClientManager>(m_environment);
    showScenes();

    QTimer::singleShot(0, m_delegate, &AppDelegate::applicationDidFinishLaunching);
    connect(qApp, &QCoreApplication::aboutToQuit, m_delegate,
            &AppDelegate::applicationWillTerminate);
    if (!options.url.isEmpty())
        QTimer::singleShot(0, this, [this, url = options.url] { openUrl(url); });
}

VandorelApp::~VandorelApp() = default;

// The analytics client learns the build's hosts and versions and the platform's facts here;
// it knows nothing of this program by itself.
void VandorelApp::startAnalytics()
{
    m_deviceFacts = PlatformBackend::createDeviceFacts();
    EnvironmentInfo env;
    env.isDebug = BuildConfig::debugBuild;
    env.osName = m_deviceFacts->osName();
    env.osVersion = m_deviceFacts->osVersion();
    env.locale = EnvironmentInfo::systemLanguage();
    env.appVersion = QString::fromUtf8(BuildConfig::appVersion);
    env.appBuildNumber = QString::fromUtf8(BuildConfig::buildNumber);
    env.deviceModel = m_deviceFacts->deviceModel();
    // Process-wide from here on, as the shared client is: it may still be flushing at exit.
    Aptabase::setShared(new Aptabase(env, {QString::fromUtf8(BuildConfig::analyticsUsHost),
                                           QString::fromUtf8(BuildConfig::analyticsEuHost)}));
    AptabaseManager::setDeviceFacts(m_deviceFacts.get());
    AptabaseManager::shared();
}

void VandorelApp::startUpdates()
{
    m_installLayout = PlatformBackend::createInstallLayout();
    m_updateSheet = std::make_unique<UpdateSheetDialogPresenter>();
    UpdateManager::Options updates = UpdateManager::defaultOptions();
    updates.install = m_installLayout.get();
    updates.sheet = m_updateSheet.get();
    updates.prompter = m_prompter.get();
    updates.language = m_language;
    // Process-wide from here on, as the shared manager is.
    UpdateManager::setShared(new UpdateManager(updates));
}

// The tray icon reads both guards, so they work whether or not a window ever opens.
void VandorelApp::showScenes()
{
    ViewEnvironment views;
    views.language = m_language;
    views.settings = &SettingsStore::standard();
    views.timers = m_timers.get();
    views.clock = m_clock.get();
    views.prompter = m_prompter.get();
    views.telemetry = m_telemetry.get();
    views.log = &LogManager::shared();
    views.updates = &UpdateManager::shared();
    views.updateSheet = m_updateSheet.get();
    m_loginItem = PlatformBackend::createLoginItem(QString::fromUtf8(BuildConfig::appId));
    views.loginItem = m_loginItem.get();
    views.browserManager = m_browserManager.get();
    views.emailClientManager = m_emailClientManager.get();
    m_scenes = std::make_unique<AppScenes>(views);
    m_scenes->start();
}

// A later copy hands a URL it was given to the copy that runs and ends; a URL the running
// copy doesn't know is ignored, and the later copy ends as a plain second start does.
void VandorelApp::ensureSingleInstance(const QString &url)
{
    const QString appId = QString::fromUtf8(BuildConfig::appId);
    m_singleInstance = PlatformBackend::createSingleInstance(appId);
    m_urlHandOver = PlatformBackend::createUrlHandOver(appId);
    if (m_singleInstance->claim()) {
        m_urlHandOver->listen([this](const QString &handed) { return openWindowOf(handed); });
        return;
    }
    if (!url.isEmpty()) {
        const UrlHandOver::Result result = m_urlHandOver->handOver(url);
        if (result == UrlHandOver::Result::opened)
            std::exit(0);
        if (result == UrlHandOver::Result::refused)
            Console::line(u"⚠️ Unknown URL: " + url);
    }
    Console::line(QStringLiteral("⚠️ Another instance is already running. Exiting..."));
    std::exit(0);
}

void VandorelApp::openUrl(const QString &url)
{
    if (!openWindowOf(url))
        Console::line(u"⚠️ Unknown URL: " + url);
}

bool VandorelApp::openWindowOf(const QString &url)
{
    return m_scenes && m_scenes->openUrl(QUrl(url));
}
