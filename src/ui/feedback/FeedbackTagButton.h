#pragma once

#include <QAbstractButton>

// A category choice of the feedback page: one line of text in a rounded box, tinted with an
// accent outline while selected. A text too wide shrinks down to 90 percent, then elides.
class FeedbackTagButton : public QAbstractButton {
    Q_OBJECT
public:
    static constexpr int minimumItemWidth = 160;

    explicit FeedbackTagButton(QWidget *parent = nullptr);

    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_selected = false;
};
