#include "ui/tray/TrayIcon.h"

#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "foundation/Console.h"
#include "ui/Appearance.h"
#include "ui/tray/ShieldIcon.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

TrayIcon::TrayIcon(BrowserManager &browserManager, EmailClientManager &emailClientManager,
                   LanguageManager &language, SettingsStore &settings, QObject *parent)
    : QObject(parent), m_browserManager(browserManager), m_emailClientManager(emailClientManager),
      m_language(language), m_settings(settings)
{
    connect(&browserManager, &HandlerGuard::objectWillChange, this, &TrayIcon::update);
    connect(&emailClientManager, &HandlerGuard::objectWillChange, this, &TrayIcon::update);
    connect(&language, &LanguageManager::currentLanguageChanged, this, &TrayIcon::update);
    connect(&language, &LanguageManager::bundleChanged, this, &TrayIcon::update);
    connect(&settings, &SettingsStore::changed, this, [this](const QString &key) {
        if (key == SettingsTable::showColoredMenuBarIcon.key())
            update();
    });
    // The plain form is drawn in the desktop palette's text colour.
    qApp->installEventFilter(this);
    connect(&m_tray, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // A click soon after the one that closed the panel comes as a double click.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    Q_EMIT triggered(m_tray.geometry());
            });
    update();
}

ProtectionStatus TrayIcon::getBrowserStatus() const
{
    return Protection::statusOf(m_browserManager.currentDefaultBrowser(),
                                m_browserManager.targetDefaultBrowser(),
                                m_browserManager.isProtected());
}

ProtectionStatus TrayIcon::getEmailStatus() const
{
    return Protection::statusOf(m_emailClientManager.currentDefaultEmailClient(),
                                m_emailClientManager.targetDefaultEmailClient(),
                                m_emailClientManager.isProtected());
}

ProtectionStatus TrayIcon::getOverallStatus() const
{
    return Protection::overall(getBrowserStatus(), getEmailStatus());
}

QString TrayIcon::menuBarIcon() const
{
    return ShieldIcon::symbolFor(getOverallStatus());
}

QColor TrayIcon::menuBarIconColor() const
{
    return ShieldIcon::colourFor(getOverallStatus());
}

QIcon TrayIcon::createMenuBarIcon() const
{
    return ShieldIcon::make(menuBarIcon(), menuBarIconColor());
}

bool TrayIcon::showColoredMenuBarIcon() const
{
    return m_settings.value(SettingsTable::showColoredMenuBarIcon);
}

void TrayIcon::show()
{
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        Console::line(
            QStringLiteral("⚠️ No system tray found: the icon will appear when one starts. "
                           "Open the settings with: xdg-open vandorel://settings"));
    m_tray.show();
}

bool TrayIcon::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        update();
    return QObject::eventFilter(watched, event);
}

void TrayIcon::update()
{
    m_tray.setIcon(showColoredMenuBarIcon()
                       ? createMenuBarIcon()
                       : ShieldIcon::make(menuBarIcon(), Appearance::platformPalette().color(
                                                             QPalette::WindowText)));
    m_tray.setToolTip(toolTip());
}

QString TrayIcon::toolTip() const
{
    const auto line = [this](const char *titleKey, ProtectionStatus status) -> QString {
        return m_language.localizedString(QLatin1StringView(titleKey)) + u": "
               + m_language.localizedString(ShieldIcon::textKeyFor(status));
    };
    return QGuiApplication::applicationDisplayName() + u'\n'
           + line("status_default_browser", getBrowserStatus()) + u'\n'
           + line("status_default_email", getEmailStatus());
}
