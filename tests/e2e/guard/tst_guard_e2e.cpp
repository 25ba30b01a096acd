#include "../../core/guard/GuardWorld.h"
#include "XdgTree.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/DefaultFileMonitor.h"
#include "platform/freedesktop/FreedesktopHandlerChangeWatcher.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include <QDir>

#include <memory>

// The browser guard against the real freedesktop handler database: another program takes
// the role over, the next check finds it, and after the change back gio reads the target
// again. With the files watched, a takeover is found without the tick.
class GuardEndToEndTest : public QObject {
    Q_OBJECT

    std::unique_ptr<XdgTree> m_tree;

    // The guard world with the real handler database in place of its fake one.
    struct Rig : GuardWorld {
        FreedesktopHandlerDatabase realHandlers;
        GuardEnvironment env = [this] {
            GuardEnvironment real = environment();
            real.handlers = &realHandlers;
            return real;
        }();
    };

private Q_SLOTS:
    void init()
    {
        m_tree = std::make_unique<XdgTree>();
        for (const char *name : {"Firefox", "Chromium"})
            m_tree->entry("share1/applications", QString(name).toLower() + u".desktop",
                          "x-scheme-handler/http;x-scheme-handler/https;", {}, name);
        m_tree->updateCaches();
    }
    void cleanup() { m_tree.reset(); }

    // A hand edit left a line GLib refuses in the user's list: GIO reads none of it, so the
    // system's default stands; the guard sees that, and the change back takes.
    void aListGLibRefusesProtectsNothing()
    {
        Rig rig;
        m_tree->write(QStringLiteral("etc/xdg/mimeapps.list"),
                      "[Default Applications]\nx-scheme-handler/https=chromium.desktop\n");
        m_tree->write(QStringLiteral("config/mimeapps.list"),
                      "[Default Applications]\nx-scheme-handler/https=firefox.desktop\n"
                      "Name[x=y\n");
        const QString https = QStringLiteral("x-scheme-handler/https");
        QCOMPARE(XdgTree::gioMime(https).defaultId, QStringLiteral("chromium.desktop"));

        BrowserManager guard(rig.env);
        QCOMPARE(guard.currentDefault()->bundleIdentifier, QStringLiteral("chromium"));
        for (const HandlerRecord &record : guard.installed()) {
            if (record.bundleIdentifier == u"firefox")
                guard.setTarget(record);
        }
        rig.timers.fire(600s);
        QCOMPARE(guard.changeCount(), 1);
        QTRY_VERIFY(rig.alerts.isPresenting());
        QVERIFY(rig.alerts.answer(0)); // change back
        QVERIFY(
            QTest::qWaitFor([&] { return !rig.timers.activeWithInterval(1s).isEmpty(); }, 10000));
        rig.timers.fire(1s);
        QCOMPARE(guard.currentDefault()->bundleIdentifier, QStringLiteral("firefox"));
        QCOMPARE(XdgTree::gioMime(https).defaultId, QStringLiteral("firefox.desktop"));
        QCOMPARE(QDir(m_tree->path(QStringLiteral("config")))
                     .entryList({QStringLiteral("mimeapps.list.unreadable-*")})
                     .size(),
                 1);
    }
    void aTakeoverIsFoundWithoutTheTick_data()
    {
        QTest::addColumn<QString>("tool");
        for (const char *tool : {"xdg-mime", "gio", "hand edit"})
            QTest::newRow(tool) << QString(tool);
    }

    // The interval is ten minutes and its timer never fires here: only the watched files
    // can start the check.
    void aTakeoverIsFoundWithoutTheTick()
    {
        QFETCH(QString, tool);
        Rig rig;
        rig.env.changeWatchers = [] { return std::make_unique<FreedesktopHandlerChangeWatcher>(); };
        QVERIFY(XdgTree::xdgMimeSet("firefox", {"https", "http"}));
        BrowserManager browser(rig.env);
        browser.setTarget(browser.currentDefault());

        if (tool == u"xdg-mime")
            QVERIFY(XdgTree::xdgMimeSet("chromium", {"https", "http"}));
        else if (tool == u"gio")
            QVERIFY(XdgTree::gioSet("https", "chromium"));
        else
            m_tree->write("config/mimeapps.list",
                          m_tree->read("config/mimeapps.list")
                              .replace("=firefox.desktop", "=chromium.desktop"));
        QVERIFY(QTest::qWaitFor(
            [&] { return rig.timers.fire(DefaultFileMonitor::settleDelay) > 0; }, 10000));
        QCOMPARE(browser.changeCount(), 1);
        GuardWorld::settle();
        QCOMPARE(rig.alerts.shown().size(), 1);
    }
};

QTEST_GUILESS_MAIN(GuardEndToEndTest)
#include "tst_guard_e2e.moc"
