#pragma once

#include <QAbstractButton>

class QHBoxLayout;

// One row of the tray panel: a flat button whose whole rectangle takes the click, over
// whatever the row shows. No pressed or selected look; the pointing hand over it.
// Screen readers know it by the name it is given.
class PanelRow : public QAbstractButton {
    Q_OBJECT
public:
    PanelRow(const QMargins &margins, QWidget *parent = nullptr);

    QHBoxLayout *contentLayout() const { return m_layout; }
    // Adds a widget of the row's content; it leaves the clicks to the row.
    void addContent(QWidget *widget, int stretch = 0);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QHBoxLayout *m_layout;
};
