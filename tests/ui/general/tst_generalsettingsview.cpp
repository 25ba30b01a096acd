#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "core/settings/SettingsTable.h"
#include "core/support/AppInfo.h"
#include "core/updates/UpdateCheckInterval.h"
#include "core/updates/UpdateManager.h"
#include "core/updates/UpdateScheduler.h"
#include "platform/freedesktop/FreedesktopInstallLayout.h"
#include "ui/Appearance.h"
#include "ui/general/BuyMeCoffeeButton.h"
#include "ui/general/GeneralSettingsView.h"
#include "ui/widgets/BusySpinner.h"
#include "ui/widgets/RowButton.h"
#include "ui/widgets/SegmentedControl.h"
#include "ui/widgets/ToggleSwitch.h"

#include "LoopbackHttp.h"
#include "ShellWorld.h"
#include "UpdateFakes.h"
#include "UrlCatcher.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;

namespace {

// The page over both guards, a loopback feed, and a Homebrew install when asked for.
struct Rig : ShellWorld {
    ConsoleCapture console;
    QTemporaryDir prefixes;
    LoopbackHttp server;
    QStringList updaterCalls;
    RecordingSheet sheet;
    FreedesktopInstallLayout install{QStringLiteral("/usr/bin/vandorel"),
                                     {prefixes.path() + u"/usr/local"}};
    std::unique_ptr<UpdateManager> updates;
    std::unique_ptr<GeneralSettingsView> view;

    explicit Rig(const QStringList &preferredLanguages = {}, bool brew = false)
        : ShellWorld(preferredLanguages)
    {
        if (brew)
            QDir().mkpath(prefixes.path() + u"/usr/local/Caskroom/vandorel");
        UpdateManager::Options options;
        options.settings = env.settings;
        options.clock = env.clock;
        options.timers = env.timers;
        options.appcastURL = QUrl(server.baseUrl() + u"/appcast.xml");
        options.currentVersion = QStringLiteral("1.9.9");
        options.install = &install;
        options.makeController = [this] {
            return std::make_unique<RecordingController>(updaterCalls);
        };
        updates = std::make_unique<UpdateManager>(options);
        env.updates = updates.get();
        env.updateSheet = &sheet;
    }

    GeneralSettingsView &show()
    {
        view = shown(std::make_unique<GeneralSettingsView>(env));
        return *view;
    }
    // The settings the page reported, as "setting=value".
    QStringList reportedSettings()
    {
        QStringList reported;
        for (const QString &call : world.telemetry.take()) {
            if (call.startsWith(u"trackSettingsChanged("))
                reported << call.mid(21).chopped(1).replace(u", "_qs, u"="_qs);
        }
        return reported;
    }
};

void click(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, widget->rect().center());
}

// The user picks entry `index` of a closed combo box.
void choose(QComboBox *box, int index)
{
    box->setCurrentIndex(index);
    Q_EMIT box->activated(index);
}

// Whether the application shows that look (both looks are drawn by the fusion style).
bool applied(AppearanceMode mode)
{
    const QPalette look =
        mode == AppearanceMode::dark ? Appearance::darkPalette() : Appearance::lightPalette();
    return QApplication::style()->name() == QLatin1String("fusion")
           && QApplication::palette().color(QPalette::Window) == look.color(QPalette::Window);
}

} // namespace

class GeneralSettingsViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Appearance::apply(AppearanceMode::system); }

    // Everything goes back to its default, setting by setting, while the targets, counters,
    // log and update reminder stay; the counters and the log go by their own buttons. Each
    // asks first, and a cancel changes nothing.
    void resetsEachGroupAfterConfirmation()
    {
        Rig rig({QStringLiteral("de-AT")});
        SettingsStore &store = rig.world.settings.store();
        // The targets are the defaults already, so no check finds a change to count.
        rig.browser.setTargetDefaultBrowser(
            Browser(QStringLiteral("Firefox"), QStringLiteral("firefox-esr")));
        rig.email.setTargetDefaultEmailClient(
            EmailClient(QStringLiteral("Thunderbird"), QStringLiteral("thunderbird")));
        const std::array<HandlerGuard *, 2> guards{&rig.browser, &rig.email};
        for (HandlerGuard *guard : guards) {
            guard->setMonitoringEnabled(false);
            guard->setCheckInterval(CheckInterval::daily);
            guard->setSnoozeDuration(SnoozeDuration::today);
            guard->setCheckOnWake(false);
            guard->setCheckOnUnlock(false);
            guard->setCheckOnLogin(false);
            guard->setChangeCount(7);
            guard->snoozeMonitoring();
        }
        rig.world.log.logBrowserChange(QStringLiteral("Firefox"), QStringLiteral("Chromium"));
        store.setDouble(SettingsTable::updateSnoozeUntil.key(), 1e10);
        store.setString(SettingsTable::updateSnoozeVersion.key(), QStringLiteral("2.0"));
        store.setBool(SettingsTable::showColoredMenuBarIcon.key(), true);
        store.setString(SettingsTable::appearanceMode.key(), QStringLiteral("dark"));
        store.setBool(SettingsTable::checkForUpdatesAtStartup.key(), false);
        store.setString(SettingsTable::updateCheckInterval.key(), QStringLiteral("weekly"));
        rig.switchLanguage(AppLanguage::french);
        GeneralSettingsView &view = rig.show();
        rig.world.telemetry.take();

        rig.world.alerts.answerNext(1);
        click(view.resetButton(GeneralSettingsView::Reset::settings));
        settle();
        const ModalPrompt &asked = rig.world.alerts.last();
        QCOMPARE(asked.title, rig.text("general_reset_settings_confirm_title"));
        QCOMPARE(asked.buttons, (QStringList{rig.text("general_reset_settings_confirm_button"),
                                             rig.text("general_cancel")}));
        QVERIFY(!rig.browser.monitoringEnabled());
        QVERIFY(rig.reportedSettings().isEmpty());

        rig.world.alerts.answerNext(0);
        click(view.resetButton(GeneralSettingsView::Reset::settings));
        settle();
        for (HandlerGuard *guard : guards) {
            QVERIFY(guard->monitoringEnabled());
            QCOMPARE(guard->checkInterval(), CheckInterval::tenMinutes);
            QCOMPARE(guard->snoozeDuration(), SnoozeDuration::oneHour);
            QVERIFY(guard->checkOnWake() && guard->checkOnUnlock() && guard->checkOnLogin());
            QVERIFY(!guard->isSnoozed());
            QCOMPARE(guard->changeCount(), 7);
            QVERIFY(guard->target());
        }
        QCOMPARE(rig.world.log.getAllLogs().size(), 1);
        QVERIFY(!store.boolValue(SettingsTable::showColoredMenuBarIcon.key()));
        QCOMPARE(store.stringValue(SettingsTable::appearanceMode.key()), QStringLiteral("system"));
        QVERIFY(store.boolValue(SettingsTable::checkForUpdatesAtStartup.key()));
        QVERIFY(rig.loginItem.isEnabled());
        // The language of the system, as at the first start.
        QCOMPARE(rig.language.currentLanguage(), AppLanguage::german);
        QVERIFY(rig.console.contains(QStringLiteral("✅ All settings reset to default")));
        // Each changed setting reports itself besides the reset.
        const QStringList reported = rig.reportedSettings();
        for (const char *expected :
             {"browser_check_interval=10min", "email_check_on_login=true",
              "colored_menu_bar_icon=false", "launch_at_login=true", "appearance=system",
              "check_updates_at_startup=true", "update_check_interval=daily", "language=de"})
            QVERIFY2(reported.contains(QLatin1String(expected)), expected);
        QCOMPARE(reported.last(), QStringLiteral("reset_all_settings=true"));
        QCOMPARE(view.appearancePicker()->currentIndex(), int(AppearanceMode::system));
        QCOMPARE(view.updateIntervalPicker()->currentText(), rig.text("update_interval_daily"));

        rig.world.alerts.answerNext(0);
        rig.world.alerts.answerNext(0);
        click(view.resetButton(GeneralSettingsView::Reset::counters));
        click(view.resetButton(GeneralSettingsView::Reset::logs));
        settle();
        QCOMPARE(rig.world.alerts.last().title, rig.text("general_delete_logs_confirm_title"));
        QCOMPARE(rig.browser.changeCount() + rig.email.changeCount(), 0);
        QVERIFY(rig.world.log.getAllLogs().isEmpty());
        QVERIFY(rig.console.contains(QStringLiteral("✅ All counters reset")));
        QVERIFY(rig.console.contains(QStringLiteral("✅ All logs deleted")));
        QCOMPARE(store.stringValue(SettingsTable::updateSnoozeVersion.key()),
                 QStringLiteral("2.0"));

        // The reminder snooze goes at once, without a question.
        click(view.resetButton(GeneralSettingsView::Reset::updateReminderSnooze));
        QVERIFY(!store.contains(SettingsTable::updateSnoozeVersion.key()));
        QCOMPARE(rig.world.alerts.shown().size(), 4);
        QCOMPARE(rig.reportedSettings(), (QStringList{"reset_counters=true", "delete_logs=true",
                                                      "reset_update_reminder_snooze=true"}));
    }

    // The stored look is applied by this page alone, when it is shown and when it is picked,
    // always at the next turn of the event loop.
    void appliesTheAppearanceFromThisPageAtTheNextTurn()
    {
        Rig rig;
        rig.world.settings.store().setString(SettingsTable::appearanceMode.key(),
                                             QStringLiteral("dark"));
        auto hidden = std::make_unique<GeneralSettingsView>(rig.env);
        settle();
        QVERIFY(!applied(AppearanceMode::dark));
        hidden.reset();
        GeneralSettingsView &view = rig.show();
        QTRY_VERIFY(applied(AppearanceMode::dark));
        QVERIFY(rig.world.telemetry.take().contains(u"trackScreenView(settings_general)"_qs));

        click(view.appearancePicker()->segment(int(AppearanceMode::light)));
        QVERIFY(applied(AppearanceMode::dark));
        QCoreApplication::sendPostedEvents();
        QVERIFY(applied(AppearanceMode::light));
        QCOMPARE(rig.world.settings.store().stringValue(SettingsTable::appearanceMode.key()),
                 QStringLiteral("light"));
        QCOMPARE(rig.reportedSettings(), QStringList{"appearance=light"});

        // An unknown stored look shows as system and is not applied.
        rig.world.settings.store().setString(SettingsTable::appearanceMode.key(),
                                             QStringLiteral("sepia"));
        view.hide();
        view.show();
        settle();
        QVERIFY(applied(AppearanceMode::light));
    }

    void launchesAtLoginThroughTheLoginItem()
    {
        Rig rig;
        GeneralSettingsView &view = rig.show();
        ToggleSwitch *toggle = view.launchAtLoginSwitch();
        QVERIFY(!toggle->isChecked());
        rig.world.telemetry.take();
        click(toggle);
        click(toggle);
        QCOMPARE(rig.loginItem.calls(), (QStringList{"register", "unregister"}));
        QCOMPARE(rig.reportedSettings(),
                 (QStringList{"launch_at_login=true", "launch_at_login=false"}));

        // Showing the page registers an enabled item again, so that its entry is current.
        rig.loginItem.setEnabled(true);
        view.hide();
        view.show();
        QVERIFY(toggle->isChecked());
        QCOMPARE(rig.loginItem.calls().last(), QStringLiteral("register"));
        rig.world.telemetry.take();

        // A failure: a line, the switch stays, the report goes out all the same.
        rig.loginItem.setFailure(QStringLiteral("/x: Permission denied"));
        click(toggle);
        QVERIFY(!toggle->isChecked());
        QVERIFY(rig.loginItem.isEnabled());
        QVERIFY(
            rig.console.contains(u"Failed to disable launch at login: /x: Permission denied"_qs));
        click(toggle);
        QVERIFY(
            rig.console.contains(u"Failed to enable launch at login: /x: Permission denied"_qs));
        QCOMPARE(rig.reportedSettings(),
                 (QStringList{"launch_at_login=false", "launch_at_login=true"}));
    }

    void holdsTheButtonTwoSecondsForTheOwnUpdater()
    {
        Rig rig;
        GeneralSettingsView &view = rig.show();
        click(view.checkForUpdatesButton());
        QVERIFY(view.isCheckingForUpdates());
        QVERIFY(!view.checkForUpdatesButton()->isEnabled());
        QVERIFY(view.updateSpinner()->isVisible());
        QTRY_COMPARE(rig.updaterCalls, (QStringList{"startUpdater", "checkForUpdates"}));
        QCOMPARE(rig.world.timers.activeWithInterval(2s).size(), 1);
        QCOMPARE(rig.world.timers.fire(2s), 1);
        QVERIFY(!view.isCheckingForUpdates());
        QVERIFY(view.checkForUpdatesButton()->isEnabled());
        QVERIFY(!view.updateSpinner()->isVisible());
    }

    void showsTheSheetOrTheAlertOnHomebrew()
    {
        Rig rig({}, true);
        GeneralSettingsView &view = rig.show();
        rig.server.serve({200, feed("2.0")});
        click(view.checkForUpdatesButton());
        QVERIFY(!view.checkForUpdatesButton()->isEnabled());
        QTRY_COMPARE(rig.sheet.shown, QStringList{"2.0"});
        QCOMPARE(rig.sheet.brew, QList<bool>{true});
        QVERIFY(view.checkForUpdatesButton()->isEnabled());
        QVERIFY(rig.world.timers.activeWithInterval(2s).isEmpty());

        rig.server.serve({200, feed("1.0")});
        click(view.checkForUpdatesButton());
        QTRY_VERIFY(rig.world.alerts.isPresenting());
        QCOMPARE(rig.world.alerts.last().title, rig.text("update_no_updates_title"));
        QCOMPARE(rig.world.alerts.last().buttons, QStringList{rig.text("general_ok")});
        rig.world.alerts.answer(0);
        QCOMPARE(rig.sheet.shown.size(), 1);

        // Leaving the page while a check runs: its answer shows nothing.
        rig.server.hold();
        click(view.checkForUpdatesButton());
        QTRY_COMPARE(rig.server.requests.size(), 3);
        rig.view.reset();
        rig.server.release();
        QTRY_VERIFY(rig.console.contains(QStringLiteral("✅ No update available")));
        settle();
        QCOMPARE(rig.world.alerts.shown().size(), 1);
    }

    // The page writes the two settings; the scheduler hears of them through the store.
    void theSchedulerFollowsTheStore()
    {
        Rig rig;
        UpdateScheduler scheduler(rig.world.settings.store(), rig.world.timers, [] {});
        scheduler.configureUpdateScheduler();
        QObject::connect(&rig.world.settings.store(), &SettingsStore::changed, &scheduler,
                         &UpdateScheduler::userDefaultsDidChange);
        GeneralSettingsView &view = rig.show();
        rig.world.telemetry.take();
        choose(view.updateIntervalPicker(), int(UpdateCheckInterval::weekly));
        click(view.checkAtStartupSwitch());
        QCOMPARE(*scheduler.lastSchedulerConfig(), (UpdateScheduler::Config{false, "weekly"}));
        QCOMPARE(rig.reportedSettings(),
                 (QStringList{"update_check_interval=weekly", "check_updates_at_startup=false"}));

        choose(view.languagePicker(), int(AppLanguage::italian));
        QCOMPARE(rig.language.currentLanguage(), AppLanguage::italian);
        click(view.coloredIconSwitch());
        QVERIFY(rig.world.settings.store().boolValue(SettingsTable::showColoredMenuBarIcon.key()));
        QCOMPARE(rig.reportedSettings(),
                 (QStringList{"language=it", "colored_menu_bar_icon=true"}));
    }

    void namesEveryControlAndLinksTheDonation()
    {
        Rig rig;
        UrlCatcher catcher;
        GeneralSettingsView &view = rig.show();
        const std::pair<QWidget *, const char *> named[] = {
            {view.appearancePicker(), "general_appearance"},
            {view.coloredIconSwitch(), "general_colored_icon"},
            {view.checkForUpdatesButton(), "general_check_for_updates"},
            {view.donationButton(), "general_buy_coffee"},
        };
        for (const auto &[widget, key] : named)
            QCOMPARE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name),
                     rig.text(key));
        QCOMPARE(QAccessible::queryAccessibleInterface(view.appearancePicker()->segment(2))
                     ->text(QAccessible::Name),
                 rig.text("general_appearance_dark"));

        BuyMeCoffeeButton *donation = view.donationButton();
        QCOMPARE(donation->cursor().shape(), Qt::PointingHandCursor);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(donation, &enter);
        QVERIFY(donation->isHovered());
        QCOMPARE(donation->targetScale(), BuyMeCoffeeButton::hoveredScale);
        rig.world.telemetry.take();
        click(donation);
        QCOMPARE(catcher.opened, QList<QUrl>{AppInfo::donationURL()});
        QCOMPARE(rig.world.telemetry.take(),
                 QStringList{"trackEvent(support_link_clicked, source=buy_me_coffee_button)"});
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(donation, &leave);
        QCOMPARE(donation->targetScale(), 1.0);
    }
};

QTEST_MAIN(GeneralSettingsViewTest)
#include "tst_generalsettingsview.moc"
