#pragma once

#include "ConsoleCapture.h"
#include "EnglishTexts.h"
#include "FakeClock.h"
#include "FakeHandlerDatabase.h"
#include "FakeTimerFactory.h"
#include "RecordingTelemetry.h"
#include "ScriptedPrompter.h"
#include "TempSettings.h"
#include "core/changelog/LogManager.h"
#include "core/guard/Browser.h"
#include "core/guard/EmailClient.h"
#include "core/guard/GuardEnvironment.h"
#include "platform/SystemEvents.h"

#include <QTest>

#include <chrono>

using namespace std::chrono_literals;

// A machine for the guard's cycle; clock and timers move only when told.
// Browsers: firefox-esr "Firefox", chromium "Chromium", epiphany "Web".
// Mail:     thunderbird "Thunderbird", evolution "Evolution".
struct GuardWorld {
    static constexpr std::chrono::milliseconds tenMinutes = 600s;
    static constexpr std::chrono::milliseconds pollPeriod = 1s;
    // The buttons of the change alert.
    static constexpr int changeBack = 0;
    static constexpr int keep = 1;

    static Browser firefox() { return Browser("Firefox", "firefox-esr"); }
    static EmailClient thunderbird() { return EmailClient("Thunderbird", "thunderbird"); }

    TempSettings settings;
    FakeHandlerDatabase handlers;
    FakeClock clock;
    FakeTimerFactory timers;
    ScriptedPrompter alerts;
    SystemEvents events;
    LogManager log{settings.store(), clock};
    RecordingTelemetry telemetry;
    EnglishTexts texts;

    GuardWorld()
    {
        for (const auto &[id, name] : {std::pair("firefox-esr", "Firefox"),
                                       {"chromium", "Chromium"},
                                       {"epiphany", "Web"},
                                       {"thunderbird", "Thunderbird"},
                                       {"evolution", "Evolution"}})
            handlers.install(id, QString(name));
        browsersDefault("firefox-esr");
        mailDefault("thunderbird");
    }
    GuardEnvironment environment()
    {
        return {&settings.store(), &handlers, &clock, &timers, &alerts, &log,
                &telemetry,        &texts,    &events};
    }

    // Another program takes the role over; the other browsers follow it.
    void browsersDefault(const QString &identifier)
    {
        QStringList order{identifier};
        for (const char *id : {"firefox-esr", "chromium", "epiphany"})
            if (identifier != QLatin1String(id))
                order.append(id);
        handlers.setHandlers("https", order);
        handlers.setHandlers("http", order);
    }
    void mailDefault(const QString &identifier) { handlers.setHandlers("mailto", {identifier}); }

    int tick() { return timers.fire(tenMinutes); }
    void poll(int count = 1)
    {
        for (int i = 0; i < count; ++i)
            timers.fire(pollPeriod);
    }
    FakeTimer *pollingTimer() const
    {
        const auto running = timers.activeWithInterval(pollPeriod);
        return running.isEmpty() ? nullptr : running.first();
    }
    // A change's system calls run on a worker; its hand-back starts the polling timer.
    [[nodiscard]] bool waitForPolling(int startsBefore = 0)
    {
        return QTest::qWaitFor([&] { return pollingStarts() > startsBefore && pollingTimer(); },
                               5000);
    }
    int pollingStarts() const
    {
        int starts = 0;
        for (FakeTimer *timer : timers.active())
            if (timer->interval() == pollPeriod)
                starts += timer->starts();
        return starts;
    }
    static void settle() { ScriptedPrompter::settle(); }
};
