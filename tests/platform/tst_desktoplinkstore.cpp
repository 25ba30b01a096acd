#include "ProgramRun.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include "XdgTree.h"

#include <QFileInfo>
#include <QTest>

// The desktops' own settings over real entries of Debian's packages and the helpers of
// Debian's xfce4-helpers: read as the default where the desktop decides links by them,
// written on a set beside mimeapps.list, every other line of each file kept.
class DesktopLinkStoreTest : public QObject {
    Q_OBJECT

    std::unique_ptr<XdgTree> m_tree;
    FreedesktopHandlerDatabase m_db;
    QStringList m_diagnostics;

    static QString fixture(const QString &name) { return QStringLiteral(FIXTURES_DIR "/") + name; }

    QString defaultId(const QString &scheme) const
    {
        const auto location = m_db.defaultApplicationForScheme(scheme);
        const auto application = location ? m_db.applicationAt(*location) : std::nullopt;
        return application ? application->identifier : QString();
    }

private Q_SLOTS:
    void init()
    {
        m_tree = std::make_unique<XdgTree>();
        for (const char *entry :
             {"chromium", "firefox-esr", "kfmclient_html", "thunderbird", "org.gnome.Evolution"})
            QVERIFY(!m_tree
                         ->installFixture(fixture(QLatin1String(entry) + u".desktop"),
                                          "share1/applications")
                         .isEmpty());
        m_tree->updateCaches();
        QVERIFY(XdgTree::gioSet("https", "firefox-esr"));
        QVERIFY(XdgTree::gioSet("http", "firefox-esr"));
        QVERIFY(XdgTree::gioSet("mailto", "org.gnome.Evolution"));
        m_diagnostics.clear();
        m_db.setDiagnostics([this](const QString &line) { m_diagnostics << line; });
    }
    void cleanup() { m_tree.reset(); }

    void xfceOpensLinksWithItsPreferredApplications()
    {
        for (const char *helper : {"chromium", "thunderbird", "evolution", "konqueror",
                                   "debian-sensible-browser", "firefox"}) {
            QFile in(fixture(u"xfce4/helpers/" + QLatin1String(helper) + u".desktop"));
            QVERIFY(in.open(QIODevice::ReadOnly));
            m_tree->write(u"share2/xfce4/helpers/" + QLatin1String(helper) + u".desktop",
                          in.readAll());
        }
        QFile systemRc(fixture("xfce4/helpers.rc"));
        QVERIFY(systemRc.open(QIODevice::ReadOnly));
        m_tree->write("etc/xdg/xfce4/helpers.rc", systemRc.readAll());
        qputenv("XDG_CURRENT_DESKTOP", "XFCE");

        // Debian's defaults: sensible-browser, which no entry runs, and Thunderbird, though
        // mimeapps.list says Evolution.
        m_tree->stub("sensible-browser");
        QCOMPARE(defaultId("https"), QString("!sensible-browser"));
        QCOMPARE(defaultId("mailto"), QString("thunderbird"));
        QCOMPARE(QFileInfo(m_db.applicationsForScheme("mailto").first()).fileName(),
                 QString("thunderbird.desktop"));

        // xdg-settings writes helpers.rc alone; without a shipped helper it makes one from the
        // entry (whose X-XFCE-Commands name the program). A shipped one: the program's test.
        QVERIFY(runProgram("xdg-settings", {"set", "default-web-browser", "firefox-esr.desktop"})
                    .succeeded());
        QCOMPARE(defaultId("https"), QString("firefox-esr"));
        QCOMPARE(defaultId("http"), QString("firefox-esr"));

        // A set writes both stores and keeps the user's other lines.
        const QByteArray userRc =
            "# mine\nTerminalEmulator=xfce4-terminal\nWebBrowser=firefox-esr\n"
            "\n[Extra]\nMailReader=kept\n";
        m_tree->write("config/xfce4/helpers.rc", userRc);
        QCOMPARE(m_db.setDefaultHandler("https", "chromium"), 0);
        QCOMPARE(m_db.setDefaultHandler("mailto", "org.gnome.Evolution"), 0);
        QCOMPARE(m_tree->read("config/xfce4/helpers.rc"),
                 QByteArray("# mine\nTerminalEmulator=xfce4-terminal\nWebBrowser=chromium\n"
                            "MailReader=evolution\n\n[Extra]\nMailReader=kept\n"));
        QCOMPARE(defaultId("https"), QString("chromium"));
        QCOMPARE(defaultId("mailto"), QString("org.gnome.Evolution"));
        QCOMPARE(XdgTree::gioMime("x-scheme-handler/https").defaultId, QString("chromium.desktop"));

        // No helper runs Konqueror's link handler (kfmclient): nothing is written.
        const QByteArray before = m_tree->read("config/xfce4/helpers.rc");
        const QByteArray listBefore = m_tree->read("config/mimeapps.list");
        QCOMPARE(m_db.setDefaultHandler("https", "kfmclient_html"), 3);
        QCOMPARE(m_diagnostics,
                 QStringList({"⚠️ No XFCE helper runs " + m_tree->path("bin/kfmclient")}));
        QCOMPARE(m_tree->read("config/xfce4/helpers.rc"), before);
        QCOMPARE(m_tree->read("config/mimeapps.list"), listBefore);

        // helpers.rc is made where it is missing.
        QFile::remove(m_tree->path("config/xfce4/helpers.rc"));
        QCOMPARE(m_db.setDefaultHandler("http", "chromium"), 0);
        QCOMPARE(m_tree->read("config/xfce4/helpers.rc"), QByteArray("WebBrowser=chromium\n"));
    }

