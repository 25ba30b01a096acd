#include "ui/feedback/FeedbackTextBox.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int shadowMargin = 5;
constexpr int innerPadding = 6;
constexpr double radius = 10.0;

} // namespace

FeedbackTextBox::FeedbackTextBox(QWidget *parent)
    : QWidget(parent), m_edit(new QPlainTextEdit(this))
{
    m_edit->setFrameShape(QFrame::NoFrame);
    m_edit->setTabChangesFocus(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(shadowMargin + innerPadding, shadowMargin + innerPadding,
                               shadowMargin + innerPadding, shadowMargin + innerPadding);
    layout->addWidget(m_edit);
    setMinimumHeight(150);
    applyColours();
}

void FeedbackTextBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

// The box draws the background itself, under the rounded outline.
void FeedbackTextBox::applyColours()
{
    QPalette colours = m_edit->palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    m_edit->setPalette(colours);
}

void FeedbackTextBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box =
        QRectF(rect()).adjusted(shadowMargin, shadowMargin, -shadowMargin, -shadowMargin);
    painter.setBrush(Qt::NoBrush);
    for (int step = shadowMargin; step >= 1; --step) {
        QColor shadow(0, 0, 0, 6 + 3 * (shadowMargin - step));
        painter.setPen(QPen(shadow, 1.0));
        painter.drawRoundedRect(box.adjusted(-step, -step + 1, step, step + 1), radius + step,
                                radius + step);
    }
    const QPalette &colours = palette();
    QColor outline = colours.color(QPalette::WindowText);
    outline.setAlphaF(m_edit->hasFocus() ? 0.35f : 0.15f);
    painter.setPen(QPen(outline, 1.0));
    painter.setBrush(colours.color(QPalette::Base));
    painter.drawRoundedRect(box, radius, radius);
}
