#include "ui/general/GeneralSettingsView.h"

#include "core/changelog/LogManager.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "core/support/AppInfo.h"
#include "core/telemetry/Telemetry.h"
#include "core/updates/AppcastUpdaterController.h"
#include "core/updates/UpdateCheckInterval.h"
#include "core/updates/UpdateManager.h"
#include "core/updates/UpdateSheetPresenter.h"
#include "foundation/Console.h"
#include "foundation/TimerFactory.h"
#include "platform/LoginItem.h"
#include "platform/ModalPrompter.h"
#include "ui/Appearance.h"
#include "ui/Colours.h"
#include "ui/LocalizedText.h"
#include "ui/ProductHeader.h"
#include "ui/TextStyle.h"
#include "ui/general/BuyMeCoffeeButton.h"
#include "ui/general/FeatureRow.h"
#include "ui/widgets/BusySpinner.h"
#include "ui/widgets/RowButton.h"
#include "ui/widgets/SegmentedControl.h"
#include "ui/widgets/ToggleSwitch.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QFrame>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

const QColor systemBlue(0x00, 0x7A, 0xFF);
constexpr int appearanceWidth = 200;
constexpr int languageWidth = 200;
constexpr int intervalWidth = 170;

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QFrame *divider()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QLabel *centredSecondary(QLabel *label)
{
    label->setAlignment(Qt::AlignHCenter);
    label->setWordWrap(true);
    TextStyle::makeSecondary(label);
    return label;
}

struct ResetRow {
    GeneralSettingsView::Reset which;
    const char *symbol;
    const char *key;
    QColor tint;
};

const ResetRow resetRows[] = {
    {GeneralSettingsView::Reset::settings, "arrow.counterclockwise", "general_reset_settings",
     systemBlue},
    {GeneralSettingsView::Reset::counters, "chart.bar.xaxis", "general_reset_counters",
     StateColour::orange},
    {GeneralSettingsView::Reset::updateReminderSnooze, "bell.slash",
     "general_reset_update_reminder_snooze", StateColour::orange},
    {GeneralSettingsView::Reset::logs, "trash", "general_delete_logs", StateColour::red},
};

} // namespace

GeneralSettingsView::GeneralSettingsView(const ViewEnvironment &environment, QWidget *parent)
    : QWidget(parent), m_env(environment)
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(20);
    const QList<QWidget *> sections{makeHeader(),  makeFeatures(), makeSettings(),
                                    makeUpdates(), makeResets(),   makeSupport()};
    for (QWidget *part : sections) {
        if (part != sections.first())
            column->addWidget(divider());
        column->addWidget(part);
    }
    column->addStretch(1);

    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(content);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);

    for (const QLatin1StringView key :
         {SettingsTable::showColoredMenuBarIcon.key(), SettingsTable::appearanceMode.key(),
          SettingsTable::checkForUpdatesAtStartup.key(), SettingsTable::updateCheckInterval.key()})
        showStoredValue(key);
    showLanguage();
    retranslate();
    connectControls();
}

QWidget *GeneralSettingsView::makeHeader()
{
    auto *header = new QWidget;
    auto *layout = new QVBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(new ProductHeader(*m_env.language, 64, TextStyle::largeTitle));
    layout->addWidget(centredSecondary(
        new LocalizedText(QStringLiteral("general_description"), *m_env.language)));
    return header;
}

QWidget *GeneralSettingsView::section(const char *titleKey, QVBoxLayout **content)
{
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto *title = new LocalizedText(QLatin1String(titleKey), *m_env.language);
    TextStyle::apply(title, TextStyle::headline);
    layout->addWidget(title);
    *content = layout;
    return block;
}

QWidget *GeneralSettingsView::makeFeatures()
{
    QVBoxLayout *content = nullptr;
    QWidget *block = section("general_features_title", &content);
    content->setSpacing(8);
    const std::pair<const char *, const char *> features[] = {
        {"shield.fill", "general_feature_1"},    {"bell.fill", "general_feature_2"},
        {"clock.fill", "general_feature_3"},     {"arrow.clockwise", "general_feature_4"},
        {"chart.bar.fill", "general_feature_5"},
    };
    for (const auto &[icon, key] : features)
        content->addWidget(
            new FeatureRow(*m_env.language, QLatin1String(icon), QLatin1String(key)));
    return block;
}

QWidget *GeneralSettingsView::settingRow(const char *labelKey, QWidget *control)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto *label = new LocalizedText(QLatin1String(labelKey), *m_env.language);
    label->setWordWrap(true);
    layout->addWidget(label, 1);
    layout->addWidget(control, 0, Qt::AlignVCenter);
    control->setProperty("labelKey", QLatin1String(labelKey));
    return row;
}

