#include "ui/widgets/RelativeTimeLabel.h"

#include "core/i18n/RelativeDateTime.h"
#include "core/support/Clock.h"
#include "foundation/Timer.h"
#include "foundation/TimerFactory.h"

RelativeTimeLabel::RelativeTimeLabel(Clock &clock, TimerFactory &timers, QWidget *parent)
    : QLabel(parent), m_clock(clock), m_timer(timers.createTimer(this))
{
    setTextFormat(Qt::PlainText);
    connect(m_timer, &Timer::timeout, this, &RelativeTimeLabel::refresh);
}

void RelativeTimeLabel::setDateTime(const QDateTime &when)
{
    m_when = when;
    refresh();
}

void RelativeTimeLabel::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    refresh();
}

void RelativeTimeLabel::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    m_timer->stop();
}

void RelativeTimeLabel::refresh()
{
    m_timer->stop();
    if (!m_when.isValid()) {
        clear();
        return;
    }
    const QDateTime now = m_clock.now();
    setText(RelativeDateTime::format(m_when, now, QLocale::system()));
    if (isVisible())
        m_timer->start(RelativeDateTime::untilNextChange(m_when, now), false);
}
