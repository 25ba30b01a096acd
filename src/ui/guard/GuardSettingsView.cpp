#include "ui/guard/GuardSettingsView.h"

#include "core/changelog/MediumDateTime.h"
#include "core/guard/CheckInterval.h"
#include "core/guard/HandlerGuard.h"
#include "core/guard/SnoozeDuration.h"
#include "core/i18n/LanguageManager.h"
#include "platform/ModalPrompter.h"
#include "ui/Colours.h"
#include "ui/LocalizedText.h"
#include "ui/SymbolTable.h"
#include "ui/widgets/BusySpinner.h"
#include "ui/widgets/PageScrollArea.h"
#include "ui/widgets/ProminentButton.h"
#include "ui/widgets/RelativeTimeLabel.h"
#include "ui/widgets/SymbolGroupBox.h"
#include "ui/widgets/SymbolLabel.h"
#include "ui/widgets/ToggleSwitch.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

QString keyText(const char *key)
{
    return QString::fromLatin1(key);
}

QFont scaled(QFont font, double factor, QFont::Weight weight = QFont::Normal)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

QFrame *divider()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QHBoxLayout *bareRow(QWidget *owner, int spacing)
{
    auto *layout = new QHBoxLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

// A colour for one role in the active and inactive states; disabled keeps the style's grey.
void setColour(QWidget *widget, QPalette::ColorRole role, const QColor &colour)
{
    QPalette own = widget->palette();
    own.setColor(QPalette::Active, role, colour);
    own.setColor(QPalette::Inactive, role, colour);
    widget->setPalette(own);
}

void tint(QWidget *widget, const QColor &colour)
{
    if (auto *symbol = qobject_cast<SymbolLabel *>(widget))
        symbol->setColour(colour);
    else
        setColour(widget, QPalette::WindowText, colour);
}

// Shows the one of `choices` that matches `value` without telling the page of a change.
template <typename Choice>
void showChoice(QComboBox *picker, const QList<Choice> &choices, Choice value)
{
    const QSignalBlocker quiet(picker);
    picker->setCurrentIndex(int(choices.indexOf(value)));
}

} // namespace

GuardSettingsView::GuardSettingsView(const GuardPageProfile &profile, HandlerGuard &guard,
                                     const Services &services, QWidget *parent)
    : QWidget(parent), m_profile(profile), m_guard(guard), m_services(services),
      m_selection(guard.target())
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(20);
    for (QWidget *section : {makeStatusSection(), makeSelectionSection(), makeStatisticsSection(),
                             makeMonitoringSection(), makeEventSection(), makeSnoozeSection()})
        column->addWidget(section);
    column->addStretch();

    PageScrollArea::fill(this, content);

    connect(&m_guard, &HandlerGuard::objectWillChange, this, &GuardSettingsView::showGuard);
    connect(&m_services.language, &LanguageManager::bundleChanged, this,
            &GuardSettingsView::retranslate);
    retranslate();
    applyColours();
}

// --- sections -----------------------------------------------------------------------------

QWidget *GuardSettingsView::makeStatusSection()
{
    auto *box = new SymbolGroupBox(QStringLiteral("info.circle"), keyText(m_profile.statusTitleKey),
                                   m_services.language);
    auto *caption = secondary(text(m_profile.currentKey));
    caption->setFont(scaled(caption->font(), 0.85));
    m_currentName = new QLabel;
    m_currentName->setObjectName(QStringLiteral("currentDefault"));
    m_currentName->setTextFormat(Qt::PlainText);
    m_currentName->setWordWrap(true);
    m_currentName->setFont(scaled(m_currentName->font(), 1.15, QFont::Medium));
    m_noneDetected = secondary(text(m_profile.noneDetectedKey, "noneDetected"));
    m_noneDetected->setFont(m_currentName->font());

    auto *lines = new QVBoxLayout;
    lines->setSpacing(4);
    lines->addWidget(caption);
    lines->addWidget(m_currentName);
    lines->addWidget(m_noneDetected);
    m_refresh = button(m_profile.refreshKey, "refreshButton");
    connect(m_refresh, &QPushButton::clicked, this, &GuardSettingsView::refresh);
    auto *row = new QHBoxLayout;
    row->addLayout(lines, 1);
    row->addWidget(m_refresh, 0, Qt::AlignVCenter);
    box->contentLayout()->addLayout(row);
    return box;
}

