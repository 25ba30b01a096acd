#include "../../aptabase/CapturedLines.h"
#include "../guard/GuardWorld.h"
#include "LoopbackAnalytics.h"
#include "aptabase/Aptabase.h"
#include "aptabase/EventDispatcher.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/support/AppInfo.h"
#include "core/telemetry/AptabaseManager.h"
#include "core/telemetry/AptabaseTelemetry.h"
#include "core/telemetry/SessionTracker.h"
#include "platform/DeviceFacts.h"

#include <QJsonObject>

namespace {

using Events = QList<QPair<QString, QJsonObject>>;

// The machine the system properties describe.
struct Latitude final : DeviceFacts {
    QString osName() const override { return QStringLiteral("Linux"); }
    QString osVersion() const override { return QStringLiteral("12.5.0"); }
    QString deviceModel() const override { return QStringLiteral("Latitude 7440"); }
};

// The system properties, and `more`. The test runs under two locales (see CMakeLists.txt).
QJsonObject systemProps(const QJsonObject &more = {})
{
    const QByteArray locale = qgetenv("LC_ALL");
    if (locale != "de_DE.UTF-8" && locale != "C.UTF-8")
        qFatal("no expectation for LC_ALL=%s", locale.constData());
    const bool c = locale == "C.UTF-8";
    QJsonObject props{{"locale", c ? "C" : "de_DE"},
                      {"language", c ? "unknown" : "de"},
                      {"region", c ? "unknown" : "DE"},
                      {"app_version", AppInfo::appVersion()},
                      {"build_number", AppInfo::buildNumber()},
                      {"device_model", "Latitude 7440"},
                      {"macos_version", "12.5.0"}};
    for (auto it = more.begin(); it != more.end(); ++it)
        props.insert(it.key(), it.value());
    return props;
}

} // namespace

class TelemetryTest : public QObject {
    Q_OBJECT

    Latitude m_machine;

private Q_SLOTS:
    void initTestCase() { AptabaseManager::setDeviceFacts(&m_machine); }

    // The first launch writes the defaults; then the browser's default is taken over and
    // changed back from the alert, and the mail client's is taken over and kept, which
    // snoozes. All of it waits in the queue until the first activation.
    void firstLaunchAndChangesOfDefaultWithTheirAlerts()
    {
        LoopbackAnalytics ingestion;
        // The guards report through the production telemetry, to the loopback ingestion.
        GuardWorld world;
        AptabaseTelemetry aptabase;
        GuardEnvironment environment = world.environment();
        environment.telemetry = &aptabase;
        BrowserManager browser(environment);
        EmailClientManager email(environment);
        Events firstLaunch;
        for (const QString role : {"browser", "email"}) {
            firstLaunch.append(
                {"monitoring_toggled", {{"monitoring_type", role}, {"enabled", true}}});
            for (const auto &[setting, value] : {std::pair("_check_interval", "10min"),
                                                 {"_snooze_duration", "1hour"},
                                                 {"_check_on_wake", "true"},
                                                 {"_check_on_unlock", "true"},
                                                 {"_check_on_login", "true"}})
                firstLaunch.append(
                    {"settings_changed", {{"setting", QString(role + setting)}, {"value", value}}});
        }

        browser.setTargetDefaultBrowser(GuardWorld::firefox());
        world.browsersDefault("chromium");
        world.tick();
        GuardWorld::settle();
        QVERIFY(world.alerts.answer(GuardWorld::changeBack));
        QVERIFY(world.waitForPolling());
        world.poll();
        QVERIFY(!browser.isChangingBrowser());

        email.setTargetDefaultEmailClient(GuardWorld::thunderbird());
        world.mailDefault("evolution");
        world.tick();
        GuardWorld::settle();
        QVERIFY(world.alerts.answer(GuardWorld::keep));
        QVERIFY(email.isSnoozed());
        QVERIFY(!ingestion.aptabase.client()->dispatcher().isSending());
        QCOMPARE(ingestion.aptabase.client()->dispatcher().pendingCount(), 22);

        ingestion.aptabase.startPolling();
        const Events events = ingestion.arrivedNamed();
        QCOMPARE(ingestion.server.problems, QStringList());
        QCOMPARE(events.first(firstLaunch.size()), firstLaunch);
        const QJsonObject browserAlert{{"alert_type", "browser_changed"}};
        const QJsonObject mailAlert{{"alert_type", "email_client_changed"}};
        QCOMPARE(events.mid(firstLaunch.size()),
                 (Events{
                     {"browser_set", systemProps({{"browser", "Firefox"}})},
                     {"browser_changed", systemProps({{"from_browser", "Firefox"},
                                                      {"to_browser", "Chromium"},
                                                      {"auto_fix", true}})},
                     {"alert_shown", browserAlert},
                     {"alert_action", {{"alert_type", "browser_changed"}, {"action", "fix"}}},
                     // The change back, seen by the transaction's poll.
                     {"browser_changed", systemProps({{"from_browser", "Chromium"},
                                                      {"to_browser", "Firefox"},
                                                      {"auto_fix", false}})},
                     {"email_client_set", systemProps({{"client", "Thunderbird"}})},
                     {"email_client_changed", systemProps({{"from_client", "Thunderbird"},
                                                           {"to_client", "Evolution"},
                                                           {"auto_fix", true}})},
                     {"alert_shown", mailAlert},
                     {"alert_action", {{"alert_type", "email_client_changed"}, {"action", "keep"}}},
                     {"snooze_activated", {{"type", "email"}, {"duration", "1hour"}}},
                 }));
    }

