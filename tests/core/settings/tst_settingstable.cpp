#include "TempSettings.h"
#include "core/settings/SettingsMigration.h"
#include "core/settings/SettingsTable.h"

#include <QSet>
#include <QSignalSpy>
#include <QTest>

// The one table of keys, and the migration that a file passes through once at start.
class SettingsTableTest : public QObject {
    Q_OBJECT

    static const inline QDateTime when{QDate(2026, 5, 1), QTime(12, 30, 15), Qt::UTC};

    // Each key of the table holds a value of its type, as an earlier version wrote it.
    static void fillEveryKey(SettingsStore &store)
    {
        for (const DeclaredKey &key : SettingsTable::all()) {
            const QString name = QLatin1StringView(key.name);
            switch (key.type) {
            case SettingType::boolean:
                store.setBool(name, true);
                break;
            case SettingType::integer:
                store.setInteger(name, 7);
                break;
            case SettingType::real:
                store.setDouble(name, 1.5);
                break;
            case SettingType::text:
                store.setString(name, "5min");
                break;
            case SettingType::data:
                store.setData(name, "{\"name\":\"Firefox\"}");
                break;
            case SettingType::date:
                store.setDate(name, when);
                break;
            }
        }
    }

    static QSet<QByteArray> lines(const QByteArray &file)
    {
        const QList<QByteArray> all = file.split('\n');
        return QSet<QByteArray>(all.cbegin(), all.cend());
    }

private Q_SLOTS:
    void everyKeyIsDeclaredOnce()
    {
        QSet<QString> names;
        for (const DeclaredKey &key : SettingsTable::all())
            names.insert(QLatin1StringView(key.name));
        QCOMPARE(names.size(), qsizetype(SettingsTable::all().size()));
        QVERIFY(names.contains("VandorelLogs") && names.contains("hasLaunchedBeforeEmail"));
    }

    void absentKeysReadAsTheTablesDefaults()
    {
        TempSettings temp;
        SettingsStore &store = temp.store();
        QCOMPARE(store.value(SettingsTable::checkForUpdatesAtStartup), true);
        QVERIFY(!store.value(SettingsTable::appLanguage));
        // A stored switch reads as stored, whatever its default.
        store.set(SettingsTable::checkForUpdatesAtStartup, false);
        QCOMPARE(temp.reopen().value(SettingsTable::checkForUpdatesAtStartup), false);
        // A text key that holds no text reads as its default, and the bytes stay.
        temp.store().setData("appearanceMode", "dark");
        QCOMPARE(temp.store().value(SettingsTable::appearanceMode), QString("system"));
        QCOMPARE(temp.store().dataValue("appearanceMode"), QByteArray("dark"));
    }

    void aFileWithoutAVersionMigratesWithoutChangingAValue()
    {
        TempSettings temp;
        fillEveryKey(temp.store());
        temp.store().remove(SettingsTable::schemaVersion);
        temp.store().setString("someoneElse", "keep me");
        const QByteArray before = temp.fileBytes();

        SettingsMigration::run(temp.reopen());
        const QByteArray after = temp.fileBytes();
        QCOMPARE(lines(after) - lines(before), QSet<QByteArray>({"settingsSchemaVersion=1"}));
        QCOMPARE(lines(before) - lines(after), QSet<QByteArray>());

        // Every other line of the file is as it was, so every value reads as it did.
        SettingsStore &migrated = temp.reopen();
        QCOMPARE(migrated.value(SettingsTable::schemaVersion), SettingsMigration::currentVersion);

        // Once is enough: a file of the current layout is not written again.
        QSignalSpy writes(&migrated, &SettingsStore::changed);
        SettingsMigration::run(migrated);
        QCOMPARE(writes.size(), 0);
        QCOMPARE(temp.fileBytes(), after);
    }

    void aFileOfANewerLayoutIsLeftAlone()
    {
        TempSettings temp;
        temp.store().set(SettingsTable::schemaVersion, SettingsMigration::currentVersion + 1);
        temp.store().setString("checkInterval", "fortnightly");
        const QByteArray before = temp.fileBytes();
        SettingsMigration::run(temp.reopen());
        QCOMPARE(temp.fileBytes(), before);
    }
};

QTEST_GUILESS_MAIN(SettingsTableTest)
#include "tst_settingstable.moc"
