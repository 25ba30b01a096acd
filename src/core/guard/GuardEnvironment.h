#pragma once

#include <functional>
#include <memory>

class Clock;
class HandlerChangeWatcher;
class HandlerDatabase;
class LogManager;
class ModalPrompter;
class SettingsStore;
class SystemEvents;
class Telemetry;
class TextLookup;
class TimerFactory;

// The services a guard works with, wired once at start-up (or by a test).
struct GuardEnvironment {
    SettingsStore *settings = nullptr;
    HandlerDatabase *handlers = nullptr;
    Clock *clock = nullptr;
    TimerFactory *timers = nullptr;
    ModalPrompter *alerts = nullptr; // the change alerts
    LogManager *log = nullptr;
    Telemetry *telemetry = nullptr;    // required
    const TextLookup *texts = nullptr; // the alert's texts; required when there are alerts
    SystemEvents *events = nullptr;    // may be absent: no event then runs a check
    // The program was started by the login mechanism (the autostart entry's --login).
    bool launchedAtLogin = false;
    // Makes a watcher of the files that decide a default; may be absent: only the interval
    // then finds a change.
    std::function<std::unique_ptr<HandlerChangeWatcher>()> changeWatchers = nullptr;
};
