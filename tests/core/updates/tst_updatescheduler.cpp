#include "core/settings/SettingsTable.h"
#include "core/updates/UpdateScheduler.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

const QString startupKey = SettingsTable::checkForUpdatesAtStartup.key();
const QString intervalKey = SettingsTable::updateCheckInterval.key();
const QString reconfigure =
    QStringLiteral("⚙️ Update-related UserDefaults changed -> reconfigure update scheduler");
const QString scheduling = QStringLiteral("🕒 Scheduling startup auto update check in 120 seconds");

// A scheduler wired to its store as the application wires it.
class Rig {
public:
    Rig() : scheduler(settings.store(), timers, [this] { ++checks; })
    {
        QObject::connect(&settings.store(), &SettingsStore::changed, &scheduler,
                         &UpdateScheduler::userDefaultsDidChange);
    }

    // Active timers as "120s once" or "86400s repeating".
    QStringList timerList() const
    {
        QStringList list;
        for (const FakeTimer *timer : timers.active())
            list << QStringLiteral("%1s %2")
                        .arg(timer->interval().count() / 1000)
                        .arg(timer->isRepeating() ? u"repeating" : u"once");
        return list;
    }

    ConsoleCapture console;
    TempSettings settings;
    FakeTimerFactory timers;
    int checks = 0;
    UpdateScheduler scheduler;
};

QStringList configLines(const QString &startup, const QString &raw, const QString &resolved)
{
    return {"🧭 UpdateScheduler config:", "   - checkForUpdatesAtStartup = " + startup,
            "   - updateCheckInterval(raw) = " + raw,
            "   - resolved interval        = " + resolved};
}

} // namespace

class UpdateSchedulerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void configuresFromTheStore_data()
    {
        QTest::addColumn<QVariant>("startup"); // invalid: absent
        QTest::addColumn<QVariant>("raw");     // invalid: absent
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QStringList>("timers");

        const QStringList daily{scheduling, "✅ Interval timer scheduled every 86400s (daily)"};
        QTest::newRow("empty store")
            << QVariant() << QVariant() << configLines("true", "daily", "daily") + daily
            << QStringList{"120s once", "86400s repeating"};
        QTest::newRow("unknown interval reads as daily")
            << QVariant(true) << QVariant("2h") << configLines("true", "2h", "daily") + daily
            << QStringList{"120s once", "86400s repeating"};
        QTest::newRow("never, no startup check")
            << QVariant(false) << QVariant("never")
            << configLines("false", "never", "never")
                   + QStringList{"⛔️ Startup update check disabled",
                                 "⛔️ Interval update checks disabled (interval = never)"}
            << QStringList();
    }

    void configuresFromTheStore()
    {
        QFETCH(QVariant, startup);
        QFETCH(QVariant, raw);
        QFETCH(QStringList, lines);
        QFETCH(QStringList, timers);
        Rig rig;
        if (startup.isValid())
            rig.settings.store().setBool(startupKey, startup.toBool());
        if (raw.isValid())
            rig.settings.store().setString(intervalKey, raw.toString());
        rig.console.take();

        rig.scheduler.configureUpdateScheduler();
        QCOMPARE(rig.console.lines(), lines);
        QCOMPARE(rig.timerList(), timers);
    }

    void firingsRunTheAutomaticCheckUntilStopped()
    {
        Rig rig;
        rig.scheduler.configureUpdateScheduler();
        rig.console.take();

        QCOMPARE(rig.timers.fire(120s), 1);
        QCOMPARE(rig.timers.fire(120s), 0); // once only
        QCOMPARE(rig.timers.fire(86400s), 1);
        QCOMPARE(rig.timers.fire(86400s), 1);
        QCOMPARE(rig.console.take(),
                 QStringList({"⏱️ Startup auto update check fired (after 120s)",
                              "🔁 Interval auto update check fired (daily)",
                              "🔁 Interval auto update check fired (daily)"}));
        QCOMPARE(rig.checks, 3);

        rig.scheduler.stop();
        QVERIFY(rig.timers.active().isEmpty());
    }

    void reconfiguresOnlyWhenEitherSettingChanges()
    {
        Rig rig;
        rig.scheduler.configureUpdateScheduler();
        FakeTimer *firstInterval = rig.timers.activeWithInterval(86400s).value(0);
        rig.console.take();

        // Other keys, and writes of the same values, change nothing.
        rig.settings.store().setString(QStringLiteral("app_language"), QStringLiteral("de"));
        rig.settings.store().setString(intervalKey, QStringLiteral("daily"));
        rig.settings.store().setBool(startupKey, true);
        QVERIFY(rig.console.lines().isEmpty());
        QCOMPARE(rig.timers.active().size(), 2);

        // A spent startup check comes back with a reconfiguration; the old timer goes.
        rig.timers.fire(120s);
        rig.console.take();
        rig.settings.store().setString(intervalKey, QStringLiteral("weekly"));
        const QStringList expected =
            QStringList{reconfigure} + configLines("true", "weekly", "weekly")
            + QStringList{scheduling, "✅ Interval timer scheduled every 604800s (weekly)"};
        QCOMPARE(rig.console.take(), expected);
        QVERIFY(!firstInterval || !firstInterval->isActive());
        QCOMPARE(rig.timerList(), QStringList({"120s once", "604800s repeating"}));

        // Texts that resolve alike still differ; turning the startup check off cancels it.
        rig.settings.store().setString(intervalKey, QStringLiteral("2h"));
        rig.settings.store().setString(intervalKey, QStringLiteral("daily"));
        rig.settings.store().setBool(startupKey, false);
        QCOMPARE(rig.console.count(reconfigure), 3);
        QCOMPARE(rig.timerList(), QStringList{"86400s repeating"});
        QCOMPARE(rig.timers.fire(120s), 0);
        QCOMPARE(rig.checks, 1);
    }
};

QTEST_GUILESS_MAIN(UpdateSchedulerTest)
#include "tst_updatescheduler.moc"
