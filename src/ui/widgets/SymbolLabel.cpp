#include "ui/widgets/SymbolLabel.h"

#include "ui/SymbolTable.h"

#include <QEvent>

SymbolLabel::SymbolLabel(const QString &symbol, int size, QWidget *parent)
    : QLabel(parent), m_symbol(symbol), m_size(size)
{
    setFixedSize(size, size);
    redraw();
}

void SymbolLabel::setColour(const QColor &colour)
{
    m_colour = colour;
    redraw();
}

void SymbolLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange)
        redraw();
}

void SymbolLabel::redraw()
{
    QColor colour = m_colour.isValid() ? m_colour : palette().color(QPalette::WindowText);
    if (!isEnabled())
        colour = palette().color(QPalette::Disabled, QPalette::WindowText);
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = SymbolTable::tinted(m_symbol, colour, qRound(m_size * ratio));
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}
