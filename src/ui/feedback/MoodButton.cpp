#include "ui/feedback/MoodButton.h"

#include "ui/Colours.h"
#include "ui/Motion.h"

#include <QEnterEvent>
#include <QPainter>
#include <QRadialGradient>

namespace {

constexpr int springDuration = 320;
constexpr int circleDiameter = 46;
constexpr double emphasisScale = 1.16;
constexpr double hoverLift = 3.0;
constexpr double faintOpacity = 0.58;
constexpr int emojiPixelSize = 28;

QImage greyed(const QImage &source)
{
    QImage image = source.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qGray(line[x]);
            line[x] = qRgba(grey, grey, grey, qAlpha(line[x]));
        }
    }
    return image;
}

} // namespace

MoodButton::MoodButton(const QString &emoji, QWidget *parent)
    : QAbstractButton(parent), m_emoji(emoji)
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(emoji);
    for (QVariantAnimation *animation : {&m_emphasis, &m_lift}) {
        animation->setEasingCurve(QEasingCurve::OutBack);
        animation->setStartValue(0.0);
        animation->setEndValue(0.0);
        connect(animation, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    }
}

void MoodButton::setSelected(bool selected)
{
    if (selected == m_selected)
        return;
    m_selected = selected;
    animate(m_emphasis, m_selected || m_hovered ? 1.0 : 0.0);
    update();
}

void MoodButton::setHovered(bool hovered)
{
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    animate(m_emphasis, m_selected || m_hovered ? 1.0 : 0.0);
    animate(m_lift, m_hovered ? 1.0 : 0.0);
    update();
}

void MoodButton::animate(QVariantAnimation &animation, double target)
{
    const double current = animation.currentValue().toDouble();
    animation.stop();
    animation.setStartValue(current);
    animation.setEndValue(target);
    animation.setDuration(Motion::duration(this, springDuration));
    animation.start();
}

QSize MoodButton::sizeHint() const
{
    const int side = qCeil(circleDiameter * emphasisScale) + 2 * qCeil(hoverLift) + 8;
    return {side, side};
}

void MoodButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    Q_EMIT hoverChanged(true);
}

void MoodButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    Q_EMIT hoverChanged(false);
}

void MoodButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        m_colourImage = {};
        m_greyImage = {};
    }
    QAbstractButton::changeEvent(event);
}

const QImage &MoodButton::emojiImage(bool colour)
{
    const qreal ratio = devicePixelRatioF();
    if (m_colourImage.isNull() || m_colourImage.devicePixelRatio() != ratio) {
        const int side = qCeil(emojiPixelSize * 1.4 * ratio);
        m_colourImage = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        m_colourImage.fill(Qt::transparent);
        QPainter painter(&m_colourImage);
        QFont emojiFont = font();
        emojiFont.setFamilies({QStringLiteral("Noto Color Emoji"), font().family()});
        emojiFont.setPixelSize(qRound(emojiPixelSize * ratio));
        painter.setFont(emojiFont);
        painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, m_emoji);
        painter.end();
        m_colourImage.setDevicePixelRatio(ratio);
        m_greyImage = greyed(m_colourImage);
        m_greyImage.setDevicePixelRatio(ratio);
    }
    return colour ? m_colourImage : m_greyImage;
}

void MoodButton::paintEvent(QPaintEvent *)
{
    const QColor accent = palette().color(QPalette::Highlight);
    QColor fill = Qt::transparent, outline = Qt::transparent, shadow = Qt::transparent;
    if (m_selected) {
        fill = withAlpha(accent, 0.16);
        outline = withAlpha(accent, 0.45);
        shadow = withAlpha(accent, 0.28);
    } else if (m_hovered) {
        fill = withAlpha(accent, 0.08);
        outline = withAlpha(accent, 0.25);
        shadow = withAlpha(Qt::black, 0.15);
    }

    const double scale = 1.0 + (emphasisScale - 1.0) * m_emphasis.currentValue().toDouble();
    const double lift = hoverLift * m_lift.currentValue().toDouble();
    const QPointF centre = QRectF(rect()).center() - QPointF(0, lift);
    const double radius = circleDiameter * scale / 2.0;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (shadow.alpha() > 0) {
        QRadialGradient gradient(centre + QPointF(0, 2), radius + 5);
        gradient.setColorAt(radius / (radius + 5) * 0.9, shadow);
        gradient.setColorAt(1.0, withAlpha(shadow, 0.0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        painter.drawEllipse(centre + QPointF(0, 2), radius + 5, radius + 5);
    }
    if (fill.alpha() > 0 || outline.alpha() > 0) {
        // The shadow must not show through the translucent fill.
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Window));
        painter.drawEllipse(centre, radius, radius);
        painter.setBrush(fill);
        painter.setPen(QPen(outline, 1.5));
        painter.drawEllipse(centre, radius - 0.75, radius - 0.75);
    }
    if (hasFocus()) {
        painter.setPen(QPen(accent, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, radius + 2, radius + 2);
    }

    const QImage &image = emojiImage(m_selected);
    const QSizeF size = QSizeF(image.size()) / image.devicePixelRatio() * scale;
    painter.setOpacity(m_selected ? 1.0 : faintOpacity);
    painter.drawImage(QRectF(centre - QPointF(size.width() / 2, size.height() / 2), size), image);
}
