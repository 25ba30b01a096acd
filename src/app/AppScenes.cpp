#include "app/AppScenes.h"

#include "core/i18n/LanguageManager.h"
#include "foundation/TimerFactory.h"
#include "ui/Mnemonic.h"
#include "ui/SceneWindow.h"
#include "ui/Shortcuts.h"
#include "ui/WindowList.h"
#include "ui/about/AboutView.h"
#include "ui/panel/MenuBarView.h"
#include "ui/panel/PanelMenu.h"
#include "ui/panel/PanelPopup.h"
#include "ui/settings/SettingsView.h"
#include "ui/tray/TrayIcon.h"

#include <QAction>
#include <QDesktopServices>
#include <QUrl>

namespace {

const QString settingsScene = QStringLiteral("settings");
const QString aboutScene = QStringLiteral("about");

} // namespace

AppScenes::AppScenes(const ViewEnvironment &environment, QObject *parent)
    : QObject(parent), m_env(environment),
      m_router(*environment.timers, [this](const QString &sceneId) { openWindow(sceneId); })
{
    m_env.router = &m_router;
    m_trayIcon = std::make_unique<TrayIcon>(*m_env.browserManager, *m_env.emailClientManager,
                                            *m_env.language, *m_env.settings);
    m_panel = std::make_unique<PanelPopup>();
    m_panel->setRoot(new MenuBarView(m_env));
    m_menu = std::make_unique<PanelMenu>(m_env);
    m_trayIcon->systemTrayIcon().setContextMenu(m_menu.get());
    connect(m_trayIcon.get(), &TrayIcon::triggered, m_panel.get(), &PanelPopup::toggle);

    m_settingsCommand = makeCommand("menu_item_settings", "vandorel://settings");
    m_settingsCommand->setShortcut(preferencesShortcut());
    m_aboutCommand = makeCommand("menu_item_about", "vandorel://about");
    retitleCommands();
    connect(m_env.language, &LanguageManager::bundleChanged, this, &AppScenes::retitleCommands);
    connect(m_env.language, &LanguageManager::currentLanguageChanged, this,
            &AppScenes::languageChanged);
    QDesktopServices::setUrlHandler(QLatin1StringView(urlScheme), this, "openUrl");
}

AppScenes::~AppScenes()
{
    QDesktopServices::unsetUrlHandler(QLatin1StringView(urlScheme));
}

SceneWindow *AppScenes::window(const QString &sceneId) const
{
    if (sceneId == settingsScene)
        return m_settingsWindow.get();
    if (sceneId == aboutScene)
        return m_aboutWindow.get();
    return nullptr;
}

void AppScenes::start()
{
    m_trayIcon->show();
}

void AppScenes::openWindow(const QString &sceneId)
{
    std::unique_ptr<SceneWindow> *slot = sceneId == settingsScene ? &m_settingsWindow
                                         : sceneId == aboutScene  ? &m_aboutWindow
                                                                  : nullptr;
    if (!slot)
        return;
    if (!*slot) {
        const QString titleKey = sceneId == settingsScene ? QStringLiteral("window_settings_title")
                                                          : QStringLiteral("window_about_title");
        *slot = std::make_unique<SceneWindow>(sceneId, titleKey, *m_env.language,
                                              [this, sceneId] { return makeRoot(sceneId); });
        (*slot)->addActions({m_settingsCommand, m_aboutCommand});
    }
    WindowList::bringForward(slot->get());
}

bool AppScenes::openUrl(const QUrl &url)
{
    const bool known = url.scheme() == QLatin1StringView(urlScheme)
                       && (url.host() == settingsScene || url.host() == aboutScene);
    if (known)
        openWindow(url.host());
    return known;
}

QAction *AppScenes::makeCommand(const char *key, const char *url)
{
    auto *command = new QAction(this);
    command->setObjectName(QLatin1StringView(key));
    command->setShortcutContext(Qt::WindowShortcut);
    connect(command, &QAction::triggered, this,
            [url] { QDesktopServices::openUrl(QUrl(QLatin1StringView(url))); });
    return command;
}

QWidget *AppScenes::makeRoot(const QString &sceneId)
{
    if (sceneId == settingsScene)
        return new SettingsView(m_env);
    return new AboutView(*m_env.language, *m_env.clock,
                         [this] { m_router.openFeedbackSettingsTab(); });
}

void AppScenes::languageChanged()
{
    m_env.timers->singleShot(rebuildDelay, this, [this] { rebuild(); });
}

void AppScenes::rebuild()
{
    m_refreshID = QUuid::createUuid();
    m_panel->setRoot(new MenuBarView(m_env));
    m_menu->rebuild();
    for (SceneWindow *window : {m_settingsWindow.get(), m_aboutWindow.get()}) {
        if (window)
            window->rebuild();
    }
}

void AppScenes::retitleCommands()
{
    for (QAction *command : {m_settingsCommand, m_aboutCommand})
        command->setText(withoutMnemonic(m_env.language->localizedString(command->objectName())));
}
