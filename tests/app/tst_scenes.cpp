#include "ShellWorld.h"
#include "app/AppScenes.h"
#include "ui/SceneWindow.h"
#include "ui/panel/PanelMenu.h"
#include "ui/panel/PanelPopup.h"
#include "ui/settings/SettingsView.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QUrl>

using namespace std::chrono_literals;

// The scenes: the two windows made on first request and reused, reached through the
// program's own URLs and the two commands, and made anew a tenth of a second after a
// language change.
class ScenesTest : public QObject {
    Q_OBJECT

    struct Rig {
        ShellWorld shell;
        AppScenes scenes{shell.env};

        Rig() { qunsetenv(WindowRouter::openTabVariable); }
        SceneWindow *settings() const { return scenes.window("settings"); }
        SceneWindow *about() const { return scenes.window("about"); }
        SettingsView *view() const { return qobject_cast<SettingsView *>(settings()->root()); }
    };

private Q_SLOTS:
    void urlsBringTheSceneOfTheirName()
    {
        Rig rig;
        QVERIFY(!rig.settings());
        QVERIFY(QDesktopServices::openUrl(QUrl("vandorel://settings")));
        SceneWindow *settings = rig.settings();
        QVERIFY(settings && settings->isVisible());
        QCOMPARE(settings->windowTitle(), QString("Vandorel Settings"));
        QCOMPARE(settings->size(), QSize(700, 550));
        QCOMPARE(settings->minimumSize(), settings->maximumSize());
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(qAbs(settings->geometry().center().x() - screen.center().x()) <= 1);
        QVERIFY(qAbs(settings->geometry().center().y() - screen.center().y()) <= 1);
        QTRY_COMPARE(QApplication::activeWindow(), settings);

        QVERIFY(rig.scenes.openUrl(QUrl("vandorel://about")));
        QVERIFY(rig.about()->isVisible());
        QCOMPARE(rig.about()->windowTitle(), QString("About Vandorel"));
        QTRY_COMPARE(QApplication::activeWindow(), rig.about());

        // Asking again brings the same window forward; other hosts and schemes do nothing.
        rig.view()->setSelectedTab("log");
        rig.scenes.openUrl(QUrl("vandorel://settings"));
        QCOMPARE(rig.settings(), settings);
        QCOMPARE(rig.view()->selectedTab(), QString("log"));
        QTRY_COMPARE(QApplication::activeWindow(), settings);
        QVERIFY(!rig.scenes.openUrl(QUrl("vandorel://log")));
        QVERIFY(!rig.scenes.openUrl(QUrl("other://about")));
        QCOMPARE(QApplication::topLevelWidgets().count(settings), 1);
        QCOMPARE(rig.shell.openedWindows, QStringList());
    }

    void closingAWindowStopsNothingElse()
    {
        Rig rig;
        rig.scenes.openWindow("settings");
        SceneWindow *settings = rig.settings();
        QVERIFY(settings->close());
        QTRY_VERIFY(!settings->root());
        // Both guards keep watching.
        QCOMPARE(rig.shell.world.timers.activeWithInterval(GuardWorld::tenMinutes).size(), 2);
        rig.scenes.openWindow("settings");
        QCOMPARE(rig.settings(), settings);
        QVERIFY(rig.view());
    }

    void theCommandsGoThroughTheUrls()
    {
        Rig rig;
        QCOMPARE(rig.scenes.settingsCommand()->text(), QString("Settings…"));
        QCOMPARE(rig.scenes.settingsCommand()->shortcut(), QKeySequence("Ctrl+,"));
        QCOMPARE(rig.scenes.aboutCommand()->text(), QString("About Vandorel"));
        rig.scenes.aboutCommand()->trigger();
        QTRY_COMPARE(QApplication::activeWindow(), rig.about());
        // Ctrl+, in the about window comes back through the handler to the settings.
        QTest::keyClick(rig.about(), Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(rig.settings() && rig.settings()->isVisible());
        QVERIFY(rig.settings()->actions().contains(rig.scenes.settingsCommand()));

        rig.shell.switchLanguage(AppLanguage::german);
        QCOMPARE(rig.scenes.settingsCommand()->text(), QString("Einstellungen…"));
    }

    void aLanguageChangeMakesTheRootsAnewATenthOfASecondLater()
    {
        Rig rig;
        rig.scenes.router().openSettingsTab(SettingsTab::log);
        rig.shell.world.timers.fire(WindowRouter::openTabLifetime);
        rig.scenes.openWindow("about");
        QPointer<QWidget> panel = rig.scenes.panel().root();
        QPointer<QWidget> settings = rig.settings()->root();
        QPointer<QWidget> about = rig.about()->root();
        const QUuid before = rig.scenes.refreshID();

        rig.shell.language.setCurrentLanguage(AppLanguage::german);
        rig.shell.world.timers.fire(50ms);
        QCOMPARE(rig.scenes.refreshID(), before);
        QCOMPARE(rig.settings()->root(), settings.data());
        const QString entry = rig.scenes.menu().actions().at(3)->text();
        rig.shell.world.timers.fire(AppScenes::rebuildDelay);
        QVERIFY(rig.scenes.refreshID() != before);
        QTRY_VERIFY(!panel && !settings && !about);
        QVERIFY(rig.scenes.panel().root() && rig.about()->root());
        QCOMPARE(rig.view()->selectedTab(), QString("general"));
        QVERIFY(rig.scenes.menu().actions().at(3)->text() != entry);

        // A tab handed over at that moment survives the rebuild.
        rig.view()->setSelectedTab("log");
        qputenv(WindowRouter::openTabVariable, "email");
        rig.shell.switchLanguage(AppLanguage::english);
        rig.shell.world.timers.fire(AppScenes::rebuildDelay);
        QCOMPARE(rig.view()->selectedTab(), QString("email"));
        qunsetenv(WindowRouter::openTabVariable);
    }
};

QTEST_MAIN(ScenesTest)
#include "tst_scenes.moc"
