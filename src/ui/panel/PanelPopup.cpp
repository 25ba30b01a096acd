#include "ui/panel/PanelPopup.h"

#include "ui/WidgetSwap.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>

PanelPopup::PanelPopup(QWidget *parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint), m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("panel"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    m_layout->setContentsMargins(1, 1, 1, 1);
    m_layout->setSizeConstraint(QLayout::SetFixedSize);
}

void PanelPopup::setRoot(QWidget *root)
{
    swapWidget(m_layout, m_root, root);
}

void PanelPopup::toggle(const QRect &iconGeometry)
{
    if (isVisible()) {
        close();
        return;
    }
    m_iconGeometry = iconGeometry;
    m_layout->activate();
    const QPoint pointer = QCursor::pos();
    const QScreen *screen =
        QGuiApplication::screenAt(iconGeometry.isEmpty() ? pointer : iconGeometry.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    move(placement(size(), iconGeometry, pointer, screen->availableGeometry()));
    show();
}

QPoint PanelPopup::placement(const QSize &size, const QRect &icon, const QPoint &pointer,
                             const QRect &available)
{
    QPoint corner;
    if (icon.isEmpty()) {
        corner = pointer;
        if (pointer.y() > available.center().y())
            corner.ry() -= size.height();
    } else {
        corner.rx() = icon.center().x() - size.width() / 2;
        corner.ry() = icon.center().y() > available.center().y() ? icon.top() - size.height()
                                                                 : icon.bottom() + 1;
    }
    corner.rx() = qBound(available.left(), corner.x(), available.right() + 1 - size.width());
    corner.ry() = qBound(available.top(), corner.y(), available.bottom() + 1 - size.height());
    return corner;
}

void PanelPopup::mousePressEvent(QMouseEvent *event)
{
    const QPoint global = event->globalPosition().toPoint();
    // The press that closes the panel must not reach the icon and open it again.
    if (!rect().contains(event->position().toPoint()) && m_iconGeometry.contains(global))
        setAttribute(Qt::WA_NoMouseReplay);
    QFrame::mousePressEvent(event);
}
