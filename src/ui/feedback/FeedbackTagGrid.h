#pragma once

#include <QList>
#include <QWidget>

class FeedbackTagButton;

// Lays its buttons out in as many equal columns as fit at the buttons' minimum width, row
// by row, and grows in height to take them all.
class FeedbackTagGrid : public QWidget {
    Q_OBJECT
public:
    static constexpr int spacing = 10;

    explicit FeedbackTagGrid(QWidget *parent = nullptr);

    void addButton(FeedbackTagButton *button);
    int columnsForWidth(int width) const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int rowHeight() const;
    void placeButtons();

    QList<FeedbackTagButton *> m_buttons;
};
