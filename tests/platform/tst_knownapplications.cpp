#include "ConsoleCapture.h"
#include "XdgTree.h"
#include "core/guard/DefaultResolver.h"
#include "core/guard/HandlerDetector.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include <QDir>
#include <QTest>

// The guards' installed lists over the desktop entries of Debian 12's browser and mail
// packages (translations dropped): every installed program once, under the entry that
// handles its links, and nothing whose program is missing.
class KnownApplicationsTest : public QObject {
    Q_OBJECT

    struct Listed {
        QStringList names;
        QStringList identifiers;
        QStringList console;
    };

    static Listed detect(const GuardProfile &profile, const HandlerDatabase &db)
    {
        ConsoleCapture console;
        Listed listed;
        for (const HandlerRecord &record : HandlerDetector(profile, db).detect()) {
            listed.names << record.name;
            listed.identifiers << record.bundleIdentifier;
        }
        listed.console = console.lines();
        return listed;
    }

private Q_SLOTS:
    void everyInstalledProgramIsListedOnceUnderItsHandlingEntry()
    {
        XdgTree tree;
        // Every entry of the packages (the fixtures), as dpkg installs them; Luakit and
        // Sylpheed have their entries but not their programs.
        const QDir fixtures(QStringLiteral(FIXTURES_DIR));
        for (const QString &file : fixtures.entryList({"*.desktop"})) {
            const bool installed = file != u"luakit.desktop" && file != u"sylpheed.desktop";
            QVERIFY(!tree.installFixture(fixtures.filePath(file), "share2/applications", installed)
                         .isEmpty());
        }
        tree.updateCaches();
        FreedesktopHandlerDatabase db;

        const Listed browsers = detect(GuardProfile::browser(), db);
        QCOMPARE(browsers.names,
                 QStringList({"Chromium Web Browser", "Dillo", "Falkon", "Firefox ESR", "Konqueror",
                              "Links 2", "NetSurf Web Browser", "Web", "qutebrowser"}));
        QCOMPARE(browsers.identifiers.at(browsers.names.indexOf("Konqueror")),
                 QString("kfmclient_html"));
        // Each of them by the known list, whatever its name says.
        QCOMPARE(browsers.console.size(), browsers.names.size() + 1);
        QVERIFY(browsers.console.contains("✅ Found: Web"));
        QCOMPARE(browsers.console.last(), QString("📊 Total: 9"));

        const Listed mail = detect(GuardProfile::email(), db);
        QCOMPARE(mail.names, QStringList({"Balsa", "Claws Mail", "Evolution", "Geary", "KMail",
                                          "Thunderbird", "neomutt"}));
        QCOMPARE(mail.identifiers,
                 QStringList({"balsa-mailto-handler", "claws-mail", "org.gnome.Evolution",
                              "org.gnome.Geary", "org.kde.kmail2", "thunderbird", "neomutt"}));
        QCOMPARE(mail.console.size(), mail.names.size() + 1);
        QCOMPARE(mail.console.last(), QString("📧 Email: Total: 7"));

        // Made the default, each resolves to the very record listed: a target and the
        // default of one program never differ by id.
        for (const auto &[profile, listed] : {std::pair{&GuardProfile::browser(), browsers},
                                              std::pair{&GuardProfile::email(), mail}}) {
            for (const QString &id : listed.identifiers) {
                for (const QString &scheme : profile->settingSchemes)
                    QCOMPARE(db.setDefaultHandler(scheme, id), 0);
                QList<HandlerRecord> installed;
                for (const QString &known : listed.identifiers)
                    installed << HandlerRecord(QString(), known);
                const auto current = DefaultResolver(*profile, db).resolve(installed);
                QCOMPARE(current->bundleIdentifier, id);
                QCOMPARE(installed.size(), listed.identifiers.size());
            }
        }
    }
};

QTEST_GUILESS_MAIN(KnownApplicationsTest)
#include "tst_knownapplications.moc"
