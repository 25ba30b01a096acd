#include "ui/widgets/ToggleSwitch.h"

#include "ui/Colours.h"

#include <QPainter>
#include <QStyle>

namespace {
constexpr int focusMargin = 2;
}

ToggleSwitch::ToggleSwitch(const QString &accessibleName, QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(accessibleName);
}

QSize ToggleSwitch::sizeHint() const
{
    const int height = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this) + 4;
    return QSize(height * 9 / 5, height) + QSize(2 * focusMargin, 2 * focusMargin);
}

void ToggleSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.45);
    const QPalette &colours = palette();
    const QRectF track =
        QRectF(rect()).adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
    const qreal radius = track.height() / 2;

    QColor fill = isChecked() ? colours.color(QPalette::Highlight)
                              : withAlpha(colours.color(QPalette::WindowText), 0.22);
    if (isDown())
        fill = fill.darker(115);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(track, radius, radius);

    const qreal knobSize = track.height() - 4;
    const qreal knobX = isChecked() ? track.right() - 2 - knobSize : track.left() + 2;
    const QRectF knob(knobX, track.top() + 2, knobSize, knobSize);
    painter.setBrush(Qt::white);
    painter.setPen(QPen(withAlpha(Qt::black, 0.18), 0.8));
    painter.drawEllipse(knob);

    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(withAlpha(colours.color(QPalette::Highlight), 0.6), 2.0));
        const qreal outer = radius + focusMargin / 2.0;
        painter.drawRoundedRect(track.adjusted(-1, -1, 1, 1), outer, outer);
    }
}
