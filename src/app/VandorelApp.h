#pragma once

#include "core/guard/GuardEnvironment.h"

#include <QObject>

#include <memory>

class AppDelegate;
class AppScenes;
class BrowserManager;
class Clock;
class DeviceFacts;
class EmailClientManager;
class HandlerDatabase;
class InstallLayout;
class LanguageManager;
class LoginItem;
class ModalPrompter;
class SingleInstance;
class SystemEvents;
class Telemetry;
class TimerFactory;
class UpdateSheetPresenter;
class UrlHandOver;

// Builds and wires the running program: refuses a second copy, starts the process-wide
// services, constructs both guards and hands the life-cycle call-backs to AppDelegate.
class VandorelApp : public QObject {
    Q_OBJECT
public:
    struct Options {
        bool launchedAtLogin = false;
        // A URL given on the command line, opened once the program runs.
        QString url;
    };

    explicit VandorelApp(const Options &options);
    ~VandorelApp() override;

    BrowserManager &browserManager() { return *m_browserManager; }
    EmailClientManager &emailClientManager() { return *m_emailClientManager; }
    // The process-wide language manager, made at start; windows and pages are handed it.
    LanguageManager &languageManager() { return *m_language; }
    Telemetry &telemetry() { return *m_telemetry; }
    AppScenes &scenes() { return *m_scenes; }

private:
    void ensureSingleInstance(const QString &url);
    // Opens the window a URL names; false, with nothing opened, for a URL it doesn't know.
    bool openWindowOf(const QString &url);
    void openUrl(const QString &url);
    void startAnalytics();
    void startUpdates();
    void showScenes();

    std::unique_ptr<SingleInstance> m_singleInstance;
    std::unique_ptr<DeviceFacts> m_deviceFacts;
    std::unique_ptr<InstallLayout> m_installLayout;
    std::unique_ptr<ModalPrompter> m_prompter;
    std::unique_ptr<UpdateSheetPresenter> m_updateSheet;
    std::unique_ptr<UrlHandOver> m_urlHandOver;
    std::unique_ptr<LoginItem> m_loginItem;
    std::unique_ptr<HandlerDatabase> m_handlers;
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<TimerFactory> m_timers;
    std::unique_ptr<SystemEvents> m_events;
    std::unique_ptr<Telemetry> m_telemetry;
    LanguageManager *m_language = nullptr;
    GuardEnvironment m_environment;
    std::unique_ptr<BrowserManager> m_browserManager;
    std::unique_ptr<EmailClientManager> m_emailClientManager;
    AppDelegate *m_delegate = nullptr;
    std::unique_ptr<AppScenes> m_scenes;
};
