#pragma once

#include "core/guard/HandlerRecord.h"
#include "ui/guard/GuardPageProfile.h"

#include <QList>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>

class Clock;
class HandlerGuard;
class LanguageManager;
class ModalPrompter;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class RelativeTimeLabel;
class TimerFactory;
class ToggleSwitch;

// The settings page of one guard: its status, the target and the button that makes it the
// default, the counters, monitoring, the events that run a check, and the snooze. A thin
// layer: controls show the guard's state and write its settings or call its operations;
// everything that follows from that happens in the guard. The browser page and the mail
// page are this page with two profiles.
class GuardSettingsView : public QWidget {
    Q_OBJECT
public:
    struct Services {
        LanguageManager &language;
        Clock &clock;
        TimerFactory &timers;
        ModalPrompter &prompter;
    };

    GuardSettingsView(const GuardPageProfile &profile, HandlerGuard &guard,
                      const Services &services, QWidget *parent = nullptr);

    // The page's own choice in the target picker; it takes the guard's target each time
    // the page appears.
    const std::optional<HandlerRecord> &selection() const { return m_selection; }

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeStatusSection();
    QWidget *makeSelectionSection();
    QWidget *makeStatisticsSection();
    QWidget *makeMonitoringSection();
    QWidget *makeEventSection();
    QWidget *makeSnoozeSection();

    QLabel *text(const char *key, const char *name = nullptr);
    QLabel *secondary(QLabel *label);
    QPushButton *button(const char *key, const char *name, QPushButton *button = nullptr);
    QWidget *addRow(QVBoxLayout *column, QWidget *leading, QWidget *trailing,
                    const char *name = nullptr);
    ToggleSwitch *addSwitchRow(QVBoxLayout *column, const char *key, const char *name,
                               std::function<void(bool)> write);
    QComboBox *makePicker(GuardPageProfile::PickerWidth width, const char *name);

    void showGuard();
    void showSelection();
    void fillTargetPicker(bool force);
    void selectEntry(int index);
    void refresh();
    void retranslate();
    void applyColours();

    const GuardPageProfile &m_profile;
    HandlerGuard &m_guard;
    Services m_services;
    std::optional<HandlerRecord> m_selection;
    QList<HandlerRecord> m_pickerEntries;

    QLabel *m_currentName = nullptr;
    QLabel *m_noneDetected = nullptr;
    QLabel *m_noneInstalled = nullptr;
    QWidget *m_pickerRow = nullptr;
    QComboBox *m_targetPicker = nullptr;
    QWidget *m_details = nullptr;
    QLabel *m_bundleLine = nullptr;
    QWidget *m_alreadyDefault = nullptr;
    QWidget *m_changing = nullptr;
    QPushButton *m_setNow = nullptr;
    QPushButton *m_stop = nullptr;
    QLabel *m_changeCount = nullptr;
    QWidget *m_lastChangeDivider = nullptr;
    QWidget *m_lastChangeRow = nullptr;
    RelativeTimeLabel *m_lastChangeRelative = nullptr;
    QLabel *m_lastChangeDate = nullptr;
    ToggleSwitch *m_monitoring = nullptr;
    QLabel *m_selectToEnable = nullptr;
    QWidget *m_intervalRow = nullptr;
    QComboBox *m_intervalPicker = nullptr;
    QList<QWidget *> m_eventRows;
    ToggleSwitch *m_checkOnLogin = nullptr;
    ToggleSwitch *m_checkOnWake = nullptr;
    ToggleSwitch *m_checkOnUnlock = nullptr;
    QComboBox *m_snoozePicker = nullptr;
    QWidget *m_snoozedDivider = nullptr;
    QWidget *m_snoozedRow = nullptr;
    QPushButton *m_resetSnooze = nullptr;

    QPushButton *m_refresh = nullptr;
    QList<std::pair<QPushButton *, const char *>> m_buttonKeys;
    QList<std::pair<ToggleSwitch *, const char *>> m_switchKeys;
    QList<QLabel *> m_secondaryLabels;
    QList<QWidget *> m_greenWidgets;
    QList<QWidget *> m_orangeWidgets;
};
