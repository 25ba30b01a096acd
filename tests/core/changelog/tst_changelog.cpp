#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "TempSettings.h"
#include "core/changelog/ChangeLogCodec.h"
#include "core/changelog/LogManager.h"
#include "core/changelog/MediumDateTime.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

namespace {

const QDateTime piDay(QDate(2026, 3, 14), QTime(10, 0, 0), Qt::UTC);
// 2026-03-14T10:00:00Z is 1773482400 s after 1970; 2001-01-01 is 978307200 s after it.
constexpr double piDaySeconds = 795175200.0;

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QJsonObject record(double timestamp, const QString &message = "m", const QString &type = "browser")
{
    return {{"id", newId()}, {"type", type}, {"message", message}, {"timestamp", timestamp}};
}

QByteArray blobOf(const QJsonArray &records)
{
    return QJsonDocument(records).toJson(QJsonDocument::Compact);
}

// n records, newest first, with timestamps n..1 and messages "#n".."#1".
QJsonArray history(int n)
{
    QJsonArray records;
    for (int i = n; i >= 1; --i)
        records.append(record(i, "#" + QString::number(i)));
    return records;
}

QJsonArray storedArray(SettingsStore &store)
{
    const QJsonDocument document = QJsonDocument::fromJson(store.dataValue("VandorelLogs").value());
    return document.array();
}

QStringList messages(const QList<ChangeLogEntry> &entries)
{
    QStringList result;
    for (const ChangeLogEntry &entry : entries)
        result.append(entry.message);
    return result;
}

} // namespace

class ChangeLogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void storedBytesAreCompactJsonWithReferenceDateTimes()
    {
        TempSettings temp;
        FakeClock clock(piDay);
        LogManager log(temp.store(), clock);
        QVERIFY(log.getAllLogs().isEmpty());
        QVERIFY(!temp.store().contains("VandorelLogs")); // reading creates nothing

        log.logBrowserChange("Safari", "Firefox");
        clock.advance(0.25);
        log.logEmailChange("Mail", "Thunderbird");

        const QByteArray bytes = temp.store().dataValue("VandorelLogs").value();
        QVERIFY(!bytes.contains('\n'));
        QVERIFY(!bytes.contains(": "));
        const QJsonArray array = QJsonDocument::fromJson(bytes).array();
        QCOMPARE(array.size(), 2);
        const QRegularExpression upperUuid(
            "^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$");
        const QStringList members{"id", "message", "timestamp", "type"};

        const QJsonObject newest = array[0].toObject();
        QCOMPARE(newest.keys(), members);
        QVERIFY(upperUuid.match(newest["id"].toString()).hasMatch());
        QCOMPARE(newest["type"].toString(), "email");
        QCOMPARE(newest["message"].toString(), "Email client changed from Mail to Thunderbird");
        QCOMPARE(newest["timestamp"].toDouble(), piDaySeconds + 0.25);

        const QJsonObject older = array[1].toObject();
        QCOMPARE(older.keys(), members);
        QVERIFY(upperUuid.match(older["id"].toString()).hasMatch());
        QVERIFY(older["id"] != newest["id"]);
        QCOMPARE(older["type"].toString(), "browser");
        QCOMPARE(older["message"].toString(), "Browser changed from Safari to Firefox");
        QCOMPARE(older["timestamp"].toDouble(), piDaySeconds);

        const QList<ChangeLogEntry> entries = log.getAllLogs();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries[0].type, ChangeLogType::email);
        QCOMPARE(entries[0].timestamp, piDay.addMSecs(250));
        QCOMPARE(entries[1].id, QUuid::fromString(older["id"].toString()));
    }

    void consoleLinesAndTheSharedLog()
    {
        TempSettings temp;
        FakeClock clock;
        LogManager log(temp.store(), clock);
        LogManager::setShared(&log);
        ConsoleCapture console;

        LogManager::shared().logBrowserChange("Chromium", "Firefox ESR");
        log.logEmailChange("Evolution", "Thunderbird");
        log.clearAllLogs();
        log.clearAllLogs(); // an empty log says it too
        QCOMPARE(console.lines(),
                 QStringList({"📝 Log: Browser changed from Chromium to Firefox ESR",
                              "📝 Log: Email client changed from Evolution to Thunderbird",
                              "🗑️ All logs cleared", "🗑️ All logs cleared"}));
        QVERIFY(!temp.store().contains("VandorelLogs"));
        QVERIFY(log.getAllLogs().isEmpty());
    }

    void aFullLogDropsItsOldestRecordAtTheNextAdd()
    {
        TempSettings temp;
        FakeClock clock(piDay);
        LogManager log(temp.store(), clock);
        temp.store().setData("VandorelLogs", blobOf(history(999)));

        log.logBrowserChange("A", "B"); // the 1000th record: nothing goes
        QList<ChangeLogEntry> entries = log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(entries.last().message, "#1");

        log.logBrowserChange("B", "C"); // the 1001st: the oldest goes
        entries = log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(entries[0].message, "Browser changed from B to C");
        QCOMPARE(entries[1].message, "Browser changed from A to B");
        QCOMPARE(entries.last().message, "#2");
        QCOMPARE(storedArray(temp.store()).size(), 1000);

        // A longer log written by other means is read in full and trimmed at the next add.
        temp.store().setData("VandorelLogs", blobOf(history(1200)));
        QCOMPARE(log.getAllLogs().size(), 1200);
        log.logEmailChange("X", "Y");
        entries = log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(entries[0].message, "Email client changed from X to Y");
        QCOMPARE(entries.last().message, "#202");
    }

    void readingSortsByTimestampKeepingTiesInStoredOrder()
    {
        TempSettings temp;
        FakeClock clock;
        LogManager log(temp.store(), clock);
        temp.store().setData(
            "VandorelLogs",
            blobOf({record(10, "ten"), record(30, "thirty a"), record(20, "twenty"),
                    record(30, "thirty b"), record(30, "thirty c"), record(-5, "before 2001")}));
        QCOMPARE(messages(log.getAllLogs()),
                 QStringList({"thirty a", "thirty b", "thirty c", "twenty", "ten", "before 2001"}));
    }

    void aRecordFromABackwardClockIsWrittenFirstButTrimmedByTime()
    {
        TempSettings temp;
        FakeClock clock(piDay);
        LogManager log(temp.store(), clock);
        QJsonArray full;
        for (int i = 1000; i >= 1; --i)
            full.append(record(piDaySeconds + i, "#" + QString::number(i)));
        temp.store().setData("VandorelLogs", blobOf(full));

        log.logBrowserChange("Late", "Clock"); // stands before every stored record
        QJsonArray stored = storedArray(temp.store());
        QCOMPARE(stored.size(), 1000);
        QCOMPARE(stored[0].toObject()["message"].toString(), "Browser changed from Late to Clock");
        QCOMPARE(stored[999].toObject()["message"].toString(), "#2");
        QCOMPARE(log.getAllLogs().last().message, "Browser changed from Late to Clock");

        clock.advance(5000);
        log.logBrowserChange("On", "Time"); // the trim now takes the oldest by time
        const QList<ChangeLogEntry> entries = log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(entries[0].message, "Browser changed from On to Time");
        QCOMPARE(entries.last().message, "#2");
        QVERIFY(!messages(entries).contains("Browser changed from Late to Clock"));
    }

    void oneBadRecordHidesTheLogUntilTheNextChange_data()
    {
        QTest::addColumn<QByteArray>("blob");
        const QJsonArray good{record(2, "good"), record(1, "good too")};
        auto withBad = [&](const QJsonObject &bad) {
            QJsonArray records = good;
            records.insert(1, bad);
            return blobOf(records);
        };
        auto without = [](const QString &member) {
            QJsonObject r = record(3);
            r.remove(member);
            return r;
        };
        auto with = [](const QString &member, const QJsonValue &value) {
            QJsonObject r = record(3);
            r[member] = value;
            return r;
        };
        QTest::newRow("type mail") << withBad(with("type", "mail"));
        QTest::newRow("type upper case") << withBad(with("type", "BROWSER"));
        QTest::newRow("no id") << withBad(without("id"));
        QTest::newRow("no type") << withBad(without("type"));
        QTest::newRow("no message") << withBad(without("message"));
        QTest::newRow("no timestamp") << withBad(without("timestamp"));
        QTest::newRow("id not a uuid") << withBad(with("id", "not-a-uuid"));
        QTest::newRow("id in braces") << withBad(with("id", QString("{" + newId() + "}")));
        QTest::newRow("id without dashes") << withBad(with("id", newId().remove('-')));
        QTest::newRow("id with extra digits") << withBad(with("id", QString(newId() + "00")));
        QTest::newRow("id not hex") << withBad(with("id", newId().replace(0, 1, "G")));
        QTest::newRow("id a number") << withBad(with("id", 7));
        QTest::newRow("timestamp as text") << withBad(with("timestamp", "2026-03-14T10:00:00Z"));
        QTest::newRow("timestamp null") << withBad(with("timestamp", QJsonValue::Null));
        QTest::newRow("message a number") << withBad(with("message", 42));
        QTest::newRow("record not an object") << blobOf({record(2), "record"});
        QTest::newRow("top level an object") << QJsonDocument(record(1)).toJson();
        QTest::newRow("truncated") << blobOf(good).chopped(3);
        QTest::newRow("timestamp out of range") << QByteArray(
            R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","type":"email","message":"m","timestamp":1e400}])");
        QTest::newRow("not utf-8")
            << QByteArray("[{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"type\":\"email\","
                          "\"message\":\"\xff\",\"timestamp\":1}]");
    }

    void oneBadRecordHidesTheLogUntilTheNextChange()
    {
        QFETCH(QByteArray, blob);
        TempSettings temp;
        FakeClock clock;
        LogManager log(temp.store(), clock);
        temp.store().setData("VandorelLogs", blob);
        ConsoleCapture console;

        QVERIFY(log.getAllLogs().isEmpty());
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(temp.reopen().dataValue("VandorelLogs"), blob); // left in place

        LogManager reopened(temp.store(), clock);
        reopened.logEmailChange("A", "B");
        QCOMPARE(messages(reopened.getAllLogs()), QStringList{"Email client changed from A to B"});
        QCOMPARE(storedArray(temp.store()).size(), 1);
    }

    void textUnderTheKeyReadsAsEmptyAndIsReplaced()
    {
        TempSettings temp;
        FakeClock clock;
        LogManager log(temp.store(), clock);
        temp.store().setString("VandorelLogs", QString::fromUtf8(blobOf(history(2))));
        QVERIFY(log.getAllLogs().isEmpty());
        log.logBrowserChange("A", "B");
        QCOMPARE(log.getAllLogs().size(), 1);
        QVERIFY(temp.reopen().dataValue("VandorelLogs").has_value());
    }

    void lenientFormsAreRead_data()
    {
        QTest::addColumn<QByteArray>("blob");
        QTest::newRow("members in another order, lower-case id, whole seconds") << QByteArray(
            R"([{"timestamp":795175200,"message":"m","type":"email","id":"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"}])");
        QTest::newRow("an extra member, spaces and line breaks")
            << QByteArray("[\n  {\"id\": \"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\", \"type\": "
                          "\"email\", \"extra\": [1],\n"
                          "   \"message\": \"m\", \"timestamp\": 7.951752e8}\n]\n");
    }

    void lenientFormsAreRead()
    {
        QFETCH(QByteArray, blob);
        TempSettings temp;
        FakeClock clock(piDay.addSecs(60));
        LogManager log(temp.store(), clock);
        temp.store().setData("VandorelLogs", blob);

        const QList<ChangeLogEntry> entries = log.getAllLogs();
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries[0].id,
                 QUuid::fromString(QStringLiteral("E621E1F8-C36C-495A-93FC-0C247A3E6E5F")));
        QCOMPARE(entries[0].type, ChangeLogType::email);
        QCOMPARE(entries[0].message, "m");
        QCOMPARE(entries[0].timestamp, piDay);

        log.logBrowserChange("A", "B"); // rewritten in the canonical form
        const QJsonObject old = storedArray(temp.store())[1].toObject();
        QCOMPARE(old.keys(), QStringList({"id", "message", "timestamp", "type"}));
        QCOMPARE(old["id"].toString(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
        QCOMPARE(old["timestamp"].toDouble(), piDaySeconds);
    }

    void fractionalTimestampsAreKeptExactly()
    {
        const double fine = 795175200.123456789; // finer than a millisecond
        const double coarse = 795175199.5;
        TempSettings temp;
        FakeClock clock(piDay.addSecs(1));
        LogManager log(temp.store(), clock);
        temp.store().setData("VandorelLogs",
                             blobOf({record(fine, "fine"), record(coarse, "coarse")}));

        const QList<ChangeLogEntry> read = log.getAllLogs();
        QCOMPARE(read[0].secondsSinceReferenceDate(), fine);
        QCOMPARE(read[0].timestamp, piDay.addMSecs(123));
        QCOMPARE(read[1].secondsSinceReferenceDate(), coarse);

        log.logBrowserChange("A", "B");
        const QJsonArray stored = storedArray(temp.store());
        QCOMPARE(stored[1].toObject()["timestamp"].toDouble(), fine);
        QCOMPARE(stored[2].toObject()["timestamp"].toDouble(), coarse);
        QVERIFY(temp.store().dataValue("VandorelLogs")->contains("795175200.1234568"));

        // A timestamp set anew wins over the value it was read with.
        ChangeLogEntry moved = read[0];
        moved.timestamp = piDay.addSecs(-1);
        QCOMPARE(moved.secondsSinceReferenceDate(), piDaySeconds - 1);
    }

    void theLogSurvivesARestartWithItsTextIntact()
    {
        const QString awkward = "\"Ünïcødé\" / back\\slash\t{x} 浏览器 🦊\nline";
        TempSettings temp;
        FakeClock clock(piDay);
        LogManager before(temp.store(), clock);
        before.logBrowserChange(awkward, "Firefox");
        clock.advance(1.5);
        before.logEmailChange("Mail", awkward);
        const QList<ChangeLogEntry> written = before.getAllLogs();

        LogManager after(temp.reopen(), clock);
        const QList<ChangeLogEntry> read = after.getAllLogs();
        QCOMPARE(read.size(), 2);
        for (qsizetype i = 0; i < read.size(); ++i) {
            QCOMPARE(read[i].id, written[i].id);
            QCOMPARE(read[i].type, written[i].type);
            QCOMPARE(read[i].message, written[i].message);
            QCOMPARE(read[i].timestamp, written[i].timestamp);
        }
        QCOMPARE(read[0].message, "Email client changed from Mail to " + awkward);
        QCOMPARE(read[1].message, "Browser changed from " + awkward + " to Firefox");
    }

    void descriptionShowsTheMediumDateAndTimeOfTheLocale()
    {
        ChangeLogEntry entry;
        entry.message = "Browser changed from Safari to Firefox";
        entry.timestamp = piDay.addMSecs(30'900);
        // ICU puts a narrow no-break space before AM in newer data, a space in older.
        QCOMPARE(entry.description(QLocale("en_US")).replace(QChar(0x202F), u' '),
                 "[Mar 14, 2026, 10:00:30 AM] BROWSER: Browser changed from Safari to Firefox");
        entry.type = ChangeLogType::email;
        entry.message = "Email client changed from Mail to Thunderbird";
        QCOMPARE(entry.description(QLocale("de_DE")),
                 "[14.03.2026, 10:00:30] EMAIL: Email client changed from Mail to Thunderbird");

        const QString system = entry.description();
        QVERIFY2(system.startsWith('[') && system.contains("2026") &&
                     system.endsWith("] EMAIL: Email client changed from Mail to Thunderbird"),
                 qPrintable(system));
    }

    void localeNamesForIcu()
    {
        QCOMPARE(MediumDateTime::icuLocaleName(QLocale("de_DE")), "de_DE");
        QCOMPARE(MediumDateTime::icuLocaleName(QLocale("sr_RS")), "sr_RS");
        QCOMPARE(MediumDateTime::icuLocaleName(QLocale("sr_Latn_RS")), "sr_Latn_RS");
        QCOMPARE(MediumDateTime::icuLocaleName(QLocale("zh_TW")), "zh_TW");
        QCOMPARE(MediumDateTime::icuLocaleName(QLocale::c()), "en_US_POSIX");
    }
};

int main(int argc, char **argv)
{
    // Local time, for Qt and for ICU, is UTC here, so formatted moments are fixed.
    qputenv("TZ", "UTC");
    QCoreApplication app(argc, argv);
    ChangeLogTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_changelog.moc"