QWidget *GeneralSettingsView::makeSettings()
{
    QVBoxLayout *content = nullptr;
    QWidget *block = section("general_settings_title", &content);
    m_appearance = new SegmentedControl(int(AppearanceMode::allCases().size()));
    m_appearance->setPreferredWidth(appearanceWidth);
    content->addWidget(settingRow("general_appearance", m_appearance));
    m_language = new QComboBox;
    m_language->setFixedWidth(languageWidth);
    for (const AppLanguage language : AppLanguage::allCases())
        m_language->addItem(language.displayName());
    content->addWidget(settingRow("general_language", m_language));
    m_coloredIcon = new ToggleSwitch;
    content->addWidget(settingRow("general_colored_icon", m_coloredIcon));
    m_launchAtLogin = new ToggleSwitch;
    content->addWidget(settingRow("general_launch_at_login", m_launchAtLogin));
    return block;
}

QWidget *GeneralSettingsView::makeUpdates()
{
    QVBoxLayout *content = nullptr;
    QWidget *block = section("general_updates_title", &content);
    m_checkButton = new RowButton(QStringLiteral("arrow.down.circle"));
    m_checkButton->setTint(systemBlue);
    m_spinner = new BusySpinner;
    m_spinner->hide();
    m_checkButton->setTrailingWidget(m_spinner);
    content->addWidget(m_checkButton);
    m_interval = new QComboBox;
    m_interval->setFixedWidth(intervalWidth);
    for (int i = 0; i < UpdateCheckInterval::allCases().size(); ++i)
        m_interval->addItem(QString());
    content->addWidget(settingRow("general_update_check_interval", m_interval));
    m_checkAtStartup = new ToggleSwitch;
    content->addWidget(settingRow("general_check_at_startup", m_checkAtStartup));
    return block;
}

QWidget *GeneralSettingsView::makeResets()
{
    QVBoxLayout *content = nullptr;
    QWidget *block = section("general_reset_title", &content);
    content->setSpacing(8);
    for (const ResetRow &row : resetRows) {
        auto *button = new RowButton(QLatin1String(row.symbol));
        button->setProperty("key", QLatin1String(row.key));
        button->setTint(row.tint);
        button->setForeground(row.tint);
        content->addWidget(button);
        m_resets.append(button);
    }
    return block;
}

QWidget *GeneralSettingsView::makeSupport()
{
    QVBoxLayout *content = nullptr;
    QWidget *block = section("general_support_title", &content);
    content->addWidget(centredSecondary(
        new LocalizedText(QStringLiteral("general_support_description"), *m_env.language)));
    m_donation = new BuyMeCoffeeButton(*m_env.language);
    content->addWidget(m_donation, 0, Qt::AlignHCenter);
    return block;
}

RowButton *GeneralSettingsView::resetButton(Reset which) const
{
    return m_resets.value(int(which));
}

void GeneralSettingsView::connectControls()
{
    connect(m_appearance, &SegmentedControl::currentIndexChanged, this,
            &GeneralSettingsView::appearanceChanged);
    connect(m_language, &QComboBox::activated, this, [this](int index) {
        m_env.language->setCurrentLanguage(AppLanguage::allCases().at(index));
    });
    connect(m_language, &QComboBox::currentIndexChanged, this, [this](int index) {
        track(QStringLiteral("language"), AppLanguage::allCases().at(index).rawValue());
    });
    connect(m_coloredIcon, &ToggleSwitch::toggled, this, [this](bool on) {
        m_env.settings->set(SettingsTable::showColoredMenuBarIcon, on);
        track(QStringLiteral("colored_menu_bar_icon"), on);
    });
    connect(m_launchAtLogin, &ToggleSwitch::toggled, this, [this](bool on) {
        setLaunchAtLogin(on);
        track(QStringLiteral("launch_at_login"), on);
    });

    connect(m_checkButton, &RowButton::clicked, this, &GeneralSettingsView::checkForUpdates);
    connect(m_interval, &QComboBox::activated, this, [this](int index) {
        m_env.settings->set(SettingsTable::updateCheckInterval,
                            UpdateCheckInterval::allCases().at(index).rawValue());
    });
    connect(m_interval, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            track(QStringLiteral("update_check_interval"),
                  UpdateCheckInterval::allCases().at(index).rawValue());
    });
    connect(m_checkAtStartup, &ToggleSwitch::toggled, this, [this](bool on) {
        m_env.settings->set(SettingsTable::checkForUpdatesAtStartup, on);
        track(QStringLiteral("check_updates_at_startup"), on);
    });

    connect(resetButton(Reset::settings), &RowButton::clicked, this, [this] {
        confirm("general_reset_settings", [this] {
            resetAllSettings();
            track(QStringLiteral("reset_all_settings"), true);
        });
    });
    connect(resetButton(Reset::counters), &RowButton::clicked, this, [this] {
        confirm("general_reset_counters", [this] {
            resetAllCounters();
            track(QStringLiteral("reset_counters"), true);
        });
    });
    connect(resetButton(Reset::updateReminderSnooze), &RowButton::clicked, this, [this] {
        m_env.updates->resetAutoReminderSnooze();
        track(QStringLiteral("reset_update_reminder_snooze"), true);
    });
    connect(resetButton(Reset::logs), &RowButton::clicked, this, [this] {
        confirm("general_delete_logs", [this] {
            deleteAllLogs();
            track(QStringLiteral("delete_logs"), true);
        });
    });

    connect(m_donation, &BuyMeCoffeeButton::clicked, this, [this] {
        QDesktopServices::openUrl(AppInfo::donationURL());
        m_env.telemetry->trackEvent(
            QStringLiteral("support_link_clicked"),
            {{QStringLiteral("source"), QStringLiteral("buy_me_coffee_button")}});
    });

    connect(m_env.settings, &SettingsStore::changed, this, &GeneralSettingsView::showStoredValue);
    connect(m_env.language, &LanguageManager::currentLanguageChanged, this,
            &GeneralSettingsView::showLanguage);
    connect(m_env.language, &LanguageManager::bundleChanged, this,
            &GeneralSettingsView::retranslate);
}

