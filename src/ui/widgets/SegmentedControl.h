#pragma once

#include <QWidget>

class QAbstractButton;
class QButtonGroup;

// A row of joined segments of which one is chosen. Screen readers see each segment as a
// radio button named by its text, and the row by the accessible name given to the control.
// currentIndexChanged() tells every change, made by the user or by setCurrentIndex().
class SegmentedControl : public QWidget {
    Q_OBJECT
public:
    explicit SegmentedControl(int segmentCount, QWidget *parent = nullptr);

    // The width the control takes where there is room; with less it shrinks to what its
    // texts need.
    void setPreferredWidth(int width);
    QSize sizeHint() const override;

    int count() const;
    void setSegmentText(int index, const QString &text);
    QAbstractButton *segment(int index) const;

    // -1 while none is chosen.
    int currentIndex() const;
    void setCurrentIndex(int index);

Q_SIGNALS:
    void currentIndexChanged(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QButtonGroup *m_group;
    int m_preferredWidth = 0;
};