QWidget *GuardSettingsView::makeSelectionSection()
{
    auto *box = new SymbolGroupBox(keyText(m_profile.targetSymbol),
                                   keyText(m_profile.targetTitleKey), m_services.language);
    QVBoxLayout *column = box->contentLayout();
    m_noneInstalled = secondary(text(m_profile.noneInstalledKey, "noneInstalled"));
    QFont italic = m_noneInstalled->font();
    italic.setItalic(true);
    m_noneInstalled->setFont(italic);
    column->addWidget(m_noneInstalled);

    m_targetPicker = makePicker(m_profile.targetPicker, "targetPicker");
    connect(m_targetPicker, &QComboBox::currentIndexChanged, this, &GuardSettingsView::selectEntry);
    m_pickerRow = addRow(column, text(m_profile.selectTargetKey), m_targetPicker);

    m_details = new QWidget;
    auto *details = new QVBoxLayout(m_details);
    details->setContentsMargins(0, 0, 0, 0);
    details->setSpacing(8);
    m_bundleLine = secondary(new QLabel);
    m_bundleLine->setObjectName(QStringLiteral("bundleLine"));
    m_bundleLine->setTextFormat(Qt::PlainText);
    m_bundleLine->setWordWrap(true);
    details->addWidget(m_bundleLine);

    m_alreadyDefault = new QWidget;
    m_alreadyDefault->setObjectName(QStringLiteral("alreadyDefault"));
    QHBoxLayout *defaultRow = bareRow(m_alreadyDefault, 6);
    auto *check = new SymbolLabel(QStringLiteral("checkmark.circle.fill"), 16);
    auto *defaultText = text(m_profile.alreadyDefaultKey);
    m_greenWidgets = {check, defaultText};
    defaultRow->addWidget(check);
    defaultRow->addWidget(defaultText);

    m_changing = new QWidget;
    m_changing->setObjectName(QStringLiteral("changing"));
    QHBoxLayout *changingRow = bareRow(m_changing, 8);
    changingRow->addWidget(new BusySpinner);
    changingRow->addWidget(text(m_profile.waitingPromptKey));
    m_stop = button(m_profile.stopKey, "stopButton");
    m_stop->setFont(scaled(m_stop->font(), 0.9));
    connect(m_stop, &QPushButton::clicked, &m_guard, &HandlerGuard::cancelChange);
    changingRow->addWidget(m_stop);

    m_setNow = button(m_profile.setNowKey, "setNowButton", new ProminentButton);
    connect(m_setNow, &QPushButton::clicked, this, [this] {
        if (m_selection)
            m_guard.setDefault(*m_selection);
    });

    auto *actions = new QHBoxLayout;
    actions->addStretch();
    for (QWidget *state : {m_alreadyDefault, m_changing, static_cast<QWidget *>(m_setNow)})
        actions->addWidget(state);
    details->addLayout(actions);
    column->addWidget(m_details);

    auto *description = text(m_profile.selectDescriptionKey);
    description->setWordWrap(true);
    column->addWidget(description);
    return box;
}

QWidget *GuardSettingsView::makeStatisticsSection()
{
    auto *box = new SymbolGroupBox(QStringLiteral("chart.bar"),
                                   keyText(m_profile.statisticsTitleKey), m_services.language);
    QVBoxLayout *column = box->contentLayout();
    m_changeCount = new QLabel;
    m_changeCount->setObjectName(QStringLiteral("changeCount"));
    m_changeCount->setFont(scaled(m_changeCount->font(), 1.0, QFont::Medium));
    addRow(column, text(m_profile.changesDetectedKey), m_changeCount);

    m_lastChangeDivider = divider();
    column->addWidget(m_lastChangeDivider);
    m_lastChangeRelative = new RelativeTimeLabel(m_services.clock, m_services.timers);
    m_lastChangeRelative->setObjectName(QStringLiteral("lastChangeRelative"));
    m_lastChangeRelative->setFont(scaled(m_lastChangeRelative->font(), 1.0, QFont::Medium));
    m_lastChangeRelative->setAlignment(Qt::AlignRight);
    m_lastChangeDate = secondary(new QLabel);
    m_lastChangeDate->setObjectName(QStringLiteral("lastChangeDate"));
    m_lastChangeDate->setFont(scaled(m_lastChangeDate->font(), 0.8));
    m_lastChangeDate->setAlignment(Qt::AlignRight);
    auto *when = new QWidget;
    auto *lines = new QVBoxLayout(when);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(2);
    lines->addWidget(m_lastChangeRelative);
    lines->addWidget(m_lastChangeDate);
    m_lastChangeRow = addRow(column, text(m_profile.lastChangeKey), when, "lastChangeRow");
    return box;
}

