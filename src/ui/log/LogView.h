#pragma once

#include "core/changelog/ChangeLogEntry.h"

#include <QList>
#include <QWidget>

class ChangeLogEntryRow;
class Clock;
class LanguageManager;
class LogManager;
class ModalPrompter;
class QFileDialog;
class QLabel;
class QScrollArea;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;
class SegmentedControl;
class TimerFactory;

// The change log on screen: a filter, refresh, export and clear, and the records newest
// first. The page keeps its own copy of the log, read when it is shown and after its own
// actions; no timer reads the log.
class LogView : public QWidget {
    Q_OBJECT
public:
    enum class LogFilterType { all, browser, email };

    LogView(LanguageManager &language, LogManager &log, Clock &clock, TimerFactory &timers,
            ModalPrompter &prompter, QWidget *parent = nullptr);

    void refreshLogs();
    // Opens a save dialog without blocking; the file is written when it is accepted.
    void exportLogs();
    // Asks first; then clears the whole log, whatever the filter shows.
    void clearLogs();

    LogFilterType filterType() const;
    void setFilterType(LogFilterType filter);
    QList<ChangeLogEntry> filteredLogs() const;

    // "<log_export_filename>-<today, numeric>.txt", a "/" of the date turned into "-".
    QString proposedFileName() const;
    // The records' descriptions, a blank line between them, no line end after the last.
    static QByteArray exportText(const QList<ChangeLogEntry> &records);

    SegmentedControl *filterControl() const { return m_filter; }
    QPushButton *refreshButton() const { return m_refresh; }
    QPushButton *exportButton() const { return m_export; }
    QPushButton *clearButton() const { return m_clear; }
    // The export dialog while it is open.
    QFileDialog *exportDialog() const;
    // The empty state while it shows, else none.
    QWidget *emptyState() const;
    // Rows built so far, top first; more are built as the list scrolls.
    QList<ChangeLogEntryRow *> rows() const;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeToolbar();
    QWidget *makeEmptyState();
    QScrollArea *makeList();
    void showLogs();
    void buildMoreRows();
    void writeExport(const QString &path) const;
    void retranslate();
    void applyColours();

    LanguageManager &m_language;
    LogManager &m_log;
    Clock &m_clock;
    TimerFactory &m_timers;
    ModalPrompter &m_prompter;
    QList<ChangeLogEntry> m_logs;
    QList<ChangeLogEntry> m_shown;

    SegmentedControl *m_filter = nullptr;
    QPushButton *m_refresh = nullptr;
    QPushButton *m_export = nullptr;
    QPushButton *m_clear = nullptr;
    QStackedWidget *m_content = nullptr;
    QWidget *m_empty = nullptr;
    QScrollArea *m_list = nullptr;
    QVBoxLayout *m_rowsLayout = nullptr;
    QList<ChangeLogEntryRow *> m_rows;
};
