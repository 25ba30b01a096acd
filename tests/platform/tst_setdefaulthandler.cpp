#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include "ConsoleCapture.h"
#include "XdgTree.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <thread>

class TestSetDefaultHandler : public QObject {
    Q_OBJECT

private:
    static inline const QByteArray web =
        "x-scheme-handler/http;x-scheme-handler/https;x-scheme-handler/mailto;";
    FreedesktopHandlerDatabase db;

    static void installApps(const XdgTree &tree)
    {
        for (const char *name : {"alpha", "beta", "gamma"})
            tree.entry("share1/applications", QLatin1String(name) + ".desktop", web);
        tree.updateCaches();
    }

    static QString gioDefault(const char *scheme)
    {
        return XdgTree::gioMime("x-scheme-handler/" + QLatin1String(scheme)).defaultId;
    }

private slots:
    void changesExactlyTheIntendedLines()
    {
        XdgTree tree;
        installApps(tree);
        const QByteArray before =
            "# Personal associations\n"
            "\n"
            "[Removed Associations]\n"
            "text/plain=alpha.desktop;\n"
            "\n"
            "[Default Applications]\n"
            "x-scheme-handler/mailto=gamma.desktop\n"
            "# https below\n"
            "x-scheme-handler/https=alpha.desktop\n"
            "text/html=alpha.desktop\n"
            "\n"
            "[Added Associations]\n"
            "x-scheme-handler/https = alpha.desktop;beta.desktop;gamma.desktop;\n"
            "# keep me\n"
            "image/png=gamma.desktop;\n";
        tree.write("config/mimeapps.list", before);
        QCOMPARE(gioDefault("https"), "alpha.desktop");

        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QByteArray expected = before;
        expected.replace("x-scheme-handler/https=alpha.desktop\n",
                         "x-scheme-handler/https=beta.desktop\n");
        expected.replace("https = alpha.desktop;beta.desktop;gamma.desktop;",
                         "https = beta.desktop;alpha.desktop;gamma.desktop;");
        QCOMPARE(tree.read("config/mimeapps.list"), expected);
        QCOMPARE(XdgTree::xdgMimeDefault("x-scheme-handler/https"), "beta.desktop");

        // A second identical call changes nothing; a new scheme gets its lines.
        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QCOMPARE(tree.read("config/mimeapps.list"), expected);
        QCOMPARE(db.setDefaultHandler("http", "gamma"), 0);
        expected.replace("text/html=alpha.desktop\n",
                         "text/html=alpha.desktop\nx-scheme-handler/http=gamma.desktop\n");
        expected.append("x-scheme-handler/http=gamma.desktop;\n");
        QCOMPARE(tree.read("config/mimeapps.list"), expected);
        QCOMPARE(gioDefault("http"), "gamma.desktop");
    }

    void createsTheList()
    {
        XdgTree tree;
        installApps(tree);
        QDir(tree.path("config")).removeRecursively();
        QCOMPARE(db.setDefaultHandler("mailto", "gamma"), 0);
        QCOMPARE(tree.read("config/mimeapps.list"),
                 QByteArray("[Default Applications]\nx-scheme-handler/mailto=gamma.desktop\n\n"
                            "[Added Associations]\nx-scheme-handler/mailto=gamma.desktop;\n"));
        QCOMPARE(gioDefault("mailto"), "gamma.desktop");
    }

    void dropsAShadowingDesktopDefault()
    {
        XdgTree tree;
        installApps(tree);
        qputenv("XDG_CURRENT_DESKTOP", "GNOME:XFCE");
        const QByteArray gnome =
            "[Default Applications]\r\nx-scheme-handler/https=alpha.desktop\r\ntext/html=alpha.desktop\r\n";
        const QByteArray xfce =
            "[Default Applications]\nx-scheme-handler/https=beta.desktop;alpha.desktop\n";
        tree.write("config/gnome-mimeapps.list", gnome);
        tree.write("config/xfce-mimeapps.list", xfce);
        tree.write("etc/xdg/gnome-mimeapps.list", gnome);
        QCOMPARE(gioDefault("https"), "alpha.desktop");

        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QCOMPARE(tree.read("config/gnome-mimeapps.list"),
                 QByteArray("[Default Applications]\r\ntext/html=alpha.desktop\r\n"));
        QCOMPARE(tree.read("config/xfce-mimeapps.list"), xfce);
        QCOMPARE(tree.read("etc/xdg/gnome-mimeapps.list"), gnome);
        QVERIFY(!QFile::exists(tree.path("config/kde-mimeapps.list")));
        QCOMPARE(gioDefault("https"), "beta.desktop");
    }

    void writesThroughASymlink()
    {
        XdgTree tree;
        installApps(tree);
        tree.write("dotfiles/mimeapps.list", XdgTree::defaults("https", "alpha.desktop"));
        QVERIFY(QFile::link("../dotfiles/mimeapps.list", tree.path("config/mimeapps.list")));
        QCOMPARE(db.setDefaultHandler("https", "gamma"), 0);
        QVERIFY(QFileInfo(tree.path("config/mimeapps.list")).isSymLink());
        QVERIFY(tree.read("dotfiles/mimeapps.list").contains("https=gamma.desktop\n"));
        QCOMPARE(gioDefault("https"), "gamma.desktop");
    }

