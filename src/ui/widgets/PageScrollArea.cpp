#include "ui/widgets/PageScrollArea.h"

#include <QVBoxLayout>

PageScrollArea::PageScrollArea(QWidget *content, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(content);
}

PageScrollArea *PageScrollArea::fill(QWidget *page, QWidget *content)
{
    auto *scroll = new PageScrollArea(content);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    return scroll;
}
