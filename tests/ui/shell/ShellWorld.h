#pragma once

#include "FakeLoginItem.h"
#include "GuardWorld.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "ui/ViewEnvironment.h"
#include "ui/WindowRouter.h"

#include <QStringList>
#include <QTest>

#include <memory>

// Both guards over a GuardWorld (current defaults Firefox and Thunderbird) and the views'
// environment over them, with a router whose window requests are recorded and then handed
// to `opener`, if set.
struct ShellWorld {
    // What a guard is made to be: the first two work, the last two don't.
    enum class Mode { protected_, mismatch, notProtected, notProtectedMismatch };

    GuardWorld world;
    HandlerDatabase *handlers; // the world's fake one unless another is handed in
    LanguageManager language;
    BrowserManager browser{guardEnvironment()};
    EmailClientManager email{guardEnvironment()};
    QStringList openedWindows;
    std::function<void(const QString &)> opener;
    WindowRouter router{world.timers, [this](const QString &id) {
                            openedWindows << id;
                            if (opener)
                                opener(id);
                        }};
    FakeLoginItem loginItem;
    ViewEnvironment env;

    explicit ShellWorld(const QStringList &preferredLanguages = {QStringLiteral("en")},
                        HandlerDatabase *handlers = nullptr)
        : handlers(handlers ? handlers : &world.handlers),
          language(world.settings.store(), world.timers, preferredLanguages)
    {
        LanguageManager::setShared(&language);
        env.language = &language;
        env.settings = &world.settings.store();
        env.timers = &world.timers;
        env.clock = &world.clock;
        env.prompter = &world.alerts;
        env.telemetry = &world.telemetry;
        env.log = &world.log;
        env.router = &router;
        env.browserManager = &browser;
        env.emailClientManager = &email;
        env.loginItem = &loginItem;
    }

    ~ShellWorld() { LanguageManager::setShared(nullptr); }

    // The guards' texts follow the language, as in the program.
    GuardEnvironment guardEnvironment()
    {
        GuardEnvironment environment = world.environment();
        environment.texts = &language;
        environment.handlers = handlers;
        return environment;
    }

    // Targets Firefox (or Chromium, for a mismatch) with monitoring on or off.
    void setBrowser(Mode mode)
    {
        set(browser, mode, Browser("Firefox", "firefox-esr"), Browser("Chromium", "chromium"));
    }
    // Targets Thunderbird (or Evolution, for a mismatch).
    void setEmail(Mode mode)
    {
        set(email, mode, EmailClient("Thunderbird", "thunderbird"),
            EmailClient("Evolution", "evolution"));
    }

    void switchLanguage(AppLanguage language)
    {
        this->language.setCurrentLanguage(language);
        world.timers.fire(std::chrono::milliseconds(50));
    }
    QString text(const char *key) const { return language.localizedString(QLatin1String(key)); }

    // The page at the size the settings window gives it (or `size`), once it is on screen.
    template <typename Page>
    static std::unique_ptr<Page> shown(std::unique_ptr<Page> page, QSize size = {549, 550})
    {
        page->resize(size);
        page->show();
        static_cast<void>(QTest::qWaitForWindowExposed(page.get()));
        return page;
    }

private:
    static void set(HandlerGuard &guard, Mode mode, const HandlerRecord &current,
                    const HandlerRecord &other)
    {
        const bool mismatch = mode == Mode::mismatch || mode == Mode::notProtectedMismatch;
        guard.setTarget(mismatch ? other : current);
        guard.setMonitoringEnabled(mode == Mode::protected_ || mode == Mode::mismatch);
        GuardWorld::settle();
    }
};
