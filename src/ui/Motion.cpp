#include "ui/Motion.h"

#include <QStyle>
#include <QWidget>

int Motion::duration(const QWidget *widget, int milliseconds)
{
    const int styleDuration =
        widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget);
    return styleDuration > 0 ? milliseconds : 0;
}
