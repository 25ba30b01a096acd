#pragma once

#include <QColor>
#include <QPushButton>

// A push button filled with a colour: the accent colour of the palette unless given another,
// with its text in the palette's highlighted text colour, or white on a colour of its own.
class ProminentButton : public QPushButton {
    Q_OBJECT
public:
    explicit ProminentButton(QWidget *parent = nullptr);

    // An invalid colour goes back to the palette's accent colour.
    void setFill(const QColor &fill);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int contentWidth() const;

    QColor m_fill;
};
