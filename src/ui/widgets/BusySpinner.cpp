#include "ui/widgets/BusySpinner.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace {

// Screen readers see the spinner as an animation rather than an unnamed pane.
QAccessibleInterface *accessibleSpinner(const QString &className, QObject *object)
{
    if (className == QLatin1String("BusySpinner") && object->isWidgetType())
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Animation);
    return nullptr;
}

} // namespace

BusySpinner::BusySpinner(QWidget *parent) : QWidget(parent)
{
    static const bool installed = [] {
        QAccessible::installFactory(accessibleSpinner);
        return true;
    }();
    Q_UNUSED(installed);
    setFixedSize(size, size);
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(360.0);
    m_turn.setDuration(900);
    m_turn.setLoopCount(-1);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void BusySpinner::paintArc(QPainter &painter, const QRectF &bounds, double angle,
                           const QColor &colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal pen = qMax(2.0, bounds.width() / 8);
    painter.setPen(QPen(colour, pen, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    const qreal inset = pen / 2 + 0.5;
    painter.drawArc(bounds.adjusted(inset, inset, -inset, -inset), int(-angle * 16), 270 * 16);
    painter.restore();
}

void BusySpinner::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintArc(painter, QRectF(rect()), m_turn.currentValue().toDouble(),
             palette().color(QPalette::PlaceholderText));
}

void BusySpinner::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_turn.start();
}

void BusySpinner::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_turn.stop();
}