// Puts a stored value into its control. The control tells of a change as it would of the
// user's, so the change's own reaction follows.
void GeneralSettingsView::showStoredValue(const QString &key)
{
    const SettingsStore &settings = *m_env.settings;
    if (key == SettingsTable::showColoredMenuBarIcon.key()) {
        m_coloredIcon->setChecked(settings.value(SettingsTable::showColoredMenuBarIcon));
    } else if (key == SettingsTable::appearanceMode.key()) {
        const QString raw = *settings.value(SettingsTable::appearanceMode);
        m_appearance->setCurrentIndex(
            int(AppearanceMode::fromRawValue(raw).value_or(AppearanceMode::system)));
    } else if (key == SettingsTable::checkForUpdatesAtStartup.key()) {
        m_checkAtStartup->setChecked(settings.value(SettingsTable::checkForUpdatesAtStartup));
    } else if (key == SettingsTable::updateCheckInterval.key()) {
        const QString raw = *settings.value(SettingsTable::updateCheckInterval);
        const auto interval = UpdateCheckInterval::fromRawValue(raw);
        m_interval->setCurrentIndex(interval ? int(UpdateCheckInterval::Value(*interval)) : -1);
    }
}

void GeneralSettingsView::showLanguage()
{
    m_language->setCurrentIndex(int(AppLanguage::Value(m_env.language->currentLanguage())));
}

void GeneralSettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_launchAtLogin->setChecked(m_env.loginItem->isEnabled());
    const QString raw = *m_env.settings->value(SettingsTable::appearanceMode);
    if (const auto mode = AppearanceMode::fromRawValue(raw))
        Appearance::applyAtNextTurn(*mode);
    m_env.telemetry->trackScreenView(QLatin1String(screenName));
}

void GeneralSettingsView::appearanceChanged(int index)
{
    const AppearanceMode mode = AppearanceMode::allCases().at(index);
    m_env.settings->set(SettingsTable::appearanceMode, mode.rawValue());
    Appearance::applyAtNextTurn(mode);
    track(QStringLiteral("appearance"), mode.rawValue());
}

// A failure is only reported on the console: the switch stays as the user left it until the
// page reads the state again.
void GeneralSettingsView::setLaunchAtLogin(bool enabled)
{
    LoginItem &item = *m_env.loginItem;
    const std::optional<QString> failure = enabled ? item.registerItem() : item.unregisterItem();
    if (failure)
        Console::line(u"Failed to "
                      + (enabled ? QStringLiteral("enable") : QStringLiteral("disable"))
                      + u" launch at login: " + *failure);
}

void GeneralSettingsView::checkForUpdates()
{
    UpdateManager &updates = *m_env.updates;
    setCheckingForUpdates(true);
    if (!updates.isBrewInstall()) {
        updates.checkForUpdatesWithSparkle();
        m_env.timers->singleShot(updateButtonHold, this, [this] { setCheckingForUpdates(false); });
        return;
    }
    updates.checkForUpdates([page = QPointer<GeneralSettingsView>(this)](
                                bool available, const std::optional<QString> &version) {
        if (!page)
            return;
        page->setCheckingForUpdates(false);
        const ViewEnvironment &services = page->m_env;
        if (available && version)
            services.updateSheet->presentUpdateAvailable(*version,
                                                         services.updates->isBrewInstall());
        else
            services.prompter->present(AppcastUpdaterController::noUpdatePrompt(*services.language),
                                       {});
    });
}

