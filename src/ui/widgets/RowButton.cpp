#include "ui/widgets/RowButton.h"

#include "ui/Colours.h"
#include "ui/widgets/SymbolLabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace {
constexpr int symbolBox = 20;
constexpr int symbolSize = 15;
constexpr int trailingSymbolSize = 9;
constexpr double tintAlpha = 0.1;
constexpr double hoveredTintAlpha = 0.2;
} // namespace

RowButton::RowButton(const QString &symbol, QWidget *parent)
    : QAbstractButton(parent), m_symbol(new SymbolLabel(symbol, symbolSize)), m_text(new QLabel),
      m_layout(new QHBoxLayout(this))
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    m_layout->setContentsMargins(0, 2, 0, 2);
    m_layout->setSpacing(8);
    m_symbol->setFixedWidth(symbolBox);
    m_symbol->setAlignment(Qt::AlignCenter);
    m_layout->addWidget(m_symbol, 0, Qt::AlignVCenter);
    m_text->setWordWrap(true);
    m_text->setForegroundRole(QPalette::WindowText);
    m_layout->addWidget(m_text, 1);
    applyColours();
}

void RowButton::setRowText(const QString &text)
{
    setText(text);
    setAccessibleName(text);
    m_text->setText(text);
}

void RowButton::setForeground(const QColor &colour)
{
    m_foreground = colour;
    applyColours();
}

void RowButton::setTint(const QColor &colour)
{
    m_tint = colour;
    const int margin = m_tint.isValid() ? 10 : 0;
    m_layout->setContentsMargins(margin, 2 + margin / 2, margin, 2 + margin / 2);
    update();
}

void RowButton::setTrailingWidget(QWidget *widget)
{
    m_layout->addWidget(widget, 0, Qt::AlignVCenter);
}

void RowButton::setTrailingSymbol(const QString &symbol)
{
    m_trailingSymbol = new SymbolLabel(symbol, trailingSymbolSize);
    setTrailingWidget(m_trailingSymbol);
    applyColours();
}

void RowButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_tint.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(withAlpha(m_tint, m_hovered ? hoveredTintAlpha : tintAlpha));
        painter.drawRoundedRect(QRectF(rect()), 8, 8);
    }
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(withAlpha(palette().color(QPalette::Highlight), 0.7), 2.0));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 7, 7);
    }
}

void RowButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange)
        applyColours();
}

void RowButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    m_hovered = true;
    update();
}

void RowButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    m_hovered = false;
    update();
}

void RowButton::applyColours()
{
    // A colour of its own reads too pale on a light background unless deepened a little.
    const bool light = palette().color(QPalette::Window).lightness() >= 128;
    QColor colour = !m_foreground.isValid() ? palette().color(QPalette::Link)
                    : light                 ? m_foreground.darker(125)
                                            : m_foreground;
    if (!isEnabled())
        colour = palette().color(QPalette::Disabled, QPalette::WindowText);
    m_symbol->setColour(colour);
    QPalette text = m_text->palette();
    text.setColor(QPalette::WindowText, colour);
    m_text->setPalette(text);
    if (m_trailingSymbol)
        m_trailingSymbol->setColour(palette().color(QPalette::PlaceholderText));
}
