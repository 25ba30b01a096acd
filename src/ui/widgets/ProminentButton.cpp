#include "ui/widgets/ProminentButton.h"

#include "ui/Colours.h"

#include <QPainter>

namespace {
constexpr int paddingX = 14;
constexpr int paddingY = 5;
constexpr int iconGap = 6;
constexpr qreal radius = 5;
} // namespace

ProminentButton::ProminentButton(QWidget *parent) : QPushButton(parent) {}

void ProminentButton::setFill(const QColor &fill)
{
    m_fill = fill;
    update();
}

int ProminentButton::contentWidth() const
{
    const int textWidth = fontMetrics().horizontalAdvance(text());
    return icon().isNull() ? textWidth : iconSize().width() + iconGap + textWidth;
}

QSize ProminentButton::sizeHint() const
{
    const int height = qMax(fontMetrics().height(), icon().isNull() ? 0 : iconSize().height());
    return QSize(contentWidth() + 2 * paddingX, height + 2 * paddingY);
}

void ProminentButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette &colours = palette();
    QColor fill = m_fill.isValid() ? m_fill : colours.color(QPalette::Highlight);
    QColor ink = m_fill.isValid() ? QColor(Qt::white) : colours.color(QPalette::HighlightedText);
    if (!isEnabled()) {
        fill = withAlpha(colours.color(QPalette::WindowText), 0.08);
        ink = withAlpha(colours.color(QPalette::WindowText), 0.35);
    } else if (isDown()) {
        fill = fill.darker(115);
    }
    const QRectF bounds = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(bounds, radius, radius);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(withAlpha(fill.darker(150), 0.9), 2.0));
        painter.drawRoundedRect(bounds.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    }

    int x = (width() - contentWidth()) / 2;
    if (!icon().isNull()) {
        const QSize size = iconSize();
        icon().paint(&painter, QRect(QPoint(x, (height() - size.height()) / 2), size));
        x += size.width() + iconGap;
    }
    painter.setPen(ink);
    painter.drawText(QRect(x, 0, width() - x, height()), Qt::AlignVCenter | Qt::AlignLeft, text());
}
