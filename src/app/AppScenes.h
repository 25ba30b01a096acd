#pragma once

#include "ui/ViewEnvironment.h"
#include "ui/WindowRouter.h"

#include <QObject>
#include <QPointer>
#include <QUuid>

#include <chrono>
#include <memory>

class PanelMenu;
class PanelPopup;
class QAction;
class QUrl;
class QWidget;
class SceneWindow;
class TrayIcon;

// What the program shows: the tray icon with its panel and menu, one settings window and
// one about window (each made on first request and reused), and the two commands that
// open those windows through "vandorel://settings" and "vandorel://about". A language
// change makes the panel and the content of both windows anew a tenth of a second later.
class AppScenes : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds rebuildDelay{100};
    static constexpr const char *urlScheme = "vandorel";

    // `environment` holds the guards and the services; the scenes add their own router.
    explicit AppScenes(const ViewEnvironment &environment, QObject *parent = nullptr);
    ~AppScenes() override;

    const ViewEnvironment &environment() const { return m_env; }
    WindowRouter &router() { return m_router; }
    TrayIcon &trayIcon() const { return *m_trayIcon; }
    PanelPopup &panel() const { return *m_panel; }
    PanelMenu &menu() const { return *m_menu; }
    // The window of a scene; none until it is first asked for.
    SceneWindow *window(const QString &sceneId) const;
    QAction *settingsCommand() const { return m_settingsCommand; }
    QAction *aboutCommand() const { return m_aboutCommand; }
    // The identity of the current roots: new at every rebuild.
    QUuid refreshID() const { return m_refreshID; }

    // Shows the tray icon.
    void start();
    // Makes the window of "settings" or "about" if there is none, and brings it forward.
    void openWindow(const QString &sceneId);

public Q_SLOTS:
    // The handler of the program's own URLs: "vandorel://settings" and "vandorel://about"
    // bring the window of that scene forward. Any other URL does nothing and gives false.
    bool openUrl(const QUrl &url);

private:
    QAction *makeCommand(const char *key, const char *url);
    QWidget *makeRoot(const QString &sceneId);
    void languageChanged();
    void rebuild();
    void retitleCommands();

    ViewEnvironment m_env;
    WindowRouter m_router;
    QUuid m_refreshID = QUuid::createUuid();
    std::unique_ptr<TrayIcon> m_trayIcon;
    std::unique_ptr<PanelPopup> m_panel;
    std::unique_ptr<PanelMenu> m_menu;
    std::unique_ptr<SceneWindow> m_settingsWindow;
    std::unique_ptr<SceneWindow> m_aboutWindow;
    QAction *m_settingsCommand = nullptr;
    QAction *m_aboutCommand = nullptr;
};