QWidget *GuardSettingsView::makeMonitoringSection()
{
    auto *box = new SymbolGroupBox(QStringLiteral("eye"), keyText(m_profile.monitoringTitleKey),
                                   m_services.language);
    QVBoxLayout *column = box->contentLayout();
    m_monitoring = addSwitchRow(column, m_profile.enableMonitoringKey, "monitoringSwitch",
                                [this](bool on) { m_guard.setMonitoringEnabled(on); });
    m_selectToEnable = text(m_profile.selectToEnableKey, "selectToEnable");
    m_selectToEnable->setWordWrap(true);
    m_orangeWidgets.append(m_selectToEnable);
    column->addWidget(m_selectToEnable);
    column->addWidget(divider());

    m_intervalPicker = makePicker(m_profile.intervalPicker, "intervalPicker");
    connect(m_intervalPicker, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            m_guard.setCheckInterval(CheckInterval::allCases().at(index));
    });
    m_intervalRow = addRow(column, text(m_profile.checkIntervalKey), m_intervalPicker);
    return box;
}

QWidget *GuardSettingsView::makeEventSection()
{
    auto *box = new SymbolGroupBox(QStringLiteral("bolt"),
                                   keyText(m_profile.eventMonitoringTitleKey), m_services.language);
    QVBoxLayout *column = box->contentLayout();
    m_checkOnLogin = addSwitchRow(column, m_profile.checkOnLoginKey, "checkOnLoginSwitch",
                                  [this](bool on) { m_guard.setCheckOnLogin(on); });
    m_checkOnWake = addSwitchRow(column, m_profile.checkOnWakeKey, "checkOnWakeSwitch",
                                 [this](bool on) { m_guard.setCheckOnWake(on); });
    m_checkOnUnlock = addSwitchRow(column, m_profile.checkOnUnlockKey, "checkOnUnlockSwitch",
                                   [this](bool on) { m_guard.setCheckOnUnlock(on); });
    for (ToggleSwitch *toggle : {m_checkOnLogin, m_checkOnWake, m_checkOnUnlock})
        m_eventRows.append(toggle->parentWidget());
    return box;
}

QWidget *GuardSettingsView::makeSnoozeSection()
{
    auto *box = new SymbolGroupBox(QStringLiteral("moon.zzz"), keyText(m_profile.snoozeTitleKey),
                                   m_services.language);
    QVBoxLayout *column = box->contentLayout();
    m_snoozePicker = makePicker(m_profile.snoozePicker, "snoozePicker");
    connect(m_snoozePicker, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            m_guard.setSnoozeDuration(SnoozeDuration::allCases().at(index));
    });
    addRow(column, text(m_profile.snoozeDurationKey), m_snoozePicker);
    auto *description = text(m_profile.snoozeDescriptionKey);
    description->setWordWrap(true);
    column->addWidget(description);

    m_snoozedDivider = divider();
    column->addWidget(m_snoozedDivider);
    auto *snoozed = new QWidget;
    QHBoxLayout *snoozedLine = bareRow(snoozed, 8);
    auto *moon = new SymbolLabel(QStringLiteral("moon.zzz.fill"), 16);
    auto *snoozedText = text(m_profile.currentlySnoozedKey);
    m_orangeWidgets.append({moon, snoozedText});
    snoozedLine->addWidget(moon);
    snoozedLine->addWidget(snoozedText);
    auto *resetSnooze = new ProminentButton;
    resetSnooze->setFill(StateColour::orange);
    m_resetSnooze = button(m_profile.resetSnoozeKey, "resetSnoozeButton", resetSnooze);
    m_resetSnooze->setFont(scaled(m_resetSnooze->font(), 0.9));
    connect(m_resetSnooze, &QPushButton::clicked, &m_guard, &HandlerGuard::resetSnooze);
    m_snoozedRow = addRow(column, snoozed, m_resetSnooze, "snoozedRow");
    return box;
}

// --- building blocks ------------------------------------------------------------------------

QLabel *GuardSettingsView::text(const char *key, const char *name)
{
    auto *label = new LocalizedText(keyText(key), m_services.language);
    if (name)
        label->setObjectName(QLatin1String(name));
    return label;
}

