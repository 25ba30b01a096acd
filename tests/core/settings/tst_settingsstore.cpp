#include "TempSettings.h"

#include <QLockFile>
#include <QTest>

// Values are read twice: in the writing store, and through a fresh store on the same file,
// which is what the program sees after a restart (INI keeps no types).
class SettingsStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedValuesSurviveARestart()
    {
        TempSettings temp;
        QVERIFY(!temp.store().stringValue("x") && !temp.store().dateValue("x"));
        QCOMPARE(temp.store().integerValue("x"), 0);
        const QDateTime when(QDate(2026, 5, 1), QTime(12, 30, 15, 250), Qt::UTC);
        const QByteArray bytes("{\"id\":\"x\"}\n\0tail", 16);
        temp.store().setBool("flag", true);
        temp.store().setBool("off", false);
        temp.store().setInteger("count", 9007199254740993LL);
        temp.store().setDouble("ratio", 0.125);
        temp.store().setString("text", "10min");
        temp.store().setData("blob", bytes);
        temp.store().setDate("when", when);

        for (int pass = 0; pass < 2; ++pass) {
            SettingsStore *store = pass == 0 ? &temp.store() : &temp.reopen();
            QCOMPARE(store->boolValue("flag"), true);
            QCOMPARE(store->boolValue("off"), false);
            QVERIFY(store->contains("off"));
            QCOMPARE(store->integerValue("count"), 9007199254740993LL);
            QCOMPARE(store->doubleValue("ratio"), 0.125);
            QCOMPARE(store->stringValue("text"), QString("10min"));
            QCOMPARE(store->dataValue("blob"), bytes);
            QCOMPARE(store->dateValue("when"), when);
            // Bytes and dates do not read as other types.
            QVERIFY(!store->stringValue("blob"));
            QCOMPARE(store->boolValue("blob"), false);
            QVERIFY(!store->dataValue("when"));
        }
    }

    void textIsReadByTheTypeAskedFor()
    {
        TempSettings temp;
        // What a person (or an older version) may have left in the file.
        temp.store().setString("yes", "true");
        temp.store().setString("number", "42");
        temp.store().setString("junk", "sometimes");
        temp.store().setString("blob", "not bytes");
        temp.store().setString("date", "2026-01-01");
        SettingsStore &store = temp.reopen();

        QCOMPARE(store.boolValue("yes"), true);
        QCOMPARE(store.boolValue("number"), true);
        QCOMPARE(store.boolValue("junk"), false);
        QCOMPARE(store.integerValue("number"), 42);
        QCOMPARE(store.integerValue("junk"), 0);
        QVERIFY(!store.dataValue("blob"));
        QVERIFY(!store.dateValue("date"));
        // Unreadable values stay where they are.
        QCOMPARE(store.stringValue("blob"), QString("not bytes"));
    }

    // A writer killed between creating its lock file and naming itself in it leaves an empty
    // file, which would hold the next program's writes back for thirty seconds.
    void aLockNobodyHoldsIsClearedAndAHeldOneKept()
    {
        TempSettings temp;
        const QString lockPath = temp.path() + ".lock";
        QFile abandoned(lockPath);
        QVERIFY(abandoned.open(QIODevice::WriteOnly));
        abandoned.close();
        SettingsStore &store = temp.reopen();
        QVERIFY(!QFile::exists(lockPath));
        store.setString("after", "kill");
        QCOMPARE(temp.reopen().stringValue("after"), QString("kill"));

        QLockFile held(lockPath);
        QVERIFY(held.tryLock(0));
        temp.reopen();
        QVERIFY(QFile::exists(lockPath));
    }

    void everyWriteIsAnnouncedAfterItIsStoredAndOtherKeysAreKept()
    {
        TempSettings temp;
        {
            QFile file(temp.path());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[General]\nsomeoneElse=keep me\ncheckInterval=5min\n");
        }
        SettingsStore &store = temp.reopen();
        QCOMPARE(store.stringValue("checkInterval"), QString("5min"));
        QStringList seen;
        connect(&store, &SettingsStore::changed, this, [&](const QString &key) {
            SettingsStore fresh(temp.path());
            seen << key + u'=' + fresh.stringValue(key).value_or("<none>");
        });
        store.setString("a", "1");
        store.setString("a", "1");
        store.remove("a");
        QCOMPARE(seen, QStringList({"a=1", "a=1", "a=<none>"}));
        QCOMPARE(temp.reopen().stringValue("someoneElse"), QString("keep me"));
    }
};

QTEST_GUILESS_MAIN(SettingsStoreTest)
#include "tst_settingsstore.moc"
