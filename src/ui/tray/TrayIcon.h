#pragma once

#include "core/guard/ProtectionStatus.h"

#include <QIcon>
#include <QObject>
#include <QSystemTrayIcon>

class BrowserManager;
class EmailClientManager;
class LanguageManager;
class SettingsStore;

// The program's one permanent surface: a tray icon that shows at a glance whether both
// guards do their work. Green only when both are protected; one guard that doesn't work
// makes it red whatever the other does; otherwise a mismatch makes it orange. Plain, the
// status shows by the shield's shape alone in the text colour of the desktop's palette (a
// light or dark look chosen in the program does not reach the tray); coloured,
// in the status colour. It is drawn again whenever a guard, the language or the choice of
// form changes; the tooltip names the program and each guard's state.
class TrayIcon : public QObject {
    Q_OBJECT
public:
    TrayIcon(BrowserManager &browserManager, EmailClientManager &emailClientManager,
             LanguageManager &language, SettingsStore &settings, QObject *parent = nullptr);

    ProtectionStatus getBrowserStatus() const;
    ProtectionStatus getEmailStatus() const;
    ProtectionStatus getOverallStatus() const;
    QString menuBarIcon() const;
    QColor menuBarIconColor() const;
    QIcon createMenuBarIcon() const;
    bool showColoredMenuBarIcon() const;

    QSystemTrayIcon &systemTrayIcon() { return m_tray; }
    // Shows the icon. Without a tray to show it in, says so on the console once; the icon
    // then appears when a tray starts.
    void show();

Q_SIGNALS:
    // A left click (or the second of two quick ones), with where the icon is (empty where
    // the tray does not say).
    void triggered(const QRect &iconGeometry);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();
    QString toolTip() const;

    BrowserManager &m_browserManager;
    EmailClientManager &m_emailClientManager;
    LanguageManager &m_language;
    SettingsStore &m_settings;
    QSystemTrayIcon m_tray;
};
