#include "../guard/GuardWorld.h"
#include "../../aptabase/CapturedLines.h"
#include "LoopbackAnalytics.h"
#include "aptabase/Aptabase.h"
#include "aptabase/EventDispatcher.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/support/AppInfo.h"
#include "core/telemetry/AptabaseManager.h"

#include "BuildConfig.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QSysInfo>

namespace {

QJsonObject merged(QJsonObject base, const QJsonObject &more)
{
    for (auto it = more.begin(); it != more.end(); ++it)
        base.insert(it.key(), it.value());
    return base;
}

// The test runs under two locales (see CMakeLists.txt); what the system properties must
// say about each.
QJsonObject localeProps()
{
    const QByteArray locale = qgetenv("LC_ALL");
    if (locale == "de_DE.UTF-8")
        return {{"locale", "de_DE"}, {"language", "de"}, {"region", "DE"}};
    if (locale == "C.UTF-8")
        return {{"locale", "C"}, {"language", "unknown"}, {"region", "unknown"}};
    qFatal("no expectation for LC_ALL=%s", locale.constData());
}

QJsonObject systemProps()
{
    return merged(localeProps(), {{"app_version", AppInfo::appVersion()},
                                  {"build_number", AppInfo::buildNumber()},
                                  {"device_model", EnvironmentInfo::deviceModelOfThisMachine()}});
}

// The operating system's version varies by machine: compared by form, then dropped.
QJsonObject withoutVersion(const QJsonValue &event)
{
    QJsonObject props = event[QLatin1String("props")].toObject();
    const QString version = props.take(QLatin1String("macos_version")).toString();
    const QString major = QSysInfo::productVersion().section(u'.', 0, 0);
    static const QRegularExpression threeNumbers(QStringLiteral("^\\d+\\.\\d+\\.\\d+$"));
    if (!threeNumbers.match(version).hasMatch() || !version.startsWith(major + u'.'))
        props.insert(QStringLiteral("bad macos_version"), version);
    return props;
}

QStringList namesOf(const QJsonArray &events)
{
    QStringList names;
    for (const QJsonValue &event : events)
        names << event[QLatin1String("eventName")].toString();
    return names;
}

QJsonObject propsOf(const QJsonValue &event)
{
    return event[QLatin1String("props")].toObject();
}

} // namespace

class TelemetryTest : public QObject {
    Q_OBJECT

    using Answer = AlertPresenter::Answer;

private Q_SLOTS:
    void firstLaunchEventsWaitForTheFirstActivation()
    {
        LoopbackAnalytics ingestion;
        QVERIFY(ingestion.aptabase.client());
        GuardWorld world;
        BrowserManager browser(world.environment());
        EmailClientManager email(world.environment());
        QTest::qWait(100);
        QVERIFY(ingestion.server.requests.isEmpty());

        ingestion.aptabase.startPolling();
        const QJsonArray events = ingestion.arrived(12);
        QCOMPARE(ingestion.server.problems, QStringList());
        QCOMPARE(events.size(), 12);
        for (const QString role : {"browser", "email"}) {
            const int first = role == u"browser" ? 0 : 6;
            QCOMPARE(events[first]["eventName"].toString(), "monitoring_toggled");
            QCOMPARE(propsOf(events[first]),
                     QJsonObject({{"monitoring_type", role}, {"enabled", true}}));
            const QList<QPair<QString, QString>> settings{{role + "_check_interval", "10min"},
                                                          {role + "_snooze_duration", "1hour"},
                                                          {role + "_check_on_wake", "true"},
                                                          {role + "_check_on_unlock", "true"},
                                                          {role + "_check_on_login", "true"}};
            for (int i = 0; i < settings.size(); ++i) {
                const QJsonValue event = events[first + 1 + i];
                QCOMPARE(event["eventName"].toString(), "settings_changed");
                QCOMPARE(propsOf(event), QJsonObject({{"setting", settings[i].first},
                                                      {"value", settings[i].second}}));
            }
        }
    }

