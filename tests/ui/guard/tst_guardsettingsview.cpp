#include "GuardPageRig.h"
#include "core/changelog/MediumDateTime.h"
#include "ui/widgets/BusySpinner.h"
#include "ui/widgets/RelativeTimeLabel.h"
#include "ui/widgets/ToggleSwitch.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace std::chrono_literals;

// The guard pages over real guards: which row of the target box shows, what each control
// may do in which state, the refresh alert, the counters, and two pages that keep apart.
class GuardSettingsViewTest : public QObject {
    Q_OBJECT

    // The one of the three states of the target box's action row that shows.
    static QString actionShown(const QWidget *page)
    {
        QStringList shown;
        for (const char *name : {"alreadyDefault", "changing", "setNowButton"})
            if (shows(page, name))
                shown.append(QLatin1String(name));
        return shown.join(u',');
    }

private Q_SLOTS:
    void actionRowShowsTheFirstStateThatHolds()
    {
        GuardPageRig rig;
        auto page = rig.browserPage();
        auto *picker = control<QComboBox>(page.get(), "targetPicker");
        QCOMPARE(picker->currentText(), rig.text("browser_none"));
        QVERIFY(!shows(page.get(), "bundleLine"));

        QVERIFY(choose(picker, "Firefox"));
        QCOMPARE(rig.browser.targetDefaultBrowser()->bundleIdentifier, "firefox");
        QVERIFY(control<QLabel>(page.get(), "bundleLine")->text().contains("firefox"));
        QCOMPARE(actionShown(page.get()), "alreadyDefault");
        // Already the default wins over a change that runs.
        rig.browser.setDefaultBrowser(*rig.browser.targetDefaultBrowser());
        QCOMPARE(actionShown(page.get()), "alreadyDefault");

        QVERIFY(choose(picker, "Chromium"));
        QCOMPARE(actionShown(page.get()), "changing");
        QVERIFY(page->findChild<BusySpinner *>()->isSpinning());
        // Stop while the change polls, once the system call has handed back.
        QTRY_VERIFY(rig.pollTimer(rig.browser));
        QTest::mouseClick(control<QPushButton>(page.get(), "stopButton"), Qt::LeftButton);
        QVERIFY(!rig.browser.isChangingBrowser());
        QVERIFY(!rig.pollTimer(rig.browser));
        QCOMPARE(actionShown(page.get()), "setNowButton");
    }

    void enableRulesFollowTheTargetAndMonitoring()
    {
        GuardPageRig rig;
        auto page = rig.browserPage();
        auto *monitoring = control<ToggleSwitch>(page.get(), "monitoringSwitch");
        QVERIFY(monitoring->isChecked());
        QVERIFY(!monitoring->isEnabled());
        QVERIFY(shows(page.get(), "selectToEnable"));

        QVERIFY(choose(control<QComboBox>(page.get(), "targetPicker"), "Chromium"));
        QVERIFY(monitoring->isEnabled());
        QVERIFY(!shows(page.get(), "selectToEnable"));

        QTest::mouseClick(monitoring, Qt::LeftButton);
        QVERIFY(!rig.browser.monitoringEnabled());
        QVERIFY(!control(page.get(), "intervalPicker")->isEnabled());
        for (const char *name :
             {"checkOnLoginSwitch", "checkOnWakeSwitch", "checkOnUnlockSwitch"}) {
            QVERIFY2(!control(page.get(), name)->isEnabled(), name);
            QVERIFY2(control<ToggleSwitch>(page.get(), name)->isChecked(), name);
        }
        QVERIFY(control(page.get(), "snoozePicker")->isEnabled());

        // Clearing the target takes the switch away again.
        QVERIFY(choose(control<QComboBox>(page.get(), "targetPicker"), rig.text("browser_none")));
        QVERIFY(!rig.browser.targetDefaultBrowser());
        QVERIFY(!monitoring->isEnabled());
    }

    void controlsAndSettingsFollowEachOther()
    {
        GuardPageRig rig;
        auto page = rig.emailPage();
        auto *interval = control<QComboBox>(page.get(), "intervalPicker");
        QVERIFY(
            choose(interval, CheckInterval(CheckInterval::sixtyMinutes).displayName(rig.language)));
        QCOMPARE(rig.email.checkInterval(), CheckInterval::sixtyMinutes);

        rig.email.setSnoozeDuration(SnoozeDuration::fourHours);
        QCOMPARE(control<QComboBox>(page.get(), "snoozePicker")->currentText(),
                 SnoozeDuration(SnoozeDuration::fourHours).displayName(rig.language));

        auto *wake = control<ToggleSwitch>(page.get(), "checkOnWakeSwitch");
        wake->setFocus();
        QTest::keyClick(wake, Qt::Key_Space);
        QVERIFY(!rig.email.checkOnWake());
        QVERIFY(rig.email.checkOnLogin());
        rig.email.setCheckOnWake(true);
        QVERIFY(wake->isChecked());
        QCOMPARE(wake->accessibleName(), rig.text("email_check_on_wake"));
    }

    void everyControlIsNamedForScreenReaders()
    {
        GuardPageRig rig;
        rig.email.setTargetDefaultEmailClient(rig.email.installedEmailClients().first());
        rig.email.snoozeMonitoring();
        auto page = rig.emailPage();
        const QList<std::pair<const char *, QAccessible::Role>> controls{
            {"refreshButton", QAccessible::Button},
            {"targetPicker", QAccessible::ComboBox},
            {"setNowButton", QAccessible::Button},
            {"monitoringSwitch", QAccessible::CheckBox},
            {"intervalPicker", QAccessible::ComboBox},
            {"checkOnLoginSwitch", QAccessible::CheckBox},
            {"checkOnWakeSwitch", QAccessible::CheckBox},
            {"checkOnUnlockSwitch", QAccessible::CheckBox},
            {"snoozePicker", QAccessible::ComboBox},
            {"resetSnoozeButton", QAccessible::Button}};
        for (const auto &[name, role] : controls) {
            QAccessibleInterface *access =
                QAccessible::queryAccessibleInterface(control(page.get(), name));
            QCOMPARE(access->role(), role);
            QVERIFY2(!access->text(QAccessible::Name).isEmpty(), name);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(control(page.get(), "monitoringSwitch"))
                     ->text(QAccessible::Name),
                 rig.text("email_enable_monitoring"));
    }

