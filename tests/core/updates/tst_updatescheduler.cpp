#include "core/updates/UpdateScheduler.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

const QString startupKey = QString::fromLatin1(UpdateScheduler::checkForUpdatesAtStartupKey);
const QString intervalKey = QString::fromLatin1(UpdateScheduler::updateCheckIntervalKey);

// A scheduler wired to its store as the application wires it.
class Rig {
public:
    Rig()
        : scheduler(settings.store(), timers, [this] { ++checks; }) {
        QObject::connect(&settings.store(), &SettingsStore::changed, &scheduler,
                         &UpdateScheduler::userDefaultsDidChange);
    }

    FakeTimer *startupTimer() const { return single(timers.activeWithInterval(120s)); }
    QList<FakeTimer *> intervalTimers() const {
        QList<FakeTimer *> result;
        for (FakeTimer *timer : timers.active()) {
            if (timer->isRepeating())
                result.append(timer);
        }
        return result;
    }

    ConsoleCapture console;
    TempSettings settings;
    FakeTimerFactory timers;
    int checks = 0;
    UpdateScheduler scheduler;

private:
    static FakeTimer *single(const QList<FakeTimer *> &timers) {
        return timers.size() == 1 ? timers.first() : nullptr;
    }
};

QStringList configLines(const QString &startup, const QString &raw, const QString &resolved) {
    return {"🧭 UpdateScheduler config:", "   - checkForUpdatesAtStartup = " + startup,
            "   - updateCheckInterval(raw) = " + raw,
            "   - resolved interval        = " + resolved};
}

} // namespace

class UpdateSchedulerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void configuresFromTheStore_data();
    void configuresFromTheStore();
    void firingsRunTheAutomaticCheck();
    void reconfiguresOnlyWhenEitherSettingChanges();
    void turningTheStartupCheckOffCancelsIt();
    void stopLeavesNothingRunning();
};

void UpdateSchedulerTest::configuresFromTheStore_data() {
    QTest::addColumn<QVariant>("startup"); // none: absent
    QTest::addColumn<QVariant>("raw");     // none: absent
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<qint64>("period"); // 0: no timer

    const QString scheduling =
        QStringLiteral("🕒 Scheduling startup auto update check in 120 seconds");
    const QString noStartup = QStringLiteral("⛔️ Startup update check disabled");
    QTest::newRow("empty store") << QVariant() << QVariant()
                                 << configLines("true", "daily", "daily") +
                                        QStringList{
                                            scheduling,
                                            "✅ Interval timer scheduled every 86400s (daily)"}
                                 << qint64(86400);
    QTest::newRow("unknown interval reads as daily")
        << QVariant(true) << QVariant("2h")
        << configLines("true", "2h", "daily") +
               QStringList{scheduling, "✅ Interval timer scheduled every 86400s (daily)"}
        << qint64(86400);
    QTest::newRow("never, no startup")
        << QVariant(false) << QVariant("never")
        << configLines("false", "never", "never") +
               QStringList{noStartup, "⛔️ Interval update checks disabled (interval = never)"}
        << qint64(0);
    QTest::newRow("6h") << QVariant(false) << QVariant("6h")
                        << configLines("false", "6h", "6h") +
                               QStringList{noStartup,
                                           "✅ Interval timer scheduled every 21600s (6h)"}
                        << qint64(21600);
    QTest::newRow("12h") << QVariant() << QVariant("12h")
                         << configLines("true", "12h", "12h") +
                                QStringList{scheduling,
                                            "✅ Interval timer scheduled every 43200s (12h)"}
                         << qint64(43200);
    QTest::newRow("weekly") << QVariant(true) << QVariant("weekly")
                            << configLines("true", "weekly", "weekly") +
                                   QStringList{scheduling,
                                               "✅ Interval timer scheduled every 604800s (weekly)"}
                            << qint64(604800);
}

void UpdateSchedulerTest::configuresFromTheStore() {
    QFETCH(QVariant, startup);
    QFETCH(QVariant, raw);
    QFETCH(QStringList, lines);
    QFETCH(qint64, period);

    Rig rig;
    if (startup.isValid())
        rig.settings.store().setBool(startupKey, startup.toBool());
    if (raw.isValid())
        rig.settings.store().setString(intervalKey, raw.toString());
    rig.console.take();

    rig.scheduler.configureUpdateScheduler();
    QCOMPARE(rig.console.lines(), lines);
    const bool checkAtStartup = !startup.isValid() || startup.toBool();
    QCOMPARE(rig.startupTimer() != nullptr, checkAtStartup);
    if (checkAtStartup)
        QVERIFY(!rig.startupTimer()->isRepeating());
    const QList<FakeTimer *> interval = rig.intervalTimers();
    QCOMPARE(interval.size(), period ? 1 : 0);
    if (period)
        QCOMPARE(interval[0]->interval(), std::chrono::milliseconds(period * 1000));
    QCOMPARE(rig.timers.active().size(), (checkAtStartup ? 1 : 0) + (period ? 1 : 0));
    QCOMPARE(rig.scheduler.lastSchedulerConfig()->intervalRaw,
             raw.isValid() ? raw.toString() : QStringLiteral("daily"));
}

