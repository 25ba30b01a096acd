#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "FakeTimerFactory.h"
#include "ScriptedAlertPresenter.h"
#include "TempSettings.h"
#include "XdgTree.h"
#include "core/changelog/LogManager.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

// The guards against the real freedesktop handler database: another program takes a role
// over with xdg-mime, the next check finds it, and the change back is what gio reads.
class GuardEndToEndTest : public QObject {
    Q_OBJECT

    struct Machine {
        XdgTree tree;
        TempSettings settings;
        FreedesktopHandlerDatabase handlers;
        FakeClock clock;
        FakeTimerFactory timers;
        ScriptedAlertPresenter alerts;
        LogManager log{settings.store(), clock};
        std::unique_ptr<LanguageManager> language;

        Machine()
        {
            language = std::make_unique<LanguageManager>(settings.store(), timers, QStringList{"en"});
            LanguageManager::setShared(language.get());
            const QByteArray web = "x-scheme-handler/http;x-scheme-handler/https;";
            entry("firefox", "Firefox", web);
            entry("chromium", "Chromium", web);
            entry("thunderbird", "Thunderbird", "x-scheme-handler/mailto;");
            entry("evolution", "Evolution", "x-scheme-handler/mailto;");
            tree.updateCaches();
        }
        ~Machine() { LanguageManager::setShared(nullptr); }

        void entry(const QString &id, const QByteArray &name, const QByteArray &mimeTypes)
        {
            const QString program = tree.stub(id);
            tree.write(u"share1/applications/" + id + u".desktop",
                       "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + program.toUtf8()
                           + " %u\nMimeType=" + mimeTypes + "\n");
        }

        GuardEnvironment environment()
        {
            GuardEnvironment env;
            env.settings = &settings.store();
            env.handlers = &handlers;
            env.clock = &clock;
            env.timers = &timers;
            env.alerts = &alerts;
            env.log = &log;
            return env;
        }

        // What another program does: xdg-mime writes the user's mimeapps.list.
        static bool xdgMimeDefault(const QString &desktopFile, const QStringList &mimeTypes)
        {
            QProcess process;
            process.start("xdg-mime", QStringList{"default", desktopFile} + mimeTypes);
            return process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit
                   && process.exitCode() == 0;
        }
        static QString gioDefault(const QString &scheme)
        {
            return XdgTree::gioMime(u"x-scheme-handler/" + scheme).defaultId;
        }

        void tick() { timers.fire(600s); }
        // The change's system calls run on a worker; its hand-back starts the poll.
        [[nodiscard]] bool pollUntilDone(HandlerGuard &guard)
        {
            if (!QTest::qWaitFor([&] { return !timers.activeWithInterval(1s).isEmpty(); }, 10000))
                return false;
            for (int i = 0; i < 60 && guard.isChanging(); ++i)
                timers.fire(1s);
            return !guard.isChanging();
        }
    };

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *tool : {"xdg-mime", "gio", "update-desktop-database"})
            if (QStandardPaths::findExecutable(tool).isEmpty())
                QSKIP("the freedesktop tools are not installed");
    }

    void aTakenOverBrowserIsFoundAndChangedBack()
    {
        Machine machine;
        QVERIFY(Machine::xdgMimeDefault("firefox.desktop", {"x-scheme-handler/https", "x-scheme-handler/http"}));
        BrowserManager browser(machine.environment());
        QCOMPARE(browser.currentDefaultBrowser()->name, QString("Firefox"));
        browser.setTargetDefaultBrowser(*browser.currentDefaultBrowser());

        QVERIFY(Machine::xdgMimeDefault("chromium.desktop", {"x-scheme-handler/https", "x-scheme-handler/http"}));
        ConsoleCapture console;
        machine.tick();
        QCOMPARE(console.lines(), QStringList({"📝 Log: Browser changed from Firefox to Chromium"}));
        QCOMPARE(browser.browserChangeCount(), 1);
        ScriptedAlertPresenter::settle();
        QCOMPARE(machine.alerts.shown().size(), 1);
        QCOMPARE(machine.alerts.shown().first().secondButton, QString("Keep Chromium for now"));

        QVERIFY(machine.alerts.answer(AlertPresenter::Answer::first));
        QVERIFY(machine.pollUntilDone(browser));
        QVERIFY(console.contains("   HTTP: 0, HTTPS: 0"));
        QVERIFY(console.contains("📡 Poll 1: firefox vs firefox"));
        QVERIFY(console.contains("📝 Log: Browser changed from Chromium to Firefox"));
        QCOMPARE(console.lines().last(), QString("✅ Browser set to Firefox"));
        QCOMPARE(browser.browserChangeCount(), 2);
        QCOMPARE(Machine::gioDefault("https"), QString("firefox.desktop"));
        QCOMPARE(Machine::gioDefault("http"), QString("firefox.desktop"));

        // Back in place: the next check is quiet.
        console.take();
        machine.tick();
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(browser.browserChangeCount(), 2);
    }

    void aTakenOverMailClientIsFoundAndChangedBack()
    {
        Machine machine;
        QVERIFY(Machine::xdgMimeDefault("thunderbird.desktop", {"x-scheme-handler/mailto"}));
        EmailClientManager email(machine.environment());
        QCOMPARE(email.currentDefaultEmailClient()->name, QString("Thunderbird"));
        email.setTargetDefaultEmailClient(*email.currentDefaultEmailClient());

        QVERIFY(Machine::xdgMimeDefault("evolution.desktop", {"x-scheme-handler/mailto"}));
        ConsoleCapture console;
        machine.tick();
        QCOMPARE(console.lines(), QStringList({"📝 Log: Email client changed from Thunderbird to Evolution"}));
        QCOMPARE(email.emailChangeCount(), 1);
        ScriptedAlertPresenter::settle();
        QVERIFY(machine.alerts.answer(AlertPresenter::Answer::first));
        QVERIFY(machine.pollUntilDone(email));
        QVERIFY(console.contains("   mailto: 0"));
        QCOMPARE(console.lines().last(), QString("✅ Email client set to Thunderbird"));
        QCOMPARE(email.emailChangeCount(), 2);
        QCOMPARE(Machine::gioDefault("mailto"), QString("thunderbird.desktop"));
    }
};

QTEST_GUILESS_MAIN(GuardEndToEndTest)
#include "tst_guard_e2e.moc"
