#pragma once

class BrowserManager;
class Clock;
class EmailClientManager;
class LanguageManager;
class LogManager;
class LoginItem;
class ModalPrompter;
class SettingsStore;
class Telemetry;
class TimerFactory;
class UpdateManager;
class UpdateSheetPresenter;
class WindowRouter;

// The services every window root and page is handed, wired once at start-up (or by a
// test). Plain pointers: the objects outlive every view.
struct ViewEnvironment {
    LanguageManager *language = nullptr;
    SettingsStore *settings = nullptr;
    TimerFactory *timers = nullptr;
    Clock *clock = nullptr;
    ModalPrompter *prompter = nullptr;
    WindowRouter *router = nullptr;
    Telemetry *telemetry = nullptr;
    LogManager *log = nullptr;
    UpdateManager *updates = nullptr;
    UpdateSheetPresenter *updateSheet = nullptr;
    LoginItem *loginItem = nullptr;
    BrowserManager *browserManager = nullptr;
    EmailClientManager *emailClientManager = nullptr;
};
