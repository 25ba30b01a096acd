#include "ConsoleCapture.h"
#include "FakeHandlerDatabase.h"
#include "core/guard/HandlerDetector.h"

#include <QTest>

class DetectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theNameTestIsBluntAndExclusionWins_data()
    {
        QTest::addColumn<bool>("mail");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("likely");
        QTest::newRow("browser keyword") << false << "Firefox Web Browser" << true;
        QTest::newRow("mail excludes") << false << "Brave Mail" << false;
        QTest::newRow("min inside a word") << false << "Admin Panel" << true;
        QTest::newRow("tv inside a word") << false << "Netvibes Browser" << false;
        QTest::newRow("no keyword") << false << "Text Editor" << false;
        QTest::newRow("spark") << true << "Spark Desktop" << true;
        QTest::newRow("firefox before mail") << true << "Firefox Mail" << false;
        QTest::newRow("case folded") << true << "THUNDERBIRD" << true;
    }

    void theNameTestIsBluntAndExclusionWins()
    {
        QFETCH(bool, mail);
        QFETCH(QString, name);
        QFETCH(bool, likely);
        FakeHandlerDatabase db;
        const HandlerDetector detector(mail ? GuardProfile::email() : GuardProfile::browser(), db);
        QCOMPARE(detector.isLikely(HandlerRecord(name, "x")), likely);
    }

    void knownIdentifiersSkipTheNameTestAndAreAnnounced()
    {
        FakeHandlerDatabase db;
        db.setKnown(HandlerDatabase::Kind::browser,
                    {"org.mozilla.firefox", "absent", "org.chromium.Chromium"});
        db.setKnown(HandlerDatabase::Kind::mailClient, {"falkon"});
        db.install("org.chromium.Chromium", QString("Chromium Web Browser"));
        db.install("org.mozilla.firefox", QString("Nightly build")); // no keyword, still known
        db.install("epiphany", QString("Web"));                      // registered, rejected
        db.install("falkon", QString("Falkon Browser"));             // registered, accepted
        db.setHandlers("http", {"falkon", "org.chromium.Chromium", "epiphany"});
        db.setHandlers("https", {"falkon", "other"});
        const HandlerDetector detector(GuardProfile::browser(), db);
        QCOMPARE(detector.registeredHandlers(),
                 QStringList({"falkon", "org.chromium.Chromium", "epiphany", "other"}));
        ConsoleCapture console;
        QStringList names;
        for (const HandlerRecord &record : detector.detect())
            names << record.name;
        QCOMPARE(names, QStringList({"Chromium Web Browser", "Falkon Browser", "Nightly build"}));
        // Known hits in list order, one line each; nothing for registered ones.
        QCOMPARE(console.lines(), QStringList({"✅ Found: Nightly build",
                                               "✅ Found: Chromium Web Browser", "📊 Total: 3"}));

        // Each guard takes its own kind's list.
        console.take();
        QCOMPARE(HandlerDetector(GuardProfile::email(), db).detect().size(), 1);
        QCOMPARE(console.lines().first(), QString("✅ Found: Falkon Browser"));

        FakeHandlerDatabase empty;
        empty.setHandlers("mailto", {"not-installed"});
        console.take();
        QVERIFY(HandlerDetector(GuardProfile::email(), empty).detect().isEmpty());
        QCOMPARE(console.lines(), QStringList({"📧 Email: Total: 0"}));
    }
};

QTEST_GUILESS_MAIN(DetectionTest)
#include "tst_detection.moc"
