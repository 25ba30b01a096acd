#include "ui/WindowRouter.h"

#include "foundation/TimerFactory.h"
#include "ui/WindowList.h"
#include "ui/settings/SettingsTabNotifier.h"

WindowRouter::WindowRouter(TimerFactory &timers, WindowOpener openWindow, QObject *parent)
    : QObject(parent), m_timers(timers), m_openWindow(std::move(openWindow))
{
}

void WindowRouter::openSettingsTab(SettingsTab tab)
{
    qputenv(openTabVariable, tab.rawValue().toUtf8());
    if (QWidget *window = WindowList::firstSettingsWindow()) {
        WindowList::bringForward(window);
        Q_EMIT SettingsTabNotifier::shared().SwitchSettingsTab(tab);
    } else {
        openWindow(QStringLiteral("settings"));
    }
    m_timers.singleShot(openTabLifetime, this, [] { qunsetenv(openTabVariable); });
}

void WindowRouter::openFeedbackSettingsTab()
{
    openSettingsTab(SettingsTab::feedback);
}

void WindowRouter::openWindow(const QString &sceneId)
{
    if (m_openWindow)
        m_openWindow(sceneId);
}
