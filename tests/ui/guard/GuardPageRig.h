#pragma once

#include "FakeClock.h"
#include "FakeTimerFactory.h"
#include "RecordingTelemetry.h"
#include "ScriptedPrompter.h"
#include "TempSettings.h"
#include "XdgTree.h"
#include "core/changelog/LogManager.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"
#include "ui/ViewEnvironment.h"
#include "ui/guard/BrowserSettingsView.h"
#include "ui/guard/EmailSettingsView.h"

#include <QComboBox>
#include <QTest>

#include <memory>

// Both guards over a temporary XDG tree with real desktop entries (Firefox and Chromium for
// web links, Thunderbird and Mailspring for mail, Firefox and Thunderbird the defaults),
// English texts, a clock and timers that the test moves, and prompts that the test answers.
struct GuardPageRig {
    XdgTree tree; // first: from here on the environment points into it
    TempSettings settings;
    FakeClock clock;
    FakeTimerFactory timers;
    ScriptedPrompter prompter;
    RecordingTelemetry telemetry;
    FreedesktopHandlerDatabase handlers;
    LogManager log{settings.store(), clock};
    LanguageManager language{settings.store(), timers, {"en"}};
    std::unique_ptr<BrowserManager> browser;
    std::unique_ptr<EmailClientManager> email;

    explicit GuardPageRig(bool mailClients = true)
    {
        LanguageManager::setShared(&language);
        const QByteArray web = "x-scheme-handler/http;x-scheme-handler/https;";
        entry("firefox", "Firefox", web);
        entry("chromium", "Chromium", web);
        QByteArray defaults = "[Default Applications]\nx-scheme-handler/http=firefox.desktop\n"
                              "x-scheme-handler/https=firefox.desktop\n";
        if (mailClients) {
            entry("thunderbird", "Thunderbird", "x-scheme-handler/mailto;");
            entry("mailspring", "Mailspring", "x-scheme-handler/mailto;");
            defaults += "x-scheme-handler/mailto=thunderbird.desktop\n";
        }
        tree.write(QStringLiteral("config/mimeapps.list"), defaults);
        tree.updateCaches();
        GuardEnvironment env;
        env.settings = &settings.store();
        env.handlers = &handlers;
        env.clock = &clock;
        env.timers = &timers;
        env.log = &log;
        env.telemetry = &telemetry;
        env.texts = &language;
        browser = std::make_unique<BrowserManager>(env);
        email = std::make_unique<EmailClientManager>(env);
    }
    ~GuardPageRig() { LanguageManager::setShared(nullptr); }

    // A launchable entry in the tree; call updateCaches() after adding one later.
    void entry(const QString &id, const QByteArray &name, const QByteArray &mimeTypes) const
    {
        const QString program = tree.stub(id);
        tree.write(u"share1/applications/" + id + u".desktop",
                   "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + program.toUtf8()
                       + " %u\nMimeType=" + mimeTypes + "\n");
    }

    GuardSettingsView::Services services() { return {language, clock, timers, prompter}; }
    // What the settings window hands its pages.
    ViewEnvironment viewEnvironment()
    {
        ViewEnvironment env;
        env.language = &language;
        env.settings = &settings.store();
        env.timers = &timers;
        env.clock = &clock;
        env.prompter = &prompter;
        env.telemetry = &telemetry;
        env.log = &log;
        env.browserManager = browser.get();
        env.emailClientManager = email.get();
        return env;
    }

    template <typename Page>
    std::unique_ptr<Page> shown(std::unique_ptr<Page> page) const
    {
        page->resize(700, 550);
        page->show();
        static_cast<void>(QTest::qWaitForWindowExposed(page.get()));
        return page;
    }
    std::unique_ptr<BrowserSettingsView> browserPage()
    {
        return shown(std::make_unique<BrowserSettingsView>(*browser, services()));
    }
    std::unique_ptr<EmailSettingsView> emailPage()
    {
        return shown(std::make_unique<EmailSettingsView>(*email, services()));
    }

    // The poll of the guard's running change, if it polls (the pages' own timers may also
    // tick once a second).
    FakeTimer *pollTimer(const HandlerGuard &guard) const
    {
        for (FakeTimer *timer : timers.activeWithInterval(std::chrono::seconds(1)))
            for (const QObject *owner = timer->parent(); owner; owner = owner->parent())
                if (owner == &guard)
                    return timer;
        return nullptr;
    }

    QString text(const char *key) const { return language.localizedString(QLatin1String(key)); }
};

// The page's control of that object name; the test stops if there is none.
template <typename Widget = QWidget>
Widget *control(const QWidget *page, const char *name)
{
    auto *widget = page->findChild<Widget *>(QLatin1String(name));
    if (!widget)
        qFatal("no control named %s", name);
    return widget;
}

// Chooses the entry of that text in a picker as the user does, with the arrow keys.
inline bool choose(QComboBox *picker, const QString &entry)
{
    const int wanted = picker->findText(entry);
    if (wanted < 0)
        return false;
    picker->setFocus();
    for (int step = 0; step <= picker->count() && picker->currentIndex() != wanted; ++step)
        QTest::keyClick(picker, picker->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    return picker->currentIndex() == wanted;
}
