#include "ui/widgets/SegmentedControl.h"

#include "ui/Colours.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QStyle>

namespace {

constexpr int inset = 2;
constexpr qreal radius = 6;

// One segment: a radio button drawn as a caption, raised on a plate while it is chosen.
class Segment : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override
    {
        const QFontMetrics metrics = fontMetrics();
        return QSize(metrics.horizontalAdvance(text()) + 16, metrics.height() + 8);
    }
    QSize minimumSizeHint() const override { return QSize(0, sizeHint().height()); }

protected:
    bool hitButton(const QPoint &pos) const override { return rect().contains(pos); }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPalette &colours = palette();
        if (isChecked()) {
            const bool dark = colours.color(QPalette::Window).lightness() < 128;
            painter.setPen(QPen(withAlpha(Qt::black, dark ? 0.5 : 0.12), 0.8));
            painter.setBrush(dark ? colours.color(QPalette::Button).lighter(135)
                                  : QColor(Qt::white));
            painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius - 1,
                                    radius - 1);
        }
        if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(withAlpha(colours.color(QPalette::Highlight), 0.7), 2.0));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius - 1, radius - 1);
        }
        painter.setPen(colours.color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                     QPalette::WindowText));
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width() - 8);
        painter.drawText(rect(), Qt::AlignCenter, shown);
    }
};

} // namespace

SegmentedControl::SegmentedControl(int segmentCount, QWidget *parent)
    : QWidget(parent), m_group(new QButtonGroup(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(inset, inset, inset, inset);
    layout->setSpacing(0);
    for (int index = 0; index < segmentCount; ++index) {
        auto *segment = new Segment;
        segment->setFocusPolicy(Qt::TabFocus);
        m_group->addButton(segment, index);
        layout->addWidget(segment, 1);
    }
    connect(m_group, &QButtonGroup::idToggled, this, [this](int index, bool checked) {
        if (checked)
            Q_EMIT currentIndexChanged(index);
    });
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void SegmentedControl::setPreferredWidth(int width)
{
    m_preferredWidth = width;
    updateGeometry();
}

QSize SegmentedControl::sizeHint() const
{
    const QSize natural = QWidget::sizeHint();
    return QSize(std::max(natural.width(), m_preferredWidth), natural.height());
}

int SegmentedControl::count() const
{
    return int(m_group->buttons().size());
}

void SegmentedControl::setSegmentText(int index, const QString &text)
{
    if (QAbstractButton *button = segment(index))
        button->setText(text);
}

QAbstractButton *SegmentedControl::segment(int index) const
{
    return m_group->button(index);
}

int SegmentedControl::currentIndex() const
{
    return m_group->checkedId();
}

void SegmentedControl::setCurrentIndex(int index)
{
    if (QAbstractButton *button = segment(index))
        button->setChecked(true);
}

void SegmentedControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(palette().color(QPalette::WindowText), 0.09));
    painter.drawRoundedRect(QRectF(rect()), radius + 1, radius + 1);
}