QLabel *GuardSettingsView::secondary(QLabel *label)
{
    m_secondaryLabels.append(label);
    return label;
}

QPushButton *GuardSettingsView::button(const char *key, const char *name, QPushButton *button)
{
    if (!button)
        button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    m_buttonKeys.append({button, key});
    return button;
}

// A label, free space and a control; the label names the control for screen readers.
QWidget *GuardSettingsView::addRow(QVBoxLayout *column, QWidget *leading, QWidget *trailing,
                                   const char *name)
{
    auto *row = new QWidget;
    if (name)
        row->setObjectName(QLatin1String(name));
    QHBoxLayout *layout = bareRow(row, 24);
    layout->addWidget(leading);
    if (m_profile.stretchRows)
        layout->addStretch();
    layout->addWidget(trailing);
    if (!m_profile.stretchRows)
        layout->addStretch();
    if (auto *label = qobject_cast<QLabel *>(leading))
        label->setBuddy(trailing);
    column->addWidget(row);
    return row;
}

ToggleSwitch *GuardSettingsView::addSwitchRow(QVBoxLayout *column, const char *key,
                                              const char *name, std::function<void(bool)> write)
{
    auto *toggle = new ToggleSwitch;
    toggle->setObjectName(QLatin1String(name));
    m_switchKeys.append({toggle, key});
    connect(toggle, &QAbstractButton::toggled, &m_guard, std::move(write));
    addRow(column, text(key), toggle);
    return toggle;
}

QComboBox *GuardSettingsView::makePicker(GuardPageProfile::PickerWidth width, const char *name)
{
    auto *picker = new QComboBox;
    picker->setObjectName(QLatin1String(name));
    picker->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    if (width.exact)
        picker->setFixedWidth(width.points);
    else
        picker->setMaximumWidth(width.points);
    return picker;
}

// --- reading the guard -------------------------------------------------------------------------

void GuardSettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    m_selection = m_guard.target();
    showGuard();
}

void GuardSettingsView::showGuard()
{
    const std::optional<HandlerRecord> &current = m_guard.currentDefault();
    m_currentName->setVisible(current.has_value());
    m_noneDetected->setVisible(!current);
    if (current)
        m_currentName->setText(current->name);

    fillTargetPicker(false);
    showSelection();

    m_changeCount->setText(QString::number(m_guard.changeCount()));
    const std::optional<QDateTime> lastChange = m_guard.lastChange();
    m_lastChangeDivider->setVisible(lastChange.has_value());
    m_lastChangeRow->setVisible(lastChange.has_value());
    m_lastChangeRelative->setDateTime(lastChange.value_or(QDateTime()));
    if (lastChange)
        m_lastChangeDate->setText(
            MediumDateTime::format(double(lastChange->toMSecsSinceEpoch()), QLocale::system()));

    const bool monitoring = m_guard.monitoringEnabled();
    const bool hasTarget = m_guard.target().has_value();
    const auto showSwitch = [](ToggleSwitch *toggle, bool on) {
        const QSignalBlocker quiet(toggle);
        toggle->setChecked(on);
    };
    showSwitch(m_monitoring, monitoring);
    m_monitoring->setEnabled(hasTarget);
    m_selectToEnable->setVisible(!hasTarget);
    showChoice(m_intervalPicker, CheckInterval::allCases(), m_guard.checkInterval());
    m_intervalRow->setEnabled(monitoring);
    showSwitch(m_checkOnLogin, m_guard.checkOnLogin());
    showSwitch(m_checkOnWake, m_guard.checkOnWake());
    showSwitch(m_checkOnUnlock, m_guard.checkOnUnlock());
    for (QWidget *row : std::as_const(m_eventRows))
        row->setEnabled(monitoring);

    showChoice(m_snoozePicker, SnoozeDuration::allCases(), m_guard.snoozeDuration());
    m_snoozedDivider->setVisible(m_guard.isSnoozed());
    m_snoozedRow->setVisible(m_guard.isSnoozed());
}