void GeneralSettingsView::setCheckingForUpdates(bool checking)
{
    m_isCheckingForUpdates = checking;
    m_checkButton->setEnabled(!checking);
    m_spinner->setVisible(checking);
}

// Asks with the dialog of `keyPrefix` (its _confirm_title, _confirm_message and
// _confirm_button texts) and runs `action` if the user confirms while the page is there.
void GeneralSettingsView::confirm(const char *keyPrefix, std::function<void()> action)
{
    const LanguageManager &language = *m_env.language;
    const QString prefix = QLatin1String(keyPrefix);
    ModalPrompt prompt;
    prompt.title = language.localizedString(prefix + u"_confirm_title");
    prompt.text = language.localizedString(prefix + u"_confirm_message");
    prompt.buttons = {language.localizedString(prefix + u"_confirm_button"),
                      language.localizedString(QStringLiteral("general_cancel"))};
    prompt.style = ModalPrompt::Style::warning;
    m_env.prompter->present(prompt, [page = QPointer<GeneralSettingsView>(this),
                                     action = std::move(action)](int button) {
        if (page && button == 0)
            action();
    });
}

void GeneralSettingsView::resetGuard(HandlerGuard &guard)
{
    guard.setMonitoringEnabled(true);
    guard.setCheckInterval(CheckInterval::tenMinutes);
    guard.setSnoozeDuration(SnoozeDuration::oneHour);
    guard.setCheckOnWake(true);
    guard.setCheckOnUnlock(true);
    guard.setCheckOnLogin(true);
    guard.resetSnooze();
}

void GeneralSettingsView::resetAllSettings()
{
    SettingsStore &settings = *m_env.settings;
    resetGuard(*m_env.browserManager);
    resetGuard(*m_env.emailClientManager);
    settings.set(SettingsTable::showColoredMenuBarIcon, false);
    m_launchAtLogin->setChecked(true);
    setLaunchAtLogin(true);
    settings.set(SettingsTable::appearanceMode, AppearanceMode(AppearanceMode::system).rawValue());
    Appearance::applyAtNextTurn(AppearanceMode::system);
    settings.set(SettingsTable::checkForUpdatesAtStartup, true);
    settings.set(SettingsTable::updateCheckInterval,
                 UpdateCheckInterval(UpdateCheckInterval::daily).rawValue());
    LanguageManager &language = *m_env.language;
    const QString code = LanguageManager::systemLanguageCode(language.preferredLanguages());
    language.setCurrentLanguage(AppLanguage::fromRawValue(code).value_or(AppLanguage::english));
    Console::line(QStringLiteral("✅ All settings reset to default"));
}

void GeneralSettingsView::resetAllCounters()
{
    m_env.browserManager->resetCounters();
    m_env.emailClientManager->resetCounters();
    Console::line(QStringLiteral("✅ All counters reset"));
}

void GeneralSettingsView::deleteAllLogs()
{
    m_env.log->clearAllLogs();
    Console::line(QStringLiteral("✅ All logs deleted"));
}

void GeneralSettingsView::track(const QString &setting, const QString &value)
{
    m_env.telemetry->trackSettingsChanged(setting, value);
}

void GeneralSettingsView::track(const QString &setting, bool value)
{
    track(setting, boolText(value));
}

void GeneralSettingsView::retranslate()
{
    const LanguageManager &language = *m_env.language;
    const QList<AppearanceMode> modes = AppearanceMode::allCases();
    for (int i = 0; i < modes.size(); ++i)
        m_appearance->setSegmentText(i, language.localizedString(modes.at(i).localizationKey()));
    const QList<UpdateCheckInterval> intervals = UpdateCheckInterval::allCases();
    for (int i = 0; i < intervals.size(); ++i)
        m_interval->setItemText(i, intervals.at(i).displayName(language));
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_appearance, m_language, m_coloredIcon, m_launchAtLogin,
                                          m_interval, m_checkAtStartup})
        control->setAccessibleName(
            language.localizedString(control->property("labelKey").toString()));
    m_checkButton->setRowText(
        language.localizedString(QStringLiteral("general_check_for_updates")));
    for (RowButton *button : std::as_const(m_resets))
        button->setRowText(language.localizedString(button->property("key").toString()));
}
