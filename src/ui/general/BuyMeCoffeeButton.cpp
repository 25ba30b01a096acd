#include "ui/general/BuyMeCoffeeButton.h"

#include "core/i18n/LanguageManager.h"
#include "ui/SymbolTable.h"
#include "ui/TextStyle.h"

#include <QPainter>

namespace {
const QColor plateYellow(0xFF, 0xDD, 0x00);
const QColor inkBlack(0x1C, 0x1C, 0x1E);
constexpr int cupSize = 16;
constexpr int padding = 14;
constexpr int gap = 8;
} // namespace

BuyMeCoffeeButton::BuyMeCoffeeButton(LanguageManager &language, QWidget *parent)
    : QAbstractButton(parent), m_language(language)
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFont(TextStyle::font(QFont(), TextStyle::headline));
    m_scale.setStartValue(1.0);
    m_scale.setEndValue(1.0);
    m_scale.setDuration(150);
    connect(&m_scale, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_language, &LanguageManager::currentLanguageChanged, this,
            &BuyMeCoffeeButton::retranslate);
    connect(&m_language, &LanguageManager::bundleChanged, this, &BuyMeCoffeeButton::retranslate);
    retranslate();
}

double BuyMeCoffeeButton::targetScale() const
{
    return m_scale.endValue().toDouble();
}

// Room for the grown plate is part of the size, so growing never pushes the layout.
QSize BuyMeCoffeeButton::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const QSize plate(padding * 2 + cupSize + gap + metrics.horizontalAdvance(text()),
                      std::max(cupSize, metrics.height()) + 16);
    return (QSizeF(plate) * hoveredScale).toSize() + QSize(2, 2);
}

void BuyMeCoffeeButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = m_scale.currentValue().isValid() ? m_scale.currentValue().toDouble() : 1.0;
    const QSizeF plate = QSizeF(size() - QSize(2, 2)) / hoveredScale * scale;
    const QRectF bounds(QPointF((width() - plate.width()) / 2, (height() - plate.height()) / 2),
                        plate);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? plateYellow.darker(110) : plateYellow);
    painter.drawRoundedRect(bounds, bounds.height() / 2, bounds.height() / 2);
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRoundedRect(bounds.adjusted(1, 1, -1, -1), bounds.height() / 2 - 1,
                                bounds.height() / 2 - 1);
    }

    painter.translate(bounds.center());
    painter.scale(scale, scale);
    const QFontMetrics metrics = fontMetrics();
    const double contentWidth = cupSize + gap + metrics.horizontalAdvance(text());
    const QPointF origin(-contentWidth / 2, 0);
    const qreal ratio = devicePixelRatioF();
    QPixmap cup = SymbolTable::tinted(QStringLiteral("cup.and.saucer.fill"), inkBlack,
                                      qRound(cupSize * ratio));
    cup.setDevicePixelRatio(ratio);
    painter.drawPixmap(origin + QPointF(0, -cupSize / 2.0), cup);
    painter.setPen(inkBlack);
    painter.drawText(QRectF(origin + QPointF(cupSize + gap, -metrics.height() / 2.0),
                            QSizeF(metrics.horizontalAdvance(text()) + 1, metrics.height())),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
}

void BuyMeCoffeeButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    setHovered(true);
}

void BuyMeCoffeeButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    setHovered(false);
}

void BuyMeCoffeeButton::setHovered(bool hovered)
{
    m_isHovered = hovered;
    const QVariant from = m_scale.currentValue().isValid() ? m_scale.currentValue() : 1.0;
    m_scale.stop();
    m_scale.setStartValue(from);
    m_scale.setEndValue(hovered ? hoveredScale : 1.0);
    m_scale.start();
}

void BuyMeCoffeeButton::retranslate()
{
    const QString title = m_language.localizedString(QStringLiteral("general_buy_coffee"));
    setText(title);
    setAccessibleName(title);
    updateGeometry();
}
