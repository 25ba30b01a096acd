#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QVariantAnimation>

// One mood of the feedback page: an emoji in a circle. Only the selected mood is in colour;
// a hovered one grows and lifts. Changes of state spring into place.
class MoodButton : public QAbstractButton {
    Q_OBJECT
public:
    MoodButton(const QString &emoji, QWidget *parent = nullptr);

    QString emoji() const { return m_emoji; }
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    bool isHovered() const { return m_hovered; }
    void setHovered(bool hovered);

    QSize sizeHint() const override;

Q_SIGNALS:
    void hoverChanged(bool hovered);

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void animate(QVariantAnimation &animation, double target);
    const QImage &emojiImage(bool colour);

    QString m_emoji;
    bool m_selected = false;
    bool m_hovered = false;
    // 0 at rest, 1 when selected or hovered; drives the scale.
    QVariantAnimation m_emphasis;
    // 0 at rest, 1 while hovered; drives the lift.
    QVariantAnimation m_lift;
    QImage m_colourImage;
    QImage m_greyImage;
};
