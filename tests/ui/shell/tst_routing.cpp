#include "ShellWorld.h"
#include "ui/SceneWindow.h"
#include "ui/WindowList.h"
#include "ui/WindowTitleUpdater.h"
#include "ui/settings/SettingsTabNotifier.h"
#include "ui/settings/SettingsView.h"
#include "ui/settings/TabButton.h"

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

// How a wish for a settings page reaches a window that is there or not yet, and how the
// title of the active window follows the language.
class RoutingTest : public QObject {
    Q_OBJECT

    // A router whose settings requests make (once) a real settings window.
    struct Rig {
        ShellWorld shell;
        std::unique_ptr<SceneWindow> settings;
        std::unique_ptr<SceneWindow> about;

        Rig()
        {
            qunsetenv(WindowRouter::openTabVariable);
            shell.opener = [this](const QString &id) { WindowList::bringForward(window(id)); };
        }
        SceneWindow *window(const QString &id)
        {
            auto &slot = id == u"settings" ? settings : about;
            if (!slot)
                slot = std::make_unique<SceneWindow>(id, u"window_" + id + u"_title",
                                                     shell.language, [this, id]() -> QWidget * {
                                                         if (id == u"settings")
                                                             return new SettingsView(shell.env);
                                                         auto *empty = new QWidget;
                                                         empty->setFixedSize(300, 200);
                                                         return empty;
                                                     });
            return slot.get();
        }
        SettingsView *view() const { return qobject_cast<SettingsView *>(settings->root()); }
        bool isOpenTabSet() const
        {
            return qEnvironmentVariableIsSet(WindowRouter::openTabVariable);
        }
        void clearOpenTab() { shell.world.timers.fire(WindowRouter::openTabLifetime); }
    };

private Q_SLOTS:
    void aClosedWindowOpensOnTheTabAndTheVariableGoesAfterHalfASecond()
    {
        Rig rig;
        rig.shell.router.openSettingsTab(SettingsTab::email);
        QCOMPARE(rig.shell.openedWindows, QStringList("settings"));
        QCOMPARE(rig.view()->selectedTab(), QString("email"));
        QVERIFY(rig.settings->isVisible());
        QTRY_COMPARE(QApplication::activeWindow(), rig.settings.get());
        QCOMPARE(qgetenv(WindowRouter::openTabVariable), QByteArray("email"));
        QCOMPARE(rig.shell.world.timers.activeWithInterval(500ms).size(), 1);
        rig.clearOpenTab();
        QVERIFY(!rig.isOpenTabSet());
    }

    void anOpenWindowSwitchesWithoutBeingMadeAgain()
    {
        Rig rig;
        rig.shell.router.openSettingsTab(SettingsTab::log);
        rig.clearOpenTab();
        QTRY_COMPARE(QApplication::activeWindow(), rig.settings.get());
        QPointer<SettingsView> view = rig.view();
        rig.window(QStringLiteral("about"))->show();
        QTRY_COMPARE(QApplication::activeWindow(), rig.about.get());

        QSignalSpy notified(&SettingsTabNotifier::shared(),
                            &SettingsTabNotifier::SwitchSettingsTab);
        rig.shell.router.openFeedbackSettingsTab();
        QCOMPARE(rig.shell.openedWindows, QStringList("settings"));
        QCOMPARE(notified.size(), 1);
        QCOMPARE(rig.view(), view.data());
        QCOMPARE(view->selectedTab(), QString("feedback"));
        QVERIFY(view->tabButton(SettingsTab::feedback)->isSelected());
        QTRY_COMPARE(QApplication::activeWindow(), rig.settings.get());
        // The variable is set here too, and gone half a second later.
        QCOMPARE(qgetenv(WindowRouter::openTabVariable), QByteArray("feedback"));
        rig.clearOpenTab();
        QVERIFY(!rig.isOpenTabSet());
    }

    void eachRequestClearsOnceSoTheFirstClearingTakesTheSecondsValue()
    {
        Rig rig;
        rig.shell.router.openSettingsTab(SettingsTab::log);
        rig.settings->close();
        rig.shell.router.openSettingsTab(SettingsTab::browser);
        const QList<FakeTimer *> clearings = rig.shell.world.timers.activeWithInterval(500ms);
        QCOMPARE(clearings.size(), 2);
        clearings.first()->fire();
        QVERIFY(!rig.isOpenTabSet());
        // Closing drops the content; a window that appears now has no tab handed to it.
        rig.settings->close();
        QTRY_VERIFY(!rig.settings->root());
        WindowList::bringForward(rig.settings.get());
        QCOMPARE(rig.view()->selectedTab(), QString("general"));
        clearings.last()->fire();
    }

    void theTitleIsWrittenToTheActiveWindowATenthOfASecondLater()
    {
        Rig rig;
        FakeTimerFactory &timers = rig.shell.world.timers;
        rig.shell.router.openSettingsTab(SettingsTab::general);
        rig.clearOpenTab();
        QTRY_COMPARE(QApplication::activeWindow(), rig.settings.get());
        rig.settings->setWindowTitle(QStringLiteral("stale"));
        QCOMPARE(timers.fire(WindowTitleUpdater::delay), 1);
        QCOMPARE(rig.settings->windowTitle(), QString("Vandorel Settings"));

        // The about window is active when the write comes: it gets the settings title.
        rig.window(QStringLiteral("about"))->show();
        QTRY_COMPARE(QApplication::activeWindow(), rig.about.get());
        rig.shell.language.setCurrentLanguage(AppLanguage::german);
        timers.fire(50ms);
        QCOMPARE(rig.about->windowTitle(), QString("Über Vandorel"));
        QCOMPARE(timers.fire(WindowTitleUpdater::delay), 1);
        QCOMPARE(rig.about->windowTitle(), QString("Vandorel-Einstellungen"));
        QCOMPARE(rig.settings->windowTitle(), QString("Vandorel-Einstellungen"));

        // No active window: the first visible one.
        rig.about->close();
        QTRY_VERIFY(QApplication::activeWindow() != rig.about.get());
        rig.settings->setWindowTitle(QStringLiteral("stale"));
        rig.shell.language.setCurrentLanguage(AppLanguage::english);
        timers.fire(50ms);
        timers.fire(WindowTitleUpdater::delay);
        QCOMPARE(rig.settings->windowTitle(), QString("Vandorel Settings"));
    }
};

QTEST_MAIN(RoutingTest)
#include "tst_routing.moc"
