#pragma once

class AlertPresenter;
class Clock;
class HandlerDatabase;
class SettingsStore;
class TimerFactory;

// The services a guard works with, wired once at start-up (or by a test).
struct GuardEnvironment {
    SettingsStore *settings = nullptr;
    HandlerDatabase *handlers = nullptr;
    Clock *clock = nullptr;
    TimerFactory *timers = nullptr;
    AlertPresenter *alerts = nullptr;
    // The program was started by the login mechanism (the autostart entry's --login).
    bool launchedAtLogin = false;
};
