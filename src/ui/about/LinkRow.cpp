#include "ui/about/LinkRow.h"

#include "ui/widgets/SymbolLabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {
constexpr int symbolBox = 20;
constexpr int symbolSize = 15;
constexpr int arrowSize = 9;
} // namespace

LinkRow::LinkRow(const QString &symbol, QWidget *parent)
    : QAbstractButton(parent), m_symbol(new SymbolLabel(symbol, symbolSize)), m_text(new QLabel),
      m_arrow(new SymbolLabel(QStringLiteral("arrow.up.right"), arrowSize))
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->setSpacing(8);
    auto *box = new QWidget;
    box->setFixedWidth(symbolBox);
    auto *boxLayout = new QHBoxLayout(box);
    boxLayout->setContentsMargins(0, 0, 0, 0);
    boxLayout->addWidget(m_symbol, 0, Qt::AlignCenter);
    layout->addWidget(box);
    m_text->setForegroundRole(QPalette::Link);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_arrow, 0, Qt::AlignVCenter);
    applyColours();
}

void LinkRow::setRowText(const QString &text)
{
    setText(text);
    setAccessibleName(text);
    m_text->setText(text);
}

void LinkRow::paintEvent(QPaintEvent *)
{
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void LinkRow::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

// The symbol takes the link colour of the text; the arrow is secondary.
void LinkRow::applyColours()
{
    m_symbol->setColour(palette().color(QPalette::Link));
    m_arrow->setColour(palette().color(QPalette::PlaceholderText));
}
