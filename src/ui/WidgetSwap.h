#pragma once

#include <QBoxLayout>
#include <QPointer>
#include <QWidget>

// Puts `next` in `layout` in place of `current`, which is hidden at once and deleted on a
// later turn (it may be in the middle of its own call-back). In a visible container the new
// widget shows at once, not on a later turn.
inline void swapWidget(QBoxLayout *layout, QPointer<QWidget> &current, QWidget *next,
                       int stretch = 0)
{
    if (current) {
        layout->removeWidget(current);
        current->hide();
        current->deleteLater();
    }
    current = next;
    layout->addWidget(next, stretch);
    if (layout->parentWidget() && layout->parentWidget()->isVisible())
        next->show();
}
