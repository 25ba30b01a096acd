#pragma once

#include <QVariantAnimation>
#include <QWidget>

class QPainter;

// A small indeterminate progress indicator: an arc that turns while the spinner is shown.
class BusySpinner : public QWidget {
    Q_OBJECT
public:
    static constexpr int size = 16;

    explicit BusySpinner(QWidget *parent = nullptr);

    QSize sizeHint() const override { return QSize(size, size); }
    bool isSpinning() const { return m_turn.state() == QAbstractAnimation::Running; }

    // The arc at `angle` degrees inside `bounds`, for spinners drawn elsewhere (a button's icon).
    static void paintArc(QPainter &painter, const QRectF &bounds, double angle,
                         const QColor &colour);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QVariantAnimation m_turn;
};
