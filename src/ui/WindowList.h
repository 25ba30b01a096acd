#pragma once

#include <QWidgetList>

// The program's own top-level windows, as the routing sees them: popups (the tray panel,
// menus) are left out.
namespace WindowList {

// In the order the toolkit keeps its windows; windows never shown come last.
QWidgetList windows();
// The first window whose object name contains "settings", shown or not.
QWidget *firstSettingsWindow();
// The active window, else the first visible one, else none.
QWidget *activeOrFirstVisible();
// Shows the window, puts it on top and gives it the focus.
void bringForward(QWidget *window);

} // namespace WindowList
