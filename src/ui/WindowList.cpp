#include "ui/WindowList.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace WindowList {

namespace {

bool isOrdinaryWindow(const QWidget *widget)
{
    const Qt::WindowType type = widget->windowType();
    return type != Qt::Popup && type != Qt::ToolTip && type != Qt::Desktop;
}

} // namespace

QWidgetList windows()
{
    QWidgetList widgets = QApplication::topLevelWidgets();
    widgets.removeIf([](const QWidget *widget) { return !isOrdinaryWindow(widget); });
    QWidgetList ordered;
    for (const QWindow *window : QGuiApplication::topLevelWindows()) {
        for (QWidget *widget : std::as_const(widgets)) {
            if (widget->windowHandle() == window)
                ordered.append(widget);
        }
    }
    for (QWidget *widget : std::as_const(widgets)) {
        if (!ordered.contains(widget))
            ordered.append(widget);
    }
    return ordered;
}

QWidget *firstSettingsWindow()
{
    for (QWidget *window : windows()) {
        if (window->objectName().contains(u"settings"))
            return window;
    }
    return nullptr;
}

QWidget *activeOrFirstVisible()
{
    if (QWidget *active = QApplication::activeWindow(); active && isOrdinaryWindow(active))
        return active;
    for (QWidget *window : windows()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

void bringForward(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace WindowList