void GuardSettingsView::showSelection()
{
    const bool none = m_pickerEntries.isEmpty();
    m_noneInstalled->setVisible(none);
    m_pickerRow->setVisible(!none);
    // A target that is not installed shows no entry, though its details do show.
    int entry = 0;
    if (m_selection)
        entry = m_pickerEntries.contains(*m_selection)
                    ? int(m_pickerEntries.indexOf(*m_selection)) + 1
                    : -1;
    {
        const QSignalBlocker quiet(m_targetPicker);
        m_targetPicker->setCurrentIndex(entry);
    }
    m_details->setVisible(!none && m_selection);
    if (!m_selection)
        return;
    m_bundleLine->setText(m_services.language.localizedFormat(keyText(m_profile.bundleIdKey),
                                                              {m_selection->bundleIdentifier}));
    const std::optional<HandlerRecord> &current = m_guard.currentDefault();
    const bool isDefault = current && current->bundleIdentifier == m_selection->bundleIdentifier;
    m_alreadyDefault->setVisible(isDefault);
    m_changing->setVisible(!isDefault && m_guard.isChanging());
    m_setNow->setVisible(!isDefault && !m_guard.isChanging());
}

// The installed list again when it changed (or its texts did); an open picker stays put
// through the once-a-second reads of a running change.
void GuardSettingsView::fillTargetPicker(bool force)
{
    const QList<HandlerRecord> &installed = m_guard.installed();
    const auto sameEntries = [&] {
        if (installed.size() != m_pickerEntries.size())
            return false;
        for (qsizetype i = 0; i < installed.size(); ++i)
            if (!(installed.at(i) == m_pickerEntries.at(i))
                || installed.at(i).name != m_pickerEntries.at(i).name)
                return false;
        return true;
    };
    if (!force && sameEntries())
        return;
    m_pickerEntries = installed;
    const QSignalBlocker quiet(m_targetPicker);
    m_targetPicker->clear();
    m_targetPicker->addItem(m_services.language.localizedString(keyText(m_profile.noneKey)));
    for (const HandlerRecord &record : std::as_const(m_pickerEntries))
        m_targetPicker->addItem(record.name);
}

// --- acting on the guard --------------------------------------------------------------------

void GuardSettingsView::selectEntry(int index)
{
    if (index < 0)
        return;
    m_selection = index == 0 ? std::nullopt : std::optional(m_pickerEntries.at(index - 1));
    m_guard.setTarget(m_selection);
}

// The count is read after the refresh, so it holds what the refresh found.
void GuardSettingsView::refresh()
{
    m_guard.refresh();
    const LanguageManager &language = m_services.language;
    ModalPrompt prompt;
    prompt.title = language.localizedString(keyText(m_profile.refreshAlertTitleKey));
    prompt.text = language.localizedFormat(keyText(m_profile.refreshAlertMessageKey),
                                           {qint64(m_guard.installed().size())});
    prompt.buttons = {language.localizedString(keyText(m_profile.okKey))};
    m_services.prompter.present(prompt, [](int) {});
}

// --- texts and colours ---------------------------------------------------------------------------

void GuardSettingsView::retranslate()
{
    const LanguageManager &language = m_services.language;
    for (const auto &[button, key] : std::as_const(m_buttonKeys))
        button->setText(language.localizedString(keyText(key)));
    for (const auto &[toggle, key] : std::as_const(m_switchKeys))
        toggle->setAccessibleName(language.localizedString(keyText(key)));
    {
        const QSignalBlocker quietInterval(m_intervalPicker);
        const QSignalBlocker quietSnooze(m_snoozePicker);
        m_intervalPicker->clear();
        for (const CheckInterval interval : CheckInterval::allCases())
            m_intervalPicker->addItem(interval.displayName(m_services.language));
        m_snoozePicker->clear();
        for (const SnoozeDuration duration : SnoozeDuration::allCases())
            m_snoozePicker->addItem(duration.displayName(m_services.language));
    }
    fillTargetPicker(true);
    showGuard();
}

void GuardSettingsView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

void GuardSettingsView::applyColours()
{
    const QPalette &colours = palette();
    for (QLabel *label : std::as_const(m_secondaryLabels))
        setColour(label, QPalette::WindowText, colours.color(QPalette::PlaceholderText));
    for (QWidget *widget : std::as_const(m_greenWidgets))
        tint(widget, StateColour::green);
    for (QWidget *widget : std::as_const(m_orangeWidgets))
        tint(widget, StateColour::orange);

    setColour(m_stop, QPalette::ButtonText, StateColour::red);
    const int iconSize = m_refresh->fontMetrics().height();
    m_refresh->setIconSize(QSize(iconSize, iconSize));
    m_refresh->setIcon(SymbolTable::tinted(QStringLiteral("arrow.clockwise"),
                                           colours.color(QPalette::ButtonText), iconSize));
}
