#include "ui/feedback/FeedbackTagButton.h"

#include "ui/Colours.h"

#include <QPainter>

namespace {

constexpr int horizontalPadding = 12;
constexpr int verticalPadding = 8;
constexpr double radius = 8.0;
constexpr double smallestTextScale = 0.9;

} // namespace

FeedbackTagButton::FeedbackTagButton(QWidget *parent) : QAbstractButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FeedbackTagButton::setSelected(bool selected)
{
    if (selected == m_selected)
        return;
    m_selected = selected;
    update();
}

QSize FeedbackTagButton::sizeHint() const
{
    const int textWidth = fontMetrics().horizontalAdvance(text());
    return {qMax(minimumItemWidth, textWidth + 2 * horizontalPadding),
            fontMetrics().height() + 2 * verticalPadding};
}

QSize FeedbackTagButton::minimumSizeHint() const
{
    return {minimumItemWidth, sizeHint().height()};
}

void FeedbackTagButton::paintEvent(QPaintEvent *)
{
    const QPalette &colours = palette();
    const QColor accent = colours.color(QPalette::Highlight);
    QColor background = colours.color(QPalette::Button);
    QColor outline = withAlpha(colours.color(QPalette::WindowText), 0.12);
    if (m_selected) {
        background = withAlpha(accent, 0.15);
        outline = accent;
    } else if (isDown()) {
        background = background.darker(110);
    }

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outline, m_selected ? 1.5 : 1.0));
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    if (hasFocus()) {
        painter.setPen(QPen(accent, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), radius - 1, radius - 1);
    }

    const QRect textArea = rect().adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    QFont textFont = font();
    const int natural = QFontMetrics(textFont).horizontalAdvance(text());
    if (natural > textArea.width() && natural > 0) {
        const double scale = qMax(smallestTextScale, double(textArea.width()) / natural);
        textFont.setPointSizeF(textFont.pointSizeF() * scale);
    }
    const QFontMetrics metrics(textFont);
    painter.setFont(textFont);
    painter.setPen(colours.color(m_selected ? QPalette::WindowText : QPalette::ButtonText));
    painter.drawText(textArea, Qt::AlignCenter,
                     metrics.elidedText(text(), Qt::ElideRight, textArea.width()));
}
