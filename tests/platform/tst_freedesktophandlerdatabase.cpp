#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include "XdgTree.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTest>

#include <cstdio>

// Every read is checked against GIO's own answer (`gio mime`) on the same tree.
class TestFreedesktopHandlerDatabase : public QObject {
    Q_OBJECT

private:
    static inline const QByteArray web = "x-scheme-handler/http;x-scheme-handler/https;";
    FreedesktopHandlerDatabase db;

    QString defaultId(const QString &scheme) const
    {
        const auto location = db.defaultApplicationForScheme(scheme);
        return location ? idAt(*location) : QString();
    }
    static void installWeb(const XdgTree &tree, const char *dir,
                           std::initializer_list<const char *> names)
    {
        for (const char *name : names)
            tree.entry(QLatin1String(dir), QLatin1String(name) + ".desktop", web);
        tree.updateCaches();
    }

    QString idAt(const QString &location) const
    {
        const auto application = db.applicationAt(location);
        return application ? QString(application->identifier + ".desktop") : "<unreadable>";
    }

    // Our default and list for the scheme against `gio mime`: the same default, the default
    // first, and the same set of handlers (GIO's list leaves out a default it doesn't
    // associate, so that is added to its set).
    void compareWithGio(const QString &scheme)
    {
        const XdgTree::GioAnswer gio =
            XdgTree::gioMime(FreedesktopHandlerDatabase::mimeTypeForScheme(scheme));
        QCOMPARE(defaultId(scheme), gio.defaultId);
        QStringList ids;
        for (const QString &entry : db.applicationsForScheme(scheme))
            ids.append(idAt(entry));
        QSet<QString> expected(gio.registered.cbegin(), gio.registered.cend());
        if (!gio.defaultId.isEmpty()) {
            expected.insert(gio.defaultId);
            QVERIFY(!ids.isEmpty());
            QCOMPARE(ids.first(), gio.defaultId);
        }
        QCOMPARE(QSet<QString>(ids.cbegin(), ids.cend()), expected);
        QCOMPARE(ids.size(), expected.size());
    }

private slots:
    void listsTakePrecedenceByPlace()
    {
        XdgTree tree;
        tree.updateCaches();
        compareWithGio("https"); // none at all
        installWeb(tree, "share2/applications", {"alpha", "beta", "gamma", "delta"});
        tree.write("share1/applications/mimeapps.list",
                   XdgTree::defaults("https", "delta.desktop"));
        compareWithGio("https");
        QCOMPARE(defaultId("https"), "delta.desktop");

        tree.write("local/share/applications/mimeapps.list",
                   XdgTree::defaults("https", "gamma.desktop"));
        tree.write("etc/xdg/mimeapps.list", XdgTree::defaults("https", "beta.desktop"));
        compareWithGio("https");
        QCOMPARE(defaultId("https"), "beta.desktop");

        tree.write("config/mimeapps.list",
                   XdgTree::defaults("https", "alpha.desktop")
                       + "[Added Associations]\nx-scheme-handler/mailto=alpha.desktop;\n");
        compareWithGio("https");
        compareWithGio("http");
        compareWithGio("mailto");
        QCOMPARE(defaultId("https"), "alpha.desktop");
        QCOMPARE(XdgTree::xdgMimeDefault("x-scheme-handler/https"), "alpha.desktop");
        QCOMPARE(defaultId("mailto"), "alpha.desktop");
        // Schemes are case-insensitive.
        QCOMPARE(defaultId("HTTPS"), "alpha.desktop");
    }

