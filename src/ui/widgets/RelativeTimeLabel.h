#pragma once

#include <QDateTime>
#include <QLabel>

class Clock;
class Timer;
class TimerFactory;

// A moment as "2 hours ago" in the system's locale, kept up to date: a timer of the
// factory fires when the words would change, while the label is shown.
class RelativeTimeLabel : public QLabel {
    Q_OBJECT
public:
    RelativeTimeLabel(Clock &clock, TimerFactory &timers, QWidget *parent = nullptr);

    QDateTime dateTime() const { return m_when; }
    // An invalid moment shows nothing.
    void setDateTime(const QDateTime &when);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void refresh();

    Clock &m_clock;
    Timer *m_timer;
    QDateTime m_when;
};
