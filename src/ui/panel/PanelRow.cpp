#include "ui/panel/PanelRow.h"

#include <QHBoxLayout>

PanelRow::PanelRow(const QMargins &margins, QWidget *parent)
    : QAbstractButton(parent), m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(margins);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PanelRow::addContent(QWidget *widget, int stretch)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_layout->addWidget(widget, stretch);
}

QSize PanelRow::sizeHint() const
{
    return m_layout->sizeHint();
}

QSize PanelRow::minimumSizeHint() const
{
    return m_layout->minimumSize();
}

bool PanelRow::hasHeightForWidth() const
{
    return m_layout->hasHeightForWidth();
}

int PanelRow::heightForWidth(int width) const
{
    return m_layout->totalHeightForWidth(width);
}

void PanelRow::paintEvent(QPaintEvent *)
{
    // The content draws itself; the row itself shows nothing, pressed or not.
}
