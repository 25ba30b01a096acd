#pragma once

#include "core/settings/AppearanceMode.h"
#include "ui/ViewEnvironment.h"

#include <QPointer>
#include <QWidget>

class BusySpinner;
class BuyMeCoffeeButton;
class QComboBox;
class QVBoxLayout;
class RowButton;
class SegmentedControl;
class ToggleSwitch;

// The first page of the settings window: what the program does, the settings of the whole
// application (appearance, language, coloured icon, launch at login), the update controls,
// the resets, and the donation link.
//
// Each control reacts to a change of its value the same way whether the user or the program
// made it: a reset that changes a setting reports that setting as a change of its own.
class GeneralSettingsView : public QWidget {
    Q_OBJECT
public:
    static constexpr const char *screenName = "settings_general";
    static constexpr std::chrono::seconds updateButtonHold{2};

    // Takes the language, settings, timers, prompter, log, updates, update sheet, both
    // guards, telemetry and login item of `environment`.
    explicit GeneralSettingsView(const ViewEnvironment &environment, QWidget *parent = nullptr);

    // Sets every application and guard setting back to its default; the targets, the
    // counters, the log and the update reminder snooze stay.
    void resetAllSettings();
    void resetAllCounters();
    void deleteAllLogs();
    void checkForUpdates();
    bool isCheckingForUpdates() const { return m_isCheckingForUpdates; }

    SegmentedControl *appearancePicker() const { return m_appearance; }
    QComboBox *languagePicker() const { return m_language; }
    ToggleSwitch *coloredIconSwitch() const { return m_coloredIcon; }
    ToggleSwitch *launchAtLoginSwitch() const { return m_launchAtLogin; }
    RowButton *checkForUpdatesButton() const { return m_checkButton; }
    BusySpinner *updateSpinner() const { return m_spinner; }
    QComboBox *updateIntervalPicker() const { return m_interval; }
    ToggleSwitch *checkAtStartupSwitch() const { return m_checkAtStartup; }
    enum class Reset { settings, counters, updateReminderSnooze, logs };
    RowButton *resetButton(Reset which) const;
    BuyMeCoffeeButton *donationButton() const { return m_donation; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeHeader();
    QWidget *makeFeatures();
    QWidget *makeSettings();
    QWidget *makeUpdates();
    QWidget *makeResets();
    QWidget *makeSupport();
    QWidget *section(const char *titleKey, QVBoxLayout **content);
    QWidget *settingRow(const char *labelKey, QWidget *control);
    void connectControls();
    void showStoredValue(const QString &key);
    void showLanguage();

    void appearanceChanged(int index);
    void setLaunchAtLogin(bool enabled);
    void setCheckingForUpdates(bool checking);
    void confirm(const char *keyPrefix, std::function<void()> action);
    void resetGuard(class HandlerGuard &guard);
    void track(const QString &setting, const QString &value);
    void track(const QString &setting, bool value);
    void retranslate();

    ViewEnvironment m_env;
    bool m_isCheckingForUpdates = false;

    SegmentedControl *m_appearance = nullptr;
    QComboBox *m_language = nullptr;
    ToggleSwitch *m_coloredIcon = nullptr;
    ToggleSwitch *m_launchAtLogin = nullptr;
    RowButton *m_checkButton = nullptr;
    BusySpinner *m_spinner = nullptr;
    QComboBox *m_interval = nullptr;
    ToggleSwitch *m_checkAtStartup = nullptr;
    QList<RowButton *> m_resets;
    BuyMeCoffeeButton *m_donation = nullptr;
};
