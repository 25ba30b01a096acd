#pragma once

#include "ui/settings/SettingsTab.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>

class TimerFactory;

// Brings a settings page or a window of the program to the user. The wanted tab travels
// two ways: the OPEN_TAB variable of the process's own environment, read by a settings
// window when it appears, and the notifier's SwitchSettingsTab, heard by one already
// open. The variable lives half a second per request; two quick requests each clear it
// once, so the first clearing can take the second's value away.
class WindowRouter : public QObject {
    Q_OBJECT
public:
    // Makes (or brings forward) the window of a scene: "settings" or "about".
    using WindowOpener = std::function<void(const QString &sceneId)>;

    static constexpr const char *openTabVariable = "OPEN_TAB";
    static constexpr std::chrono::milliseconds openTabLifetime{500};

    WindowRouter(TimerFactory &timers, WindowOpener openWindow, QObject *parent = nullptr);

    void openSettingsTab(SettingsTab tab);
    void openFeedbackSettingsTab();
    void openWindow(const QString &sceneId);

private:
    TimerFactory &m_timers;
    WindowOpener m_openWindow;
};
