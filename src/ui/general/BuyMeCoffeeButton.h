#pragma once

#include <QAbstractButton>
#include <QVariantAnimation>

class LanguageManager;

// The donation button: a cup and the text of general_buy_coffee on a warm plate that grows a
// little while the pointer is over it. What a click does is the owner's business.
class BuyMeCoffeeButton : public QAbstractButton {
    Q_OBJECT
public:
    static constexpr double hoveredScale = 1.05;

    explicit BuyMeCoffeeButton(LanguageManager &language, QWidget *parent = nullptr);

    bool isHovered() const { return m_isHovered; }
    // The scale the plate is growing or shrinking toward.
    double targetScale() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setHovered(bool hovered);
    void retranslate();

    LanguageManager &m_language;
    bool m_isHovered = false;
    QVariantAnimation m_scale;
};
