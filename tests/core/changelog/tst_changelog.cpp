#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "TempSettings.h"
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
const QString fixedId = QStringLiteral("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QJsonObject record(double timestamp, const QString &message = "m", const QString &id = newId())
{
    return {{"id", id}, {"type", "browser"}, {"message", message}, {"timestamp", timestamp}};
}

QByteArray blobOf(const QJsonArray &records)
{
    return QJsonDocument(records).toJson(QJsonDocument::Compact);
}

// n records, newest first, with timestamps base+n..base+1 and messages "#n".."#1".
QJsonArray history(int n, double base = 0)
{
    QJsonArray records;
    for (int i = n; i >= 1; --i)
        records.append(record(base + i, "#" + QString::number(i)));
    return records;
}

QJsonArray storedArray(SettingsStore &store)
{
    return QJsonDocument::fromJson(store.dataValue("VandorelLogs").value()).array();
}

QStringList messages(const QList<ChangeLogEntry> &entries)
{
    QStringList result;
    for (const ChangeLogEntry &entry : entries)
        result.append(entry.message);
    return result;
}

// A log over a throw-away store, optionally seeded with raw bytes under its key.
struct Rig {
    explicit Rig(const QDateTime &now = piDay) : clock(now) {}
    void seed(const QByteArray &blob) { temp.store().setData("VandorelLogs", blob); }

    TempSettings temp;
    FakeClock clock;
    LogManager log{temp.store(), clock};
};

} // namespace

class ChangeLogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void storedBytesAreCompactJsonAndSurviveARestart()
    {
        Rig rig;
        QVERIFY(rig.log.getAllLogs().isEmpty());
        QVERIFY(!rig.temp.store().contains("VandorelLogs")); // reading creates nothing

        const QString awkward = "\"Ünïcødé\" / back\\slash\t{x} 浏览器 🦊\nline";
        const QString browserChange = "Browser changed from " + awkward + " to Firefox";
        const QString emailChange = "Email client changed from Mail to " + awkward;
        rig.log.logBrowserChange(awkward, "Firefox");
        rig.clock.advance(0.25);
        rig.log.logEmailChange("Mail", awkward);

        const QByteArray bytes = rig.temp.store().dataValue("VandorelLogs").value();
        QVERIFY(!bytes.contains('\n') && !bytes.contains(": "));
        const QJsonArray array = QJsonDocument::fromJson(bytes).array();
        QCOMPARE(array.size(), 2);
        const QRegularExpression upperUuid(
            "^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$");
        const QJsonObject newest = array[0].toObject();
        const QJsonObject older = array[1].toObject();
        QVERIFY(upperUuid.match(newest["id"].toString()).hasMatch());
        QVERIFY(older["id"] != newest["id"]);
        QCOMPARE(newest, QJsonObject({{"id", newest["id"]},
                                      {"type", "email"},
                                      {"message", emailChange},
                                      {"timestamp", piDaySeconds + 0.25}}));
        QCOMPARE(older, QJsonObject({{"id", older["id"]},
                                     {"type", "browser"},
                                     {"message", browserChange},
                                     {"timestamp", piDaySeconds}}));

        // A restarted log reads the records back whole.
        const QList<ChangeLogEntry> read = LogManager(rig.temp.reopen(), rig.clock).getAllLogs();
        QCOMPARE(messages(read), QStringList({emailChange, browserChange}));
        QCOMPARE(read[0].type, ChangeLogType::email);
        QCOMPARE(read[0].timestamp, piDay.addMSecs(250));
        QCOMPARE(read[1].id, QUuid::fromString(older["id"].toString()));
    }

    void consoleLinesAndTheSharedLog()
    {
        Rig rig;
        LogManager::setShared(&rig.log);
        ConsoleCapture console;

        LogManager::shared().logBrowserChange("Chromium", "Firefox ESR");
        rig.log.logEmailChange("Evolution", "Thunderbird");
        rig.log.clearAllLogs();
        rig.log.clearAllLogs(); // an empty log says it too
        LogManager::setShared(nullptr);
        QCOMPARE(console.lines(),
                 QStringList({"📝 Log: Browser changed from Chromium to Firefox ESR",
                              "📝 Log: Email client changed from Evolution to Thunderbird",
                              "🗑️ All logs cleared", "🗑️ All logs cleared"}));
        QVERIFY(!rig.temp.store().contains("VandorelLogs"));
        QVERIFY(rig.log.getAllLogs().isEmpty());
    }

    void aFullLogDropsItsOldestRecordAtTheNextAdd()
    {
        Rig rig;
        rig.seed(blobOf(history(999)));
        rig.log.logBrowserChange("A", "B"); // the 1000th record: nothing goes
        QCOMPARE(rig.log.getAllLogs().size(), 1000);
        QCOMPARE(rig.log.getAllLogs().last().message, "#1");

        rig.log.logBrowserChange("B", "C"); // the 1001st: the oldest goes
        QList<ChangeLogEntry> entries = rig.log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(messages(entries.first(2)),
                 QStringList({"Browser changed from B to C", "Browser changed from A to B"}));
        QCOMPARE(entries.last().message, "#2");

        // A longer log written by other means is read in full and trimmed at the next add.
        rig.seed(blobOf(history(1200)));
        QCOMPARE(rig.log.getAllLogs().size(), 1200);
        rig.log.logEmailChange("X", "Y");
        entries = rig.log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(entries[0].message, "Email client changed from X to Y");
        QCOMPARE(entries.last().message, "#202");
    }

    void readingSortsByTimestampKeepingTiesInStoredOrder()
    {
        Rig rig;
        rig.seed(
            blobOf({record(10, "ten"), record(30, "thirty a"), record(20, "twenty"),
                    record(30, "thirty b"), record(30, "thirty c"), record(-5, "before 2001")}));
        QCOMPARE(messages(rig.log.getAllLogs()),
                 QStringList({"thirty a", "thirty b", "thirty c", "twenty", "ten", "before 2001"}));
    }

    void aRecordFromABackwardClockIsWrittenFirstButTrimmedByTime()
    {
        Rig rig;
        rig.seed(blobOf(history(1000, piDaySeconds)));
        const QString late = "Browser changed from Late to Clock";
        rig.log.logBrowserChange("Late", "Clock"); // older than every stored record
        const QJsonArray stored = storedArray(rig.temp.store());
        QCOMPARE(stored.size(), 1000);
        QCOMPARE(stored[0].toObject()["message"].toString(), late);
        QCOMPARE(stored[999].toObject()["message"].toString(), "#2");
        QCOMPARE(rig.log.getAllLogs().last().message, late);

        rig.clock.advance(5000);
        rig.log.logBrowserChange("On", "Time"); // the trim now takes the oldest by time
        const QList<ChangeLogEntry> entries = rig.log.getAllLogs();
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(entries[0].message, "Browser changed from On to Time");
        QCOMPARE(entries.last().message, "#2");
        QVERIFY(!messages(entries).contains(late));
    }

    void oneBadRecordHidesTheLogUntilTheNextChange_data()
    {
        QTest::addColumn<QByteArray>("blob");
        auto withBad = [](const QString &member, const QJsonValue &value) {
            QJsonObject bad = record(3);
            if (value.isUndefined())
                bad.remove(member);
            else
                bad[member] = value;
            return blobOf({record(2, "good"), bad, record(1, "good too")});
        };
        QTest::newRow("type mail") << withBad("type", "mail");
        QTest::newRow("type upper case") << withBad("type", "BROWSER");
        QTest::newRow("no timestamp") << withBad("timestamp", QJsonValue::Undefined);
        QTest::newRow("id in braces") << withBad("id", QString("{" + newId() + "}"));
        QTest::newRow("id not hex") << withBad("id", newId().replace(0, 1, "G"));
        QTest::newRow("timestamp as text") << withBad("timestamp", "2026-03-14T10:00:00Z");
        QTest::newRow("message a number") << withBad("message", 42);
        QTest::newRow("record not an object") << blobOf({record(2), "record"});
        QTest::newRow("truncated") << blobOf({record(2)}).chopped(3);
        QTest::newRow("timestamp out of range")
            << QByteArray("[{\"id\":\"" + fixedId.toLatin1()
                          + "\",\"type\":\"email\",\"message\":\"m\",\"timestamp\":1e400}]");
    }

    void oneBadRecordHidesTheLogUntilTheNextChange()
    {
        QFETCH(QByteArray, blob);
        Rig rig;
        rig.seed(blob);
        ConsoleCapture console;

        QVERIFY(rig.log.getAllLogs().isEmpty());
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(rig.temp.reopen().dataValue("VandorelLogs"), blob); // left in place

        LogManager reopened(rig.temp.store(), rig.clock);
        reopened.logEmailChange("A", "B");
        QCOMPARE(messages(reopened.getAllLogs()), QStringList{"Email client changed from A to B"});
        QCOMPARE(storedArray(rig.temp.store()).size(), 1);
    }

    void readRecordsAreRewrittenCanonicallyAndExactly()
    {
        // A lower-case id, and a timestamp finer than a millisecond.
        const double fine = 795175200.123456789;
        Rig rig(piDay.addSecs(60));
        rig.seed(blobOf({record(fine, "fine"), record(piDaySeconds, "m", fixedId.toLower())}));
        const QList<ChangeLogEntry> read = rig.log.getAllLogs();
        QCOMPARE(messages(read), QStringList({"fine", "m"}));
        QCOMPARE(read[0].secondsSinceReferenceDate(), fine);
        QCOMPARE(read[0].timestamp, piDay.addMSecs(123));
        QCOMPARE(read[1].id, QUuid::fromString(fixedId));

        rig.log.logBrowserChange("A", "B");
        const QJsonArray stored = storedArray(rig.temp.store());
        QCOMPARE(stored[1].toObject()["timestamp"].toDouble(), fine);
        QCOMPARE(stored[2].toObject()["id"].toString(), fixedId);

        // A timestamp set anew wins over the value it was read with.
        ChangeLogEntry moved = read[0];
        moved.timestamp = piDay.addSecs(-1);
        QCOMPARE(moved.secondsSinceReferenceDate(), piDaySeconds - 1);
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

        QCOMPARE(MediumDateTime::icuLocaleName(QLocale("sr_Latn_RS")), "sr_Latn_RS");
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