    void refusals()
    {
        XdgTree tree;
        installApps(tree);
        const QString list = tree.path("config/mimeapps.list");
        const QByteArray before = "[Default Applications]\nx-scheme-handler/https=alpha.desktop\n";
        tree.write("config/mimeapps.list", before);

        QCOMPARE(db.setDefaultHandler("https", "unknown"),
                 int(FreedesktopHandlerDatabase::NotInstalled));
        QCOMPARE(db.setDefaultHandler("ht tps", "beta"),
                 int(FreedesktopHandlerDatabase::InvalidArgument));
        QCOMPARE(db.setDefaultHandler("https", "../beta"),
                 int(FreedesktopHandlerDatabase::InvalidArgument));
        QCOMPARE(tree.read("config/mimeapps.list"), before);

        // Owner, group and other bits; the "user" bits say what this process may do.
        const auto modeBits = QFileDevice::Permissions(0x7077);
        // As root the file could be written; its mode says it shouldn't.
        const auto readOnly =
            QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
        QVERIFY(QFile::setPermissions(list, readOnly));
        QCOMPARE(db.setDefaultHandler("https", "beta"),
                 int(FreedesktopHandlerDatabase::NotWritable));
        QCOMPARE(tree.read("config/mimeapps.list"), before);
        QCOMPARE(QFile::permissions(list) & modeBits, readOnly);

        // A private list stays private after the replace.
        const auto privateMode = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        QVERIFY(QFile::setPermissions(list, privateMode));
        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QCOMPARE(QFile::permissions(list) & modeBits, privateMode);
    }

    // GLib reads no line of a list it refuses, so a default written into it would never be
    // seen. The list is kept beside as it was and replaced by one GLib reads, with every line
    // GLib can read.
    void replacesAListGLibRefuses()
    {
        XdgTree tree;
        installApps(tree);
        tree.write("share1/applications/mimeapps.list",
                   XdgTree::defaults("https", "gamma.desktop"));
        const QByteArray before = "# mine\n"
                                  "[Default Applications]\n"
                                  "<<<<<<< HEAD\n"
                                  "x-scheme-handler/https=alpha.desktop\n"
                                  "=======\n"
                                  "x-scheme-handler/mailto=gamma.desktop\r\n"
                                  ">>>>>>> laptop\n"
                                  "Name[x=y\n"
                                  "[Added Associations\n"
                                  "x-scheme-handler/http=alpha.desktop;\n"
                                  "[Added Associations]\n"
                                  "x-scheme-handler/https=gamma.desktop; beta.desktop;\n";
        tree.write("config/mimeapps.list", before);
        const auto keptCopies = [&] {
            return QDir(tree.path("config")).entryList({"mimeapps.list.unreadable-*"});
        };
        QCOMPARE(gioDefault("https"), "gamma.desktop");

        ConsoleCapture console;
        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QCOMPARE(tree.read("config/mimeapps.list"),
                 QByteArray("# mine\n"
                            "[Default Applications]\n"
                            "x-scheme-handler/https=beta.desktop\n"
                            "x-scheme-handler/mailto=gamma.desktop\r\n"
                            "[Added Associations]\n"
                            "x-scheme-handler/https=beta.desktop;gamma.desktop; beta.desktop;\n"));
        QCOMPARE(gioDefault("https"), "beta.desktop");
        QCOMPARE(gioDefault("mailto"), "gamma.desktop");
        const QString kept =
            "mimeapps.list.unreadable-" + QDate::currentDate().toString(Qt::ISODate);
        QCOMPARE(keptCopies(), QStringList{kept});
        QCOMPARE(tree.read(u"config/" + kept), before);
        const QString list = tree.path("config/mimeapps.list");
        QCOMPARE(console.lines(),
                 QStringList{u"⚠️ " + list
                             + u" line 3 is unreadable (<<<<<<< HEAD); kept the file as " + list
                             + u".unreadable-" + QDate::currentDate().toString(Qt::ISODate)
                             + u" and wrote a readable list"});

        // A second copy of the day gets a name of its own; a read-only list stays as it is.
        tree.write("config/mimeapps.list", before);
        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QCOMPARE(keptCopies().size(), 2);
        tree.write("config/mimeapps.list", before);
        QVERIFY(QFile::setPermissions(list, QFileDevice::ReadOwner));
        QCOMPARE(db.setDefaultHandler("https", "beta"),
                 int(FreedesktopHandlerDatabase::NotWritable));
        QCOMPARE(keptCopies().size(), 2);
        QCOMPARE(tree.read("config/mimeapps.list"), before);
    }

    // A desktop-specific list GLib refuses hides nothing, so it is left alone.
    void leavesARefusedDesktopListAlone()
    {
        XdgTree tree;
        installApps(tree);
        qputenv("XDG_CURRENT_DESKTOP", "GNOME");
        const QByteArray gnome = XdgTree::defaults("https", "alpha.desktop") + "Name[x=y\n";
        tree.write("config/gnome-mimeapps.list", gnome);
        QCOMPARE(db.setDefaultHandler("https", "beta"), 0);
        QCOMPARE(tree.read("config/gnome-mimeapps.list"), gnome);
        QCOMPARE(gioDefault("https"), "beta.desktop");
    }

    void concurrentWritersKeepEachOthersLines()
    {
        XdgTree tree;
        installApps(tree);
        const auto writer = [this](const QString &scheme) {
            for (int i = 0; i < 30; ++i)
                db.setDefaultHandler(scheme, i % 2 ? "beta" : "gamma");
        };
        std::thread first(writer, "http");
        std::thread second(writer, "mailto");
        first.join();
        second.join();
        const QByteArray content = tree.read("config/mimeapps.list");
        QVERIFY2(content.contains("x-scheme-handler/http=beta.desktop\n"), content.constData());
        QVERIFY2(content.contains("x-scheme-handler/mailto=beta.desktop\n"), content.constData());
    }
};

QTEST_GUILESS_MAIN(TestSetDefaultHandler)
#include "tst_setdefaulthandler.moc"
