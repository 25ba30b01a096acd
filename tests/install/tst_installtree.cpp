#include "InstalledCopy.h"
#include "ProgramRun.h"

#include "platform/freedesktop/DesktopEntry.h"
#include "platform/freedesktop/KeyFileScanner.h"

#include "BuildConfig.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

// `cmake --install` into a temporary prefix lays out what desktops and Debian look for,
// and the desktop's own validators accept it.
class InstallTreeTest : public QObject {
    Q_OBJECT

    using Group = QHash<QByteArray, QString>;

    std::unique_ptr<InstalledCopy> m_copy;
    QString m_appId = QString::fromUtf8(BuildConfig::appId);

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QHash<QByteArray, Group> groups(const QByteArray &content)
    {
        QHash<QByteArray, Group> result;
        KeyFileScanner scanner(content);
        while (scanner.next())
            result[scanner.group()].insert(scanner.key().toByteArray(),
                                           scanner.value().value_or(QString()));
        return scanner.valid() ? result : QHash<QByteArray, Group>();
    }

    // Runs a validator; its complaints, if any, become the failure message.
    static QString complaints(const QString &program, const QStringList &arguments)
    {
        const ProgramRun run = runProgram(program, arguments, 60000, true);
        if (run.exitCode < 0)
            return program + u" did not finish";
        return run.succeeded() ? QString() : run.text();
    }

    // The interface languages other than English, as the string tables name them.
    static QStringList otherLanguages()
    {
        QStringList codes;
        const QDir tables(qEnvironmentVariable("VANDOREL_SOURCE_DIR") + u"/resources/translations");
        for (const QString &file : tables.entryList({"vandorel_*.ts"}))
            codes << file.section(u'_', 1).section(u'.', 0, 0);
        codes.removeAll("en");
        return codes;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_copy = std::make_unique<InstalledCopy>(QStringLiteral(VANDOREL_BUILD_DIR));
        QVERIFY2(m_copy->isInstalled(), m_copy->log().constData());
        QCOMPARE(otherLanguages().size(), 9);
    }

    void desktopEntryOpensOurUrls()
    {
        const QString path = m_copy->path(u"share/applications/" + m_appId + u".desktop");
        const QString problems = complaints("desktop-file-validate", {path});
        QVERIFY2(problems.isEmpty(), qPrintable(problems));

        const QHash<QByteArray, Group> entry = groups(read(path));
        const Group main = entry.value("Desktop Entry");
        QCOMPARE(main.value("Exec"), QString("vandorel %u"));
        QVERIFY(main.value("MimeType").split(u';').contains(u"x-scheme-handler/vandorel"));
        QCOMPARE(main.value("Icon"), m_appId);
        QVERIFY(main.value("Categories").split(u';').contains(u"Settings"));
        QCOMPARE(main.value("Actions"), QString("Settings;About;"));
        QCOMPARE(entry.value("Desktop Action Settings").value("Exec"),
                 QString("vandorel vandorel://settings"));
        QCOMPARE(entry.value("Desktop Action About").value("Exec"),
                 QString("vandorel vandorel://about"));
        for (const QString &code : otherLanguages()) {
            const QByteArray localized = '[' + code.toUtf8() + ']';
            QVERIFY2(!main.value("Comment" + localized).isEmpty(), qPrintable(code));
            QVERIFY2(!main.value("GenericName" + localized).isEmpty(), qPrintable(code));
            for (const char *action : {"Desktop Action Settings", "Desktop Action About"})
                QVERIFY2(!entry.value(action).value("Name" + localized).isEmpty(), action);
        }

        // GIO launches it only when the program of Exec is found.
        const QByteArray systemPath = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_copy->path("bin")));
        const bool launchable = DesktopEntry::read(path)->isLaunchable();
        qputenv("PATH", systemPath);
        QVERIFY(launchable);
    }

    void metainfoIsValidAndNamesThisVersion()
    {
        const QString path = m_copy->path(u"share/metainfo/" + m_appId + u".metainfo.xml");
        const QString problems = complaints("appstreamcli", {"validate", "--no-net", path});
        QVERIFY2(problems.isEmpty(), qPrintable(problems));
        const QString xml = QString::fromUtf8(read(path));
        QVERIFY(xml.contains(u"<release version=\"" + QLatin1StringView(BuildConfig::appVersion)
                             + u"\""));
        QVERIFY(
            xml.contains(u"<launchable type=\"desktop-id\">" + m_appId + u".desktop</launchable>"));
        QVERIFY(xml.contains("<binary>vandorel</binary>"));
        QVERIFY(QFileInfo(m_copy->path("bin/vandorel")).isExecutable());
    }

    void iconAtEverySize()
    {
        const QString icons = m_copy->path("share/icons/hicolor");
        QVERIFY(QFile::exists(icons + u"/scalable/apps/" + m_appId + u".svg"));
        for (int size : {16, 32, 48, 64, 128, 256}) {
            const QString folder = QString::number(size) + u'x' + QString::number(size);
            const QImage image(icons + u'/' + folder + u"/apps/" + m_appId + u".png");
            QCOMPARE(image.size(), QSize(size, size));
            // The shield in the middle, nothing in the corners.
            QCOMPARE(qAlpha(image.pixel(size / 2, size / 2)), 255);
            QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(image.pixel(size - 1, size - 1)), 0);
        }
    }

    void manualPageAndDebianDocuments()
    {
        for (const char *file :
             {"share/man/man1/vandorel.1.gz", "share/doc/vandorel/changelog.gz"}) {
            const ProgramRun gunzip = runProgram("gunzip", {"-c", m_copy->path(file)}, 10000);
            QVERIFY2(gunzip.succeeded() && gunzip.out.contains(BuildConfig::appVersion), file);
        }
        const QByteArray copyright = read(m_copy->path("share/doc/vandorel/copyright"));
        QVERIFY(copyright.startsWith("Format: https://www.debian.org/doc/packaging-manuals/"
                                     "copyright-format/1.0/\n"));
    }
};

QTEST_GUILESS_MAIN(InstallTreeTest)
#include "tst_installtree.moc"