void UpdateSchedulerTest::firingsRunTheAutomaticCheck() {
    Rig rig;
    rig.scheduler.configureUpdateScheduler();
    rig.console.take();

    QCOMPARE(rig.timers.fire(120s), 1);
    QCOMPARE(rig.console.take(),
             QStringList{"⏱️ Startup auto update check fired (after 120s)"});
    QCOMPARE(rig.checks, 1);
    QCOMPARE(rig.timers.fire(120s), 0); // once only

    QCOMPARE(rig.timers.fire(86400s), 1);
    QCOMPARE(rig.timers.fire(86400s), 1);
    QCOMPARE(rig.console.take(), QStringList({"🔁 Interval auto update check fired (daily)",
                                              "🔁 Interval auto update check fired (daily)"}));
    QCOMPARE(rig.checks, 3);
}

void UpdateSchedulerTest::reconfiguresOnlyWhenEitherSettingChanges() {
    Rig rig;
    rig.scheduler.configureUpdateScheduler();
    FakeTimer *firstInterval = rig.intervalTimers().value(0);
    rig.console.take();

    // Other keys, and writes of the same values, leave everything as it is.
    rig.settings.store().setString(QStringLiteral("app_language"), QStringLiteral("de"));
    rig.settings.store().setString(intervalKey, QStringLiteral("daily"));
    rig.settings.store().setBool(startupKey, true);
    QVERIFY(rig.console.lines().isEmpty());
    QCOMPARE(rig.intervalTimers(), QList<FakeTimer *>{firstInterval});

    // A spent startup check comes back with every reconfiguration.
    rig.timers.fire(120s);
    rig.console.take();
    rig.settings.store().setString(intervalKey, QStringLiteral("weekly"));
    const QStringList expected =
        QStringList{"⚙️ Update-related UserDefaults changed -> reconfigure update scheduler"} +
        configLines("true", "weekly", "weekly") +
        QStringList{"🕒 Scheduling startup auto update check in 120 seconds",
                    "✅ Interval timer scheduled every 604800s (weekly)"};
    QCOMPARE(rig.console.take(), expected);
    QVERIFY(!firstInterval || !firstInterval->isActive());
    QCOMPARE(rig.intervalTimers().size(), 1);
    QCOMPARE(rig.intervalTimers()[0]->interval(), std::chrono::milliseconds(604800s));
    QVERIFY(rig.startupTimer());

    // A different text that resolves to the same interval still counts as a change.
    rig.settings.store().setString(intervalKey, QStringLiteral("2h"));
    rig.settings.store().setString(intervalKey, QStringLiteral("daily"));
    QCOMPARE(rig.console.count(
                 "⚙️ Update-related UserDefaults changed -> reconfigure update scheduler"),
             2);
    QCOMPARE(rig.console.lines().last(),
             QStringLiteral("✅ Interval timer scheduled every 86400s (daily)"));
    QCOMPARE(rig.timers.active().size(), 2);
}

void UpdateSchedulerTest::turningTheStartupCheckOffCancelsIt() {
    Rig rig;
    rig.scheduler.configureUpdateScheduler();
    FakeTimer *pending = rig.startupTimer();
    QVERIFY(pending);
    rig.console.take();

    rig.settings.store().setBool(startupKey, false);
    QCOMPARE(rig.console.lines().value(2), QStringLiteral("   - checkForUpdatesAtStartup = false"));
    QVERIFY(rig.console.contains("⛔️ Startup update check disabled"));
    QCOMPARE(rig.timers.fire(120s), 0);
    QCOMPARE(rig.checks, 0);
    QCOMPARE(rig.intervalTimers().size(), 1);
}

void UpdateSchedulerTest::stopLeavesNothingRunning() {
    Rig rig;
    rig.scheduler.stop(); // nothing to stop yet
    rig.scheduler.configureUpdateScheduler();
    QCOMPARE(rig.timers.active().size(), 2);
    rig.scheduler.stop();
    QVERIFY(rig.timers.active().isEmpty());
    QCOMPARE(rig.checks, 0);
}

QTEST_GUILESS_MAIN(UpdateSchedulerTest)
#include "tst_updatescheduler.moc"
