#pragma once

#include "core/changelog/ChangeLogEntry.h"

#include <QWidget>

class Clock;
class QLabel;
class RelativeTimeLabel;
class SymbolLabel;
class TimerFactory;

// One record of the change log: the kind's symbol, the message as it was stored, how long
// ago it happened (kept current), and the moment in the medium date and time format. The
// dates follow the system's locale, not the chosen language.
class ChangeLogEntryRow : public QWidget {
    Q_OBJECT
public:
    ChangeLogEntryRow(const ChangeLogEntry &entry, Clock &clock, TimerFactory &timers,
                      QWidget *parent = nullptr);

    const ChangeLogEntry &entry() const { return m_entry; }
    QLabel *messageLabel() const { return m_message; }
    RelativeTimeLabel *relativeTime() const { return m_relative; }
    QLabel *dateLabel() const { return m_date; }
    SymbolLabel *symbol() const { return m_symbol; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ChangeLogEntry m_entry;
    SymbolLabel *m_symbol;
    QLabel *m_message;
    RelativeTimeLabel *m_relative;
    QLabel *m_date;
};
