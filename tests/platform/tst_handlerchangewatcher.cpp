#include "platform/freedesktop/FreedesktopHandlerChangeWatcher.h"

#include "ProgramRun.h"
#include "XdgTree.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <functional>
#include <memory>
#include <utime.h>

// The watcher over a real XDG tree: every way the tools change a default is seen, also when
// they replace a file by renaming or make its directory first, and the digest tells a
// change of contents from a touch.
class HandlerChangeWatcherTest : public QObject {
    Q_OBJECT

    std::unique_ptr<XdgTree> m_tree;
    std::unique_ptr<FreedesktopHandlerChangeWatcher> m_watcher;
    int m_touches = 0;

    void watch(const QStringList &schemes, const QStringList &identifiers)
    {
        m_schemes = schemes;
        m_identifiers = identifiers;
        m_watcher = std::make_unique<FreedesktopHandlerChangeWatcher>();
        connect(m_watcher.get(), &HandlerChangeWatcher::touched, this, [this] { ++m_touches; });
        m_watcher->watch(schemes, identifiers);
    }

    // Does `act`, waits for the watcher to hear of it and arms it again, as its user does
    // once events settle. Whether the deciding contents changed.
    bool changes(const std::function<void()> &act)
    {
        const QByteArray before = m_watcher->contentsDigest();
        const int touches = m_touches;
        act();
        if (!QTest::qWaitFor([&] { return m_touches > touches; }, 10000))
            return false;
        m_watcher->watch(m_schemes, m_identifiers);
        return m_watcher->contentsDigest() != before;
    }

    // A hand edit as an editor saves: a new file renamed over the old one.
    void replace(const QString &relative, const QByteArray &content) const
    {
        m_tree->write(relative + u".new", content);
        QFile::remove(m_tree->path(relative));
        QVERIFY(QFile::rename(m_tree->path(relative + u".new"), m_tree->path(relative)));
    }

    QStringList m_schemes;
    QStringList m_identifiers;
    const QStringList web{"https", "http"};
    const QStringList browsers{"firefox", "chromium"};

private Q_SLOTS:
    void init()
    {
        m_tree = std::make_unique<XdgTree>();
        const QByteArray web = "x-scheme-handler/http;x-scheme-handler/https;";
        m_tree->entry("share1/applications", "firefox.desktop", web);
        m_tree->entry("share1/applications", "chromium.desktop", web);
        m_tree->entry("share2/applications", "epiphany.desktop", web);
        m_tree->updateCaches();
        QVERIFY(XdgTree::xdgMimeSet("firefox", {"https"}));
    }
    void cleanup()
    {
        m_watcher.reset();
        m_tree.reset();
    }

    // What the tools do in place is seen by the guard's own tests; here, what a watch on
    // the file alone would miss.
    void everyWayOfTakingTheDefaultOverIsSeen()
    {
        watch(web, browsers);
        QVERIFY(changes([this] {
            replace("config/mimeapps.list", XdgTree::defaults("https", "chromium.desktop"));
        }));
        // A list where none was: in the system's config directory, and in a user config
        // directory made after watching began.
        QVERIFY(changes([this] {
            m_tree->write("etc/xdg/mimeapps.list", XdgTree::defaults("http", "epiphany.desktop"));
        }));
        QVERIFY(changes([this] { QVERIFY(QDir(m_tree->path("config")).removeRecursively()); }));
        QVERIFY(changes([this] {
            m_tree->write("config/mimeapps.list", XdgTree::defaults("https", "firefox.desktop"));
        }));
        // The entries of the programs followed: a user's copy that hides the shipped one,
        // and the cache the default falls back to.
        QVERIFY(changes([this] {
            m_tree->entry("local/share/applications", "firefox.desktop", "text/plain;");
        }));
        QVERIFY(changes([this] { m_tree->updateCaches(); }));
    }

    void aTouchOrAnotherFileChangesNothing()
    {
        watch(web, browsers);
        const QString list = m_tree->path("config/mimeapps.list");
        QVERIFY(
            !changes([&] { QCOMPARE(utime(QFile::encodeName(list).constData(), nullptr), 0); }));
        QVERIFY(!changes(
            [&] { replace("config/mimeapps.list", m_tree->read("config/mimeapps.list")); }));
        QVERIFY(!changes([this] { m_tree->write("config/user-dirs.dirs", "XDG_MUSIC_DIR=x\n"); }));
        // Another program's entry, which decides neither default.
        QVERIFY(!changes(
            [this] { m_tree->entry("share2/applications", "gimp.desktop", "image/png;"); }));
    }

    // On XFCE and KDE the desktop's own setting decides links, and is watched; mail on
    // KDE goes by mimeapps.list alone.
    void theDesktopsOwnSettingWhereItDecides()
    {
        qputenv("XDG_CURRENT_DESKTOP", "XFCE");
        watch(web, browsers);
        QVERIFY(changes([] {
            QVERIFY(runProgram("xdg-settings", {"set", "default-web-browser", "chromium.desktop"})
                        .succeeded());
        }));
        // xdg-settings made a helper of the entry under the data home: its program changed.
        QVERIFY(changes([this] {
            const QString helper = "local/share/xfce4/helpers/chromium.desktop";
            m_tree->write(helper,
                          m_tree->read(helper).replace("X-XFCE-Commands=", "X-XFCE-Commands=x"));
        }));

        qputenv("XDG_CURRENT_DESKTOP", "KDE");
        watch(web, browsers);
        QVERIFY(changes([this] {
            m_tree->write("config/kdeglobals", "[General]\nBrowserApplication=chromium.desktop\n");
        }));
        QVERIFY(!FreedesktopHandlerChangeWatcher::decidingFiles({"mailto"}, {"thunderbird"})
                     .contains(m_tree->path("config/kdeglobals")));
    }
};

QTEST_GUILESS_MAIN(HandlerChangeWatcherTest)
#include "tst_handlerchangewatcher.moc"