    // A desktop id belongs to the highest applications directory that has it; an entry in a
    // subdirectory is known by its path, dashes for slashes.
    void desktopIds()
    {
        XdgTree tree;
        tree.entry("share2/applications", "web.desktop", web);
        const QString upper = tree.entry("share1/applications", "web.desktop", {});
        tree.updateCaches();
        // The upper copy declares no types, so share1's cache doesn't list it, and share2's
        // cache no longer speaks for an id share1 provides.
        compareWithGio("https");
        QCOMPARE(db.locationForIdentifier("web"), upper);

        tree.write("config/mimeapps.list", XdgTree::defaults("https", "web.desktop"));
        compareWithGio("https");
        QCOMPARE(db.defaultApplicationForScheme("https"), upper);

        const QString nested = tree.entry("share1/applications/kde4", "foo.desktop", web);
        tree.entry("share1/applications", "kde4-bar.desktop", web);
        tree.updateCaches();
        compareWithGio("https");
        tree.write("config/mimeapps.list", XdgTree::defaults("https", "kde4-foo.desktop"));
        compareWithGio("https");
        QCOMPARE(db.defaultApplicationForScheme("https"), nested);
        QCOMPARE(db.locationForIdentifier("kde4-foo"), nested);
        QCOMPARE(db.applicationAt(nested)->identifier, "kde4-foo");
    }

    // Answers are kept between calls; the next call after a change must not use them.
    void aChangeIsSeenOnTheNextCall()
    {
        XdgTree tree;
        installWeb(tree, "share2/applications", {"alpha", "beta"});
        tree.write("config/mimeapps.list", XdgTree::defaults("https", "alpha.desktop"));
        QCOMPARE(defaultId("https"), "alpha.desktop");
        QCOMPARE(defaultId("https"), "alpha.desktop");

        // Replaced by rename, as xdg-mime writes it.
        tree.write("config/mimeapps.list.new", XdgTree::defaults("https", "beta.desktop"));
        QVERIFY(std::rename(QFile::encodeName(tree.path("config/mimeapps.list.new")),
                            QFile::encodeName(tree.path("config/mimeapps.list")))
                == 0);
        QCOMPARE(defaultId("https"), "beta.desktop");

        // Edited in place in the same second, to the same size.
        {
            const auto hold = db.holdReading();
            QCOMPARE(defaultId("https"), "beta.desktop");
            tree.write("config/mimeapps.list", XdgTree::defaults("https", "alph.desktop"));
            tree.entry("share2/applications", "alph.desktop", {}, {}, "Renamed");
        }
        QCOMPARE(defaultId("https"), "alph.desktop");
        // And an entry's own text.
        tree.entry("share2/applications", "alph.desktop", {}, {}, "Named Again");
        QCOMPARE(db.applicationAt(tree.path("share2/applications/alph.desktop"))->name,
                 "Named Again");
    }