    void kdeOpensWebLinksWithItsBrowserSetting()
    {
        qputenv("XDG_CURRENT_DESKTOP", "KDE");
        const auto kdeglobals = [&](const QByteArray &general) {
            m_tree->write("config/kdeglobals",
                          "[$Version]\nupdate_info=filepicker.upd:filepicker-remove-old\n\n"
                          "[General]\nColorScheme=BreezeDark\n"
                              + general + "\n[KDE]\nSingleClick=false\n");
        };
        QCOMPARE(defaultId("https"), QString("firefox-esr"));
        kdeglobals("BrowserApplication=chromium.desktop\n");
        QCOMPARE(defaultId("https"), QString("chromium"));
        QCOMPARE(defaultId("http"), QString("chromium"));
        QCOMPARE(defaultId("mailto"), QString("org.gnome.Evolution")); // mail stays
        // A command maps to the entry that runs its program, the link handler first.
        kdeglobals("BrowserApplication[$e]=!" + m_tree->path("bin/kfmclient").toUtf8()
                   + " openURL\n");
        QCOMPARE(defaultId("https"), QString("kfmclient_html"));
        kdeglobals("BrowserApplication=!mybrowser --private\n");
        QCOMPARE(defaultId("https"), QString("!mybrowser"));
        // Empty, or naming nothing installed: mimeapps.list decides.
        kdeglobals("BrowserApplication=\n");
        QCOMPARE(defaultId("https"), QString("firefox-esr"));
        kdeglobals("BrowserApplication=gone.desktop\n");
        QCOMPARE(defaultId("https"), QString("firefox-esr"));

        kdeglobals("BrowserApplication[$e]=!mybrowser\n");
        QCOMPARE(m_db.setDefaultHandler("https", "chromium"), 0);
        QCOMPARE(
            m_tree->read("config/kdeglobals"),
            QByteArray("[$Version]\nupdate_info=filepicker.upd:filepicker-remove-old\n\n"
                       "[General]\nColorScheme=BreezeDark\nBrowserApplication=chromium.desktop\n"
                       "\n[KDE]\nSingleClick=false\n"));
        QCOMPARE(XdgTree::gioMime("x-scheme-handler/https").defaultId, QString("chromium.desktop"));
        QCOMPARE(m_db.setDefaultHandler("mailto", "thunderbird"), 0);
        QVERIFY(!m_tree->read("config/kdeglobals").contains("thunderbird"));
        QVERIFY(m_diagnostics.isEmpty());
    }
};

QTEST_GUILESS_MAIN(DesktopLinkStoreTest)
#include "tst_desktoplinkstore.moc"
