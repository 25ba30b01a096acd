#include "FakeClock.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"
#include "core/i18n/LanguageManager.h"
#include "ui/widgets/BusySpinner.h"
#include "ui/widgets/RelativeTimeLabel.h"
#include "ui/widgets/SymbolGroupBox.h"
#include "ui/widgets/ToggleSwitch.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QCheckBox>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

// The shared small widgets: the switch by keyboard and through the accessibility
// interface, the spinner's turning, the group box's name, the relative time under a
// clock that the test moves.
class WidgetsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void switchWorksByKeyboardAndForScreenReaders()
    {
        ToggleSwitch toggle(QStringLiteral("Enable monitoring"));
        toggle.show();
        QVERIFY(QTest::qWaitForWindowExposed(&toggle));
        QSignalSpy toggled(&toggle, &QAbstractButton::toggled);
        QSignalSpy clicked(&toggle, &QAbstractButton::clicked);
        toggle.setFocus();
        QTest::keyClick(&toggle, Qt::Key_Space);
        QVERIFY(toggle.isChecked());
        QCOMPARE(toggled.size(), 1);

        QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&toggle);
        QVERIFY(access);
        QCOMPARE(access->role(), QAccessible::CheckBox);
        QCOMPARE(access->text(QAccessible::Name), QStringLiteral("Enable monitoring"));
        QVERIFY(access->state().checked);
        // The reader's Toggle action toggles without a click: toggled() is what to follow.
        access->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(!toggle.isChecked());
        QCOMPARE(toggled.size(), 2);
        QCOMPARE(clicked.size(), 1);

        toggle.setEnabled(false);
        QTest::keyClick(&toggle, Qt::Key_Space);
        QTest::mouseClick(&toggle, Qt::LeftButton);
        QVERIFY(!toggle.isChecked());

        // As tall as a check box, and wider than tall.
        QCheckBox box(QStringLiteral("x"));
        QVERIFY(qAbs(toggle.sizeHint().height() - box.sizeHint().height()) <= 2);
        QVERIFY(toggle.sizeHint().width() > toggle.sizeHint().height());
    }

    void spinnerTurnsOnlyWhileShown()
    {
        QWidget window;
        auto *spinner = new BusySpinner(&window);
        QVERIFY(!spinner->isSpinning());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(spinner->isSpinning());
        spinner->hide();
        QVERIFY(!spinner->isSpinning());
        QCOMPARE(QAccessible::queryAccessibleInterface(spinner)->role(), QAccessible::Animation);
    }

    void groupBoxIsNamedByItsTitle()
    {
        TempSettings settings;
        FakeTimerFactory timers;
        LanguageManager language(settings.store(), timers, {"en"});
        SymbolGroupBox box(QStringLiteral("globe"), QStringLiteral("browser_target_title"),
                           language);
        QCOMPARE(box.title(), language.localizedString(QStringLiteral("browser_target_title")));
        QAccessibleInterface *group = nullptr;
        QAccessibleInterface *root = QAccessible::queryAccessibleInterface(&box);
        for (int i = 0; i < root->childCount(); ++i)
            if (root->child(i)->role() == QAccessible::Grouping)
                group = root->child(i);
        QVERIFY(group);
        QCOMPARE(group->text(QAccessible::Name), box.title());

        language.setCurrentLanguage(AppLanguage::german);
        timers.fire(50ms);
        QCOMPARE(group->text(QAccessible::Name), QStringLiteral("Bevorzugter Browser"));
    }

    void relativeTimeKeepsItselfUpToDate()
    {
        FakeClock clock;
        FakeTimerFactory timers;
        RelativeTimeLabel label(clock, timers);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        label.setDateTime(clock.now().addSecs(-(2 * 3600 + 20 * 60)));
        QCOMPARE(label.text(), QStringLiteral("2 hours ago"));
        // The timer is set for the moment the words change: 40 minutes on.
        QCOMPARE(timers.active().size(), 1);
        QCOMPARE(timers.active().first()->interval(), 40min);
        clock.advance(40 * 60);
        timers.active().first()->fire();
        QCOMPARE(label.text(), QStringLiteral("3 hours ago"));

        label.hide();
        QVERIFY(timers.active().isEmpty());
        clock.advance(3 * 86400);
        label.show();
        QCOMPARE(label.text(), QStringLiteral("3 days ago"));

        label.setDateTime({});
        QVERIFY(label.text().isEmpty());
        QVERIFY(timers.active().isEmpty());
    }
};

QTEST_MAIN(WidgetsTest)
#include "tst_widgets.moc"