    void unusableEntriesAreSkipped_data()
    {
        QTest::addColumn<QByteArray>("defaults");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &defaults, const QString &expected) {
            QTest::newRow(name) << defaults << expected;
        };
        row("missing file", "gone.desktop;plain.desktop", "plain.desktop");
        row("TryExec missing", "tryexec.desktop;plain.desktop", "plain.desktop");
        row("Exec program missing", "noprogram.desktop;plain.desktop", "plain.desktop");
        row("not an application", "link.desktop;plain.desktop", "plain.desktop");
        row("malformed", "malformed.desktop;plain.desktop", "plain.desktop");
        row("relative Exec on PATH", "relative.desktop;plain.desktop", "relative.desktop");
        row("no Exec at all", "noexec.desktop;plain.desktop", "noexec.desktop");
        row("NoDisplay", "nodisplay.desktop;plain.desktop", "nodisplay.desktop");
        // GIO opens URLs with a Hidden entry that a list names as default.
        row("Hidden", "hidden.desktop;plain.desktop", "hidden.desktop");
        row("Type with a blank at the end", "typeblank.desktop;plain.desktop", "plain.desktop");
        row("all unusable: first association", "gone.desktop;tryexec.desktop", "nodisplay.desktop");
    }

    void unusableEntriesAreSkipped()
    {
        QFETCH(QByteArray, defaults);
        QFETCH(QString, expected);
        XdgTree tree;
        const QString apps = "share1/applications";
        tree.entry(apps, "plain.desktop", web);
        tree.entry(apps, "tryexec.desktop", web, "TryExec=/nonexistent/tryexec\n");
        tree.entry(apps, "link.desktop", web, "Type=Link\nURL=https://127.0.0.1/\n");
        tree.entry(apps, "nodisplay.desktop", {}, "NoDisplay=true\n");
        tree.entry(apps, "hidden.desktop", web, "Hidden=true\n");
        tree.entry(apps, "hiddenblank.desktop", web, "Hidden=true \t\n");
        tree.write(apps + "/typeblank.desktop", "[Desktop Entry]\nType=Application \nName=x\n");
        const auto bare = [&](const char *file, const QByteArray &lines) {
            tree.write(apps + u'/' + file, "[Desktop Entry]\nType=Application\nName=x\n" + lines);
        };
        bare("noprogram.desktop", "Exec=\"/nonexistent/dir/prog\" %u\n");
        bare("malformed.desktop", "this line has no equals sign\n");
        bare("noexec.desktop", {});
        tree.stub("relative-prog");
        bare("relative.desktop", "Exec=relative-prog %u\n");
        tree.updateCaches();
        tree.write(
            "config/mimeapps.list",
            XdgTree::defaults("https", defaults.constData())
                + "[Added Associations]\nx-scheme-handler/https=nodisplay.desktop;hidden.desktop;\n");

        compareWithGio("https");
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(defaultId("https"), expected);
    }

    // GLib keeps blanks after a list separator or at a value's end as part of the desktop id,
    // and ignores a whole list over one line it refuses: the links open elsewhere then, here
    // with the lower place's default.
    void listsAreReadAsGLibReadsThem_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QString>("expected");
        const QByteArray defaults = "[Default Applications]\nx-scheme-handler/https=";
        QTest::newRow("blank at the end") << defaults + "beta.desktop \n"
                                          << "gamma.desktop";
        QTest::newRow("escaped blank") << defaults + "beta.desktop\\s\n"
                                       << "gamma.desktop";
        QTest::newRow("blank after a separator") << defaults + "gone.desktop; beta.desktop\n"
                                                 << "gamma.desktop";
        QTest::newRow("unknown escape") << defaults + "beta.\\desktop\n"
                                        << "gamma.desktop";
        QTest::newRow("associations") << QByteArray(
            "[Added Associations]\nx-scheme-handler/https=gone.desktop; epsilon.desktop;\n"
            "[Removed Associations]\nx-scheme-handler/https=alpha.desktop; beta.desktop\t\n")
                                      << "gamma.desktop";
        QTest::newRow("blanks before key and value, blank inside a key")
            << QByteArray("[Default Applications]\n \tx-scheme-handler/https \t= \tbeta.desktop\n"
                          "[Other]\nsome key=1\n")
            << "beta.desktop";
        QTest::newRow("merge marker") << "<<<<<<< HEAD\n" + defaults + "beta.desktop\n"
                                      << "gamma.desktop";
        QTest::newRow("unclosed locale") << defaults + "beta.desktop\nName[x=y\n"
                                         << "gamma.desktop";
        QTest::newRow("control character in a group name")
            << defaults + "beta.desktop\n[Added\x01]\n"
            << "gamma.desktop";
        QTest::newRow("encoding other than UTF-8")
            << defaults + "beta.desktop\nEncoding=ISO-8859-1\n"
            << "gamma.desktop";
    }

    void listsAreReadAsGLibReadsThem()
    {
        QFETCH(QByteArray, list);
        QFETCH(QString, expected);
        XdgTree tree;
        installWeb(tree, "share1/applications", {"alpha", "beta", "gamma", "delta"});
        tree.entry("share1/applications", "epsilon.desktop", {});
        tree.write(
            "share1/applications/mimeapps.list",
            XdgTree::defaults("https", "gamma.desktop")
                + "[Added Associations]\nx-scheme-handler/https=alpha.desktop;delta.desktop;\n");
        tree.write("config/mimeapps.list", list);
        compareWithGio("https");
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(defaultId("https"), expected);
    }

    void desktopSpecificListsComeFirst()
    {
        XdgTree tree;
        installWeb(tree, "share1/applications", {"alpha", "beta", "gamma"});
        tree.write("config/mimeapps.list", XdgTree::defaults("https", "alpha.desktop"));
        tree.write("config/xfce-mimeapps.list", XdgTree::defaults("https", "beta.desktop"));
        tree.write("etc/xdg/gnome-mimeapps.list",
                   XdgTree::defaults("https", "gamma.desktop")
                       + "[Added Associations]\nx-scheme-handler/mailto=gamma.desktop;\n");

        compareWithGio("https");
        QCOMPARE(defaultId("https"), "alpha.desktop");

        qputenv("XDG_CURRENT_DESKTOP", "GNOME:XFCE");
        compareWithGio("https");
        QCOMPARE(defaultId("https"), "beta.desktop");
        // Only defaults count in a desktop-specific list; its associations are ignored.
        compareWithGio("mailto");
        QCOMPARE(defaultId("mailto"), QString());
    }

    void removedAssociations()
    {
        XdgTree tree;
        installWeb(tree, "share2/applications", {"delta"});
        installWeb(tree, "share1/applications", {"alpha", "beta", "gamma"});
        tree.write("config/mimeapps.list",
                   "[Removed Associations]\nx-scheme-handler/https=alpha.desktop;delta.desktop;\n");
        compareWithGio("https");
        compareWithGio("http");
        QCOMPARE(db.applicationsForScheme("https").size(), 2);

        // A lower place cannot remove what a higher one added; an explicit default stays
        // the default even when removed.
        tree.write("share1/applications/mimeapps.list",
                   "[Added Associations]\nx-scheme-handler/http=gamma.desktop;\n"
                   "[Removed Associations]\nx-scheme-handler/https=beta.desktop;\n");
        tree.write("config/mimeapps.list",
                   XdgTree::defaults("https", "alpha.desktop")
                       + "[Removed Associations]\nx-scheme-handler/https=alpha.desktop;\n"
                         "[Added Associations]\nx-scheme-handler/https=delta.desktop;\n");
        compareWithGio("https");
        compareWithGio("http");
        QCOMPARE(defaultId("https"), "alpha.desktop");
    }

    void realEntries()
    {
        XdgTree tree;
        for (const char *name : {"firefox-esr", "chromium", "thunderbird"})
            QVERIFY(!tree.installFixture(FIXTURES_DIR "/" + QString(name) + ".desktop",
                                         "share2/applications")
                         .isEmpty());
        tree.updateCaches();
        for (const char *scheme : {"http", "https", "mailto"}) {
            compareWithGio(QLatin1String(scheme));
            QCOMPARE(defaultId(QLatin1String(scheme)),
                     XdgTree::xdgMimeDefault(
                         FreedesktopHandlerDatabase::mimeTypeForScheme(QLatin1String(scheme))));
        }
        QCOMPARE(db.applicationsForScheme("https").size(), 2);

        // A version only where AppStream data names one.
        QCOMPARE(db.applicationAt(*db.locationForIdentifier("firefox-esr"))->version, std::nullopt);

        tree.write(
            "share1/metainfo/firefox-esr.metainfo.xml",
            "<?xml version=\"1.0\"?>\n<component type=\"desktop-application\">\n  <id>firefox-esr</id>\n"
            "  <releases>\n    <release version=\"153.7.0esr\" date=\"2025-11-01\"/>\n"
            "    <release version=\"153.6.0esr\"/>\n  </releases>\n</component>\n");
        QCOMPARE(db.applicationAt(*db.locationForIdentifier("firefox-esr"))->version, "153.7.0esr");
    }

    void applicationFacts()
    {
        XdgTree tree;
        const QString unnamed = tree.path("share1/applications/unnamed.desktop");
        tree.write(
            "share1/applications/unnamed.desktop",
            "[Desktop Entry]\nType=Application\nName[de]=Ohne\n[Desktop Action a]\nName=Action\n");
        const auto application = db.applicationAt(unnamed);
        QVERIFY(application);
        QCOMPARE(application->identifier, "unnamed");
        QCOMPARE(application->name, std::nullopt);
        QCOMPARE(db.displayNameAtPath(unnamed), "unnamed");
        QCOMPARE(db.applicationAt(tree.path("share1/applications/none.desktop")), std::nullopt);
        QCOMPARE(db.locationForIdentifier("none"), std::nullopt);
        QCOMPARE(db.locationForIdentifier("../share1/applications/unnamed"), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestFreedesktopHandlerDatabase)
#include "tst_freedesktophandlerdatabase.moc"
