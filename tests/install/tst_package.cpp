#include "BuildConfig.h"
#include "ProgramRun.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// The Debian package that CPack makes of this build: its control fields, its files, a
// stripped program, and what lintian and apt say of it.
class PackageTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_deb;

    static ProgramRun run(const QString &program, const QStringList &arguments, bool merged = false)
    {
        return runProgram(program, arguments, 300000, merged);
    }

    QString field(const char *name) const
    {
        return run("dpkg-deb", {"--field", m_deb, QLatin1StringView(name)}).text().trimmed();
    }

private Q_SLOTS:
    void initTestCase()
    {
        const ProgramRun pack =
            run("cpack",
                {"--config", QStringLiteral(VANDOREL_BUILD_DIR "/CPackConfig.cmake"), "-B",
                 m_dir.path()},
                true);
        QVERIFY2(pack.exitCode == 0, qPrintable(pack.text()));
        const QStringList debs = QDir(m_dir.path()).entryList({"*.deb"});
        QCOMPARE(debs.size(), 1);
        m_deb = m_dir.filePath(debs.first());
        QCOMPARE(debs.first(), u"vandorel_" + QLatin1StringView(BuildConfig::appVersion) + u"_"
                                   + run("dpkg", {"--print-architecture"}).text().trimmed()
                                   + u".deb");
    }

    void controlFieldsAndComputedDependencies()
    {
        QCOMPARE(field("Package"), QString("vandorel"));
        QCOMPARE(field("Version"), QString(BuildConfig::appVersion));
        // dpkg-shlibdeps names the libraries the program links, with their versions.
        const QString depends = field("Depends");
        for (const char *library : {"libc6 (>=", "libstdc++6 (>=", "libqt6core6 (>=",
                                    "libqt6widgets6 (>=", "libqt6dbus6 (>=", "libqt6network6 (>="})
            QVERIFY2(depends.contains(QLatin1StringView(library)), qPrintable(depends));
        QVERIFY(depends.contains(QRegularExpression("libicu\\d+ \\(>=")));
        QVERIFY(!field("Maintainer").isEmpty());
    }

    void filesAreExactlyTheInstalledOnes()
    {
        const QString listing = run("dpkg-deb", {"--contents", m_deb}).text();
        QStringList files;
        for (const QString &line : listing.split(u'\n', Qt::SkipEmptyParts)) {
            if (!line.startsWith(u'd')) // directories come with their files
                files << line.section(u' ', -1);
        }
        files.sort();
        const QString id = QString::fromUtf8(BuildConfig::appId);
        QStringList expected{"./usr/bin/vandorel",
                             "./usr/lib/vandorel/vandorel-program.so",
                             "./usr/share/applications/" + id + ".desktop",
                             "./usr/share/doc/vandorel/changelog.gz",
                             "./usr/share/doc/vandorel/copyright",
                             "./usr/share/icons/hicolor/scalable/apps/" + id + ".svg",
                             "./usr/share/man/man1/vandorel.1.gz",
                             "./usr/share/metainfo/" + id + ".metainfo.xml"};
        for (const char *size : {"16x16", "32x32", "48x48", "64x64", "128x128", "256x256"})
            expected << "./usr/share/icons/hicolor/" + QLatin1StringView(size) + "/apps/" + id
                            + ".png";
        expected.sort();
        QCOMPARE(files, expected);

        // Owned by root; the program alone is executable.
        for (const QString &line : listing.split(u'\n', Qt::SkipEmptyParts)) {
            const QString mode = line.startsWith(u'd')                 ? "drwxr-xr-x"
                                 : line.endsWith(u"/usr/bin/vandorel") ? "-rwxr-xr-x"
                                                                       : "-rw-r--r--";
            QVERIFY2(line.startsWith(mode) && line.contains(u" root/root "), qPrintable(line));
        }
    }

    void programIsStripped()
    {
        QTemporaryDir unpacked;
        QCOMPARE(run("dpkg-deb", {"-x", m_deb, unpacked.path()}).exitCode, 0);
        for (const char *file : {"/usr/bin/vandorel", "/usr/lib/vandorel/vandorel-program.so"}) {
            const QString sections = run("readelf", {"-S", "-W", unpacked.path() + file}).text();
            QVERIFY2(sections.contains(u" .text "), file);
            QVERIFY2(!sections.contains(u" .symtab "), file);
            QVERIFY2(!sections.contains(u" .debug_"), file);
        }
    }

    // Lintian's errors fail the test; its warnings are listed in the output.
    void lintianFindsNoError()
    {
        const ProgramRun lintian = run("lintian", {"--no-tag-display-limit", "--info", m_deb});
        QVERIFY2(lintian.exitCode == 0 || lintian.exitCode == 1, qPrintable(lintian.text()));
        QStringList errors;
        for (const QString &line : lintian.text().split(u'\n', Qt::SkipEmptyParts)) {
            if (line.startsWith(u"E: "))
                errors << line;
            else if (line.startsWith(u"W: "))
                qInfo().noquote() << line;
        }
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join(u'\n')));
    }

    // What apt would do with it on this system, without doing it.
    void aptCanInstallIt()
    {
        const ProgramRun apt = run("apt-get", {"--simulate", "install", m_deb}, true);
        QVERIFY2(apt.exitCode == 0, qPrintable(apt.text()));
        QVERIFY2(apt.text().contains(u"Inst vandorel "), qPrintable(apt.text()));
    }
};

QTEST_GUILESS_MAIN(PackageTest)
#include "tst_package.moc"
