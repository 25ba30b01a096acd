#pragma once

#include "ShellWorld.h"
#include "XdgTree.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"
#include "ui/guard/BrowserSettingsView.h"
#include "ui/guard/EmailSettingsView.h"

#include <QComboBox>
#include <QTest>

#include <memory>

// Desktop entries in a temporary XDG tree (Firefox and Chromium for web links, Thunderbird
// and Mailspring for mail, Firefox and Thunderbird the defaults), in place before the
// guards read them.
struct GuardPageTree {
    XdgTree tree; // first: from here on the environment points into it
    FreedesktopHandlerDatabase database;

    explicit GuardPageTree(bool mailClients)
    {
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
    }

    // A launchable entry in the tree; call updateCaches() after adding one later.
    void entry(const QString &id, const QByteArray &name, const QByteArray &mimeTypes) const
    {
        tree.entry(QStringLiteral("share1/applications"), id + u".desktop", mimeTypes, {}, name);
    }
};

// Both guards and the views' environment over those entries, in English; clock and timers
// move only when told, and prompts wait for the test's answer.
struct GuardPageRig : GuardPageTree, ShellWorld {
    explicit GuardPageRig(bool mailClients = true)
        : GuardPageTree(mailClients), ShellWorld({QStringLiteral("en")}, &database)
    {
    }

    GuardSettingsView::Services services()
    {
        return {language, world.clock, world.timers, world.alerts};
    }

    std::unique_ptr<BrowserSettingsView> browserPage()
    {
        return shown(std::make_unique<BrowserSettingsView>(browser, services()), {700, 550});
    }
    std::unique_ptr<EmailSettingsView> emailPage()
    {
        return shown(std::make_unique<EmailSettingsView>(email, services()), {700, 550});
    }

    // The poll of the guard's running change, if it polls (the pages' own timers may also
    // tick once a second).
    FakeTimer *pollTimer(const HandlerGuard &guard) const
    {
        for (FakeTimer *timer : world.timers.activeWithInterval(std::chrono::seconds(1)))
            for (const QObject *owner = timer->parent(); owner; owner = owner->parent())
                if (owner == &guard)
                    return timer;
        return nullptr;
    }
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

inline bool shows(const QWidget *page, const char *name)
{
    return control(page, name)->isVisible();
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
