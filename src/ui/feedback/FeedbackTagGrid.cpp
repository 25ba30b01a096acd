#include "ui/feedback/FeedbackTagGrid.h"

#include "ui/feedback/FeedbackTagButton.h"

FeedbackTagGrid::FeedbackTagGrid(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void FeedbackTagGrid::addButton(FeedbackTagButton *button)
{
    button->setParent(this);
    m_buttons.append(button);
    placeButtons();
    updateGeometry();
}

int FeedbackTagGrid::columnsForWidth(int width) const
{
    const int columns = (width + spacing) / (FeedbackTagButton::minimumItemWidth + spacing);
    return qBound(1, columns, qMax(1, int(m_buttons.size())));
}

int FeedbackTagGrid::rowHeight() const
{
    int height = 0;
    for (const FeedbackTagButton *button : m_buttons)
        height = qMax(height, button->sizeHint().height());
    return height;
}

int FeedbackTagGrid::heightForWidth(int width) const
{
    if (m_buttons.isEmpty())
        return 0;
    const int columns = columnsForWidth(width);
    const int rows = int((m_buttons.size() + columns - 1) / columns);
    return rows * rowHeight() + (rows - 1) * spacing;
}

QSize FeedbackTagGrid::sizeHint() const
{
    const int width = 3 * FeedbackTagButton::minimumItemWidth + 2 * spacing;
    return {width, heightForWidth(width)};
}

QSize FeedbackTagGrid::minimumSizeHint() const
{
    return {FeedbackTagButton::minimumItemWidth,
            heightForWidth(FeedbackTagButton::minimumItemWidth)};
}

void FeedbackTagGrid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeButtons();
}

void FeedbackTagGrid::placeButtons()
{
    const int columns = columnsForWidth(width());
    const int itemWidth = (width() - (columns - 1) * spacing) / columns;
    const int height = rowHeight();
    for (int i = 0; i < m_buttons.size(); ++i) {
        const int row = i / columns;
        const int column = i % columns;
        m_buttons.at(i)->setGeometry(column * (itemWidth + spacing), row * (height + spacing),
                                     itemWidth, height);
    }
}