    void showingThePageWritesNoSetting()
    {
        GuardPageRig rig;
        rig.browser.setTargetDefaultBrowser(rig.browser.installedBrowsers().first());
        rig.language.setCurrentLanguage(AppLanguage::german);
        rig.world.timers.fire(50ms);
        const QByteArray before = rig.world.settings.fileBytes();
        auto page = rig.browserPage();
        // A language change fills the pickers again.
        rig.language.setCurrentLanguage(AppLanguage::german);
        rig.world.timers.fire(50ms);
        QCOMPARE(rig.world.settings.fileBytes(), before);
    }

    void aTargetOutsideTheListShowsNoEntryButItsDetails()
    {
        GuardPageRig rig;
        rig.browser.setTargetDefaultBrowser(
            Browser(QStringLiteral("Gone Browser"), QStringLiteral("gone")));
        auto page = rig.browserPage();
        auto *picker = control<QComboBox>(page.get(), "targetPicker");
        QCOMPARE(picker->currentIndex(), -1);
        QVERIFY(picker->currentText().isEmpty());
        QCOMPARE(page->selectedBrowser()->bundleIdentifier, "gone");
        QVERIFY(control<QLabel>(page.get(), "bundleLine")->text().contains("gone"));
        QCOMPARE(actionShown(page.get()), "setNowButton");
    }

    void theRefreshAlertCountsWhatTheRefreshFound()
    {
        GuardPageRig rig;
        auto page = rig.browserPage();
        rig.entry("vivaldi", "Vivaldi", "x-scheme-handler/http;x-scheme-handler/https;");
        rig.tree.updateCaches();
        QTest::mouseClick(control<QPushButton>(page.get(), "refreshButton"), Qt::LeftButton);
        ScriptedPrompter::settle();
        QCOMPARE(rig.world.alerts.shown().size(), 1);
        QCOMPARE(rig.world.alerts.last().title, rig.text("browser_refresh_alert_title"));
        QCOMPARE(rig.world.alerts.last().text,
                 rig.language.localizedFormat("browser_refresh_alert_message %lld", {3}));
        QCOMPARE(control<QComboBox>(page.get(), "targetPicker")->count(), 4);
        QVERIFY(rig.world.alerts.answer(0));
    }

    void statisticsAndTheSnoozedRowShowOnlyWhenThereIsSomething()
    {
        GuardPageRig rig;
        auto page = rig.emailPage();
        QCOMPARE(control<QLabel>(page.get(), "changeCount")->text(), "0");
        QVERIFY(!shows(page.get(), "lastChangeRow"));

        const QDateTime when = rig.world.clock.now().addSecs(-2 * 3600);
        rig.email.setEmailChangeCount(12345);
        rig.email.setLastEmailChange(when);
        QCOMPARE(control<QLabel>(page.get(), "changeCount")->text(), "12345");
        QVERIFY(shows(page.get(), "lastChangeRow"));
        QCOMPARE(control<RelativeTimeLabel>(page.get(), "lastChangeRelative")->text(),
                 "2 hours ago");
        QCOMPARE(control<QLabel>(page.get(), "lastChangeDate")->text(),
                 MediumDateTime::format(double(when.toMSecsSinceEpoch()), QLocale::system()));

        // The snoozed row shows while a snooze runs, and ends it.
        QVERIFY(!shows(page.get(), "snoozedRow"));
        rig.email.snoozeMonitoring();
        QVERIFY(shows(page.get(), "snoozedRow"));
        QTest::mouseClick(control<QPushButton>(page.get(), "resetSnoozeButton"), Qt::LeftButton);
        QVERIFY(!rig.email.isSnoozed());
        QVERIFY(!shows(page.get(), "snoozedRow"));
    }

    void withNothingInstalledOnlyTheTextsShow()
    {
        GuardPageRig rig(false);
        auto page = rig.emailPage();
        QVERIFY(shows(page.get(), "noneInstalled"));
        QVERIFY(!shows(page.get(), "targetPicker"));
        QCOMPARE(actionShown(page.get()), QString());
    }

    void thePagesKeepSeparateSelections()
    {
        GuardPageRig rig;
        auto browserPage = rig.browserPage();
        auto emailPage = rig.emailPage();
        QVERIFY(choose(control<QComboBox>(browserPage.get(), "targetPicker"), "Chromium"));
        QVERIFY(!rig.email.targetDefaultEmailClient());
        QVERIFY(!emailPage->selectedEmailClient());
        QCOMPARE(control<QComboBox>(emailPage.get(), "targetPicker")->currentIndex(), 0);

        QVERIFY(choose(control<QComboBox>(emailPage.get(), "targetPicker"), "Mailspring"));
        QCOMPARE(rig.browser.targetDefaultBrowser()->bundleIdentifier, "chromium");
        QCOMPARE(browserPage->selectedBrowser()->bundleIdentifier, "chromium");
        QCOMPARE(rig.email.targetDefaultEmailClient()->bundleIdentifier, "mailspring");
    }
};

QTEST_MAIN(GuardSettingsViewTest)
#include "tst_guardsettingsview.moc"
