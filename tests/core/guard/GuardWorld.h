#pragma once

#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "FakeHandlerDatabase.h"
#include "FakeTimerFactory.h"
#include "ScriptedAlertPresenter.h"
#include "TempSettings.h"
#include "core/changelog/LogManager.h"
#include "core/guard/GuardEnvironment.h"
#include "core/i18n/LanguageManager.h"
#include "platform/SystemEvents.h"

#include <QTest>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

// One machine for the guard's cycle: a settings file, a handler database with three
// browsers and two mail clients, a clock and timers that move only when told, the user
// in front of the alerts, the change log and the system events.
//
// Browsers: firefox-esr "Firefox", chromium "Chromium", epiphany "Web".
// Mail:     thunderbird "Thunderbird", evolution "Evolution".
struct GuardWorld {
    static constexpr std::chrono::milliseconds tenMinutes = 600s;
    static constexpr std::chrono::milliseconds pollPeriod = 1s;

    TempSettings settings;
    FakeHandlerDatabase handlers;
    FakeClock clock;
    FakeTimerFactory timers;
    ScriptedAlertPresenter alerts;
    SystemEvents events;
    LogManager log{settings.store(), clock};
    std::unique_ptr<LanguageManager> language;

    GuardWorld()
    {
        // English texts, whatever the machine's language.
        language = std::make_unique<LanguageManager>(settings.store(), timers, QStringList{"en"});
        LanguageManager::setShared(language.get());
        handlers.install("firefox-esr", QString("Firefox"));
        handlers.install("chromium", QString("Chromium"));
        handlers.install("epiphany", QString("Web"));
        handlers.install("thunderbird", QString("Thunderbird"));
        handlers.install("evolution", QString("Evolution"));
        browsersDefault("firefox-esr");
        mailDefault("thunderbird");
    }
    ~GuardWorld() { LanguageManager::setShared(nullptr); }

    GuardEnvironment environment()
    {
        GuardEnvironment env;
        env.settings = &settings.store();
        env.handlers = &handlers;
        env.clock = &clock;
        env.timers = &timers;
        env.alerts = &alerts;
        env.log = &log;
        env.events = &events;
        return env;
    }

    // Another program takes the role over (the other installed ones follow it).
    void browsersDefault(const QString &identifier)
    {
        QStringList order{identifier};
        for (const char *id : {"firefox-esr", "chromium", "epiphany"})
            if (identifier != QLatin1String(id))
                order.append(id);
        handlers.setHandlers("https", order);
        handlers.setHandlers("http", order);
    }
    void mailDefault(const QString &identifier)
    {
        handlers.setHandlers("mailto", {identifier});
    }

    // The monitoring timers of the default ten-minute interval fire once.
    int tick() { return timers.fire(tenMinutes); }
    // The change transaction's timers fire `count` times.
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
    // The system calls of a change run on a worker; wait for its hand-back to the main
    // thread, which starts the polling timer. Only the main thread's state is looked at.
    [[nodiscard]] bool waitForPolling(int startsBefore = 0)
    {
        return QTest::qWaitFor([&] { return pollingStarts() > startsBefore && pollingTimer(); }, 5000);
    }
    int pollingStarts() const
    {
        int starts = 0;
        for (FakeTimer *timer : timers.active())
            if (timer->interval() == pollPeriod)
                starts += timer->starts();
        return starts;
    }
    // Queued alerts go on screen.
    static void settle() { ScriptedAlertPresenter::settle(); }
};