    // The operations that no guard calls, with the values their callers pass.
    void otherOperationsPassTheServiceChecks()
    {
        LoopbackAnalytics ingestion;
        ingestion.aptabase.startPolling();
        AptabaseManager::trackAppLaunched();
        AptabaseManager::trackAppTerminated();
        AptabaseManager::trackScreenView("settings_feedback");
        AptabaseManager::trackSettingsChanged("reset_update_reminder_snooze", "true");
        AptabaseManager::trackEvent("feedback_sent",
                                    {{"tag", "feature"}, {"mood", "happy"}, {"rating", 5}});
        const Events all = ingestion.flushedEvents();
        QCOMPARE(ingestion.server.problems, QStringList());
        QCOMPARE(all.size(), 5);
        QCOMPARE(all[0], (QPair<QString, QJsonObject>("app_launched", systemProps())));
        QCOMPARE(all[1].second.keys(), QStringList{"session_duration_seconds"});
        QCOMPARE(all[1].second["session_duration_seconds"].toVariant().typeId(),
                 QMetaType::LongLong);
        QCOMPARE(all[2].first, "screen_view");
        QCOMPARE(all[3].first, "settings_changed");
        QCOMPARE(all[4].first, "feedback_sent");
    }

    void sessionDurationCountsWholeSecondsFromTheLatestStart()
    {
        FakeClock clock;
        SessionTracker tracker(clock);
        QCOMPARE(tracker.sessionDuration(), 0);
        clock.advance(86402.999);
        QCOMPARE(tracker.sessionDuration(), 86402);
        tracker.start();
        clock.advance(0.5);
        QCOMPARE(tracker.sessionDuration(), 0);
        // A clock set back truncates toward zero as well.
        clock.advance(-1.7);
        QCOMPARE(tracker.sessionDuration(), -1);
    }

    void startUpReportsItselfWhateverTheClientMakesOfTheKey()
    {
        ConsoleCapture console;
        CapturedLines clientLines;
        Aptabase refusing;
        Aptabase::setShared(&refusing);
        AptabaseManager manager("A-eu-3948201756");
        QVERIFY(!refusing.client());
        QCOMPARE(console.take(), QStringList({"✅ Aptabase initialized"}));
        clientLines.lines.clear();

        // The application's own start-up, once per process, with its EU key.
        Aptabase fresh({}, {"http://127.0.0.1:7/us", "http://127.0.0.1:8/eu"});
        Aptabase::setShared(&fresh);
        AptabaseManager::shared();
        AptabaseManager::shared();
        Aptabase::setShared(nullptr);
        QCOMPARE(console.lines(), QStringList({"✅ Aptabase initialized"}));
        QCOMPARE(clientLines.lines, QStringList());
        QVERIFY(fresh.client());
        QCOMPARE(fresh.client()->dispatcher().apiUrl(),
                 QUrl("http://127.0.0.1:8/eu/api/v0/events"));
    }
};

QTEST_GUILESS_MAIN(TelemetryTest)
#include "tst_telemetry.moc"