    // The browser's default is taken over and changed back from the alert; the mail
    // client's is taken over and kept, which snoozes.
    void changesOfDefaultAndTheirAlerts()
    {
        LoopbackAnalytics ingestion;
        GuardWorld world;
        BrowserManager browser(world.environment());
        EmailClientManager email(world.environment());
        const qsizetype firstLaunch = 12;

        browser.setTargetDefaultBrowser(Browser("Firefox", "firefox-esr"));
        world.browsersDefault("chromium");
        world.tick();
        GuardWorld::settle();
        QVERIFY(world.alerts.answer(Answer::first));
        QVERIFY(world.waitForPolling());
        world.poll();
        QVERIFY(!browser.isChangingBrowser());

        email.setTargetDefaultEmailClient(EmailClient("Thunderbird", "thunderbird"));
        world.mailDefault("evolution");
        world.tick();
        GuardWorld::settle();
        QVERIFY(world.alerts.answer(Answer::second));
        QVERIFY(email.isSnoozed());

        ingestion.aptabase.startPolling();
        const QJsonArray all = ingestion.arrived(firstLaunch + 10);
        QCOMPARE(ingestion.server.problems, QStringList());
        const QJsonArray events = QJsonArray::fromVariantList(
            all.toVariantList().mid(firstLaunch));
        QCOMPARE(namesOf(events),
                 QStringList({"browser_set", "browser_changed", "alert_shown", "alert_action",
                              "browser_changed", "email_client_set", "email_client_changed",
                              "alert_shown", "alert_action", "snooze_activated"}));

        const QJsonObject system = systemProps();
        QCOMPARE(withoutVersion(events[0]), merged(system, {{"browser", "Firefox"}}));
        QCOMPARE(withoutVersion(events[1]),
                 merged(system, {{"from_browser", "Firefox"},
                                 {"to_browser", "Chromium"},
                                 {"auto_fix", true}}));
        QCOMPARE(propsOf(events[2]), QJsonObject({{"alert_type", "browser_changed"}}));
        QCOMPARE(propsOf(events[3]),
                 QJsonObject({{"alert_type", "browser_changed"}, {"action", "fix"}}));
        // The change back, seen by the transaction's poll.
        QCOMPARE(withoutVersion(events[4]),
                 merged(system, {{"from_browser", "Chromium"},
                                 {"to_browser", "Firefox"},
                                 {"auto_fix", false}}));

        QCOMPARE(withoutVersion(events[5]), merged(system, {{"client", "Thunderbird"}}));
        QCOMPARE(withoutVersion(events[6]),
                 merged(system, {{"from_client", "Thunderbird"},
                                 {"to_client", "Evolution"},
                                 {"auto_fix", true}}));
        QCOMPARE(propsOf(events[7]), QJsonObject({{"alert_type", "email_client_changed"}}));
        QCOMPARE(propsOf(events[8]),
                 QJsonObject({{"alert_type", "email_client_changed"}, {"action", "keep"}}));
        QCOMPARE(propsOf(events[9]), QJsonObject({{"type", "email"}, {"duration", "1hour"}}));
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
        ingestion.aptabase.flush();

        const QJsonArray events = ingestion.arrived(5);
        QCOMPARE(ingestion.server.problems, QStringList());
        QCOMPARE(namesOf(events), QStringList({"app_launched", "app_terminated", "screen_view",
                                               "settings_changed", "feedback_sent"}));
        QCOMPARE(withoutVersion(events[0]), systemProps());
        QCOMPARE(propsOf(events[1]).keys(), QStringList{"session_duration_seconds"});
        QCOMPARE(propsOf(events[1])["session_duration_seconds"].toVariant().typeId(),
                 QMetaType::LongLong);
    }

    void systemPropertiesFollowTheSystemLocale()
    {
        LoopbackAnalytics ingestion;
        AptabaseManager::trackBrowserSet("Web");
        ingestion.aptabase.startPolling();
        const QJsonArray events = ingestion.arrived(1);
        QCOMPARE(ingestion.server.problems, QStringList());
        QCOMPARE(events.size(), 1);
        QCOMPARE(withoutVersion(events[0]), merged(systemProps(), {{"browser", "Web"}}));
        QVERIFY(!propsOf(events[0])["device_model"].toString().isEmpty());
    }

    void startUpReportsItselfWhateverTheClientMakesOfTheKey()
    {
        {
            LoopbackAnalytics ingestion;
            Aptabase refusing;
            Aptabase::setShared(&refusing);
            ConsoleCapture console;
            CapturedLines clientLines;
            AptabaseManager manager("A-eu-3948201756");
            QCOMPARE(console.lines(), QStringList({"✅ Aptabase initialized"}));
            QCOMPARE(clientLines.lines,
                     QStringList(DebugPrint::quoted("The Aptabase App Key A-eu-3948201756 is "
                                                    "invalid. Tracking will be disabled.")));
            QVERIFY(!refusing.client());

            AptabaseManager::trackBrowserChanged("Firefox", "Chromium", true);
            AptabaseManager::trackAlertShown("browser_changed");
            refusing.startPolling();
            refusing.flush();
            QTest::qWait(100);
            QCOMPARE(console.lines().size(), 1);
            QCOMPARE(clientLines.lines.size(), 1);
            QVERIFY(ingestion.server.requests.isEmpty());
        }

        // The application's own start-up, once per process, with its EU key.
        Aptabase fresh;
        Aptabase::setShared(&fresh);
        ConsoleCapture console;
        CapturedLines clientLines;
        AptabaseManager::shared();
        AptabaseManager::shared();
        Aptabase::setShared(nullptr);
        QCOMPARE(console.lines(), QStringList({"✅ Aptabase initialized"}));
        QCOMPARE(clientLines.lines, QStringList());
        QVERIFY(fresh.client());
        QCOMPARE(fresh.client()->dispatcher().apiUrl(),
                 QUrl(QString::fromUtf8(BuildConfig::analyticsEuHost) + "/api/v0/events"));
    }
};

QTEST_GUILESS_MAIN(TelemetryTest)
#include "tst_telemetry.moc"
