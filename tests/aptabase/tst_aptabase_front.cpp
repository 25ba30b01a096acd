#include "CapturedLines.h"
#include "LoopbackIngestion.h"

#include "aptabase/Aptabase.h"
#include "aptabase/EventDispatcher.h"

#include <QDateTime>
#include <QTest>

namespace {

const QString invalidTail = QStringLiteral(" is invalid. Tracking will be disabled.");
const QString selfHostedLine = QStringLiteral(
    "Aptabase: Host parameter must be defined when using Self-Hosted App Key. Tracking will be "
    "disabled.");

InitOptions optionsWith(const QString &host)
{
    return InitOptions(host, 3600, TrackingMode::readFromEnvironment());
}

} // namespace

class TestAptabaseFront : public QObject {
    Q_OBJECT
private slots:
    void refusedKeysLeaveTrackingOff_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("withOptions");
        QTest::addColumn<QString>("line");
        QTest::newRow("two parts") << "A-EU" << false << "The Aptabase App Key A-EU" + invalidTail;
        QTest::newRow("four parts")
            << "A-EU-1-2" << true << "The Aptabase App Key A-EU-1-2" + invalidTail;
        QTest::newRow("lower-case region")
            << "A-eu-123" << false << "The Aptabase App Key A-eu-123" + invalidTail;
        QTest::newRow("self-hosted, no options") << "A-SH-123" << false << selfHostedLine;
    }

    void refusedKeysLeaveTrackingOff()
    {
        QFETCH(QString, key);
        QFETCH(bool, withOptions);
        QFETCH(QString, line);
        LoopbackIngestion server;
        CapturedLines captured;
        Aptabase aptabase;
        if (withOptions)
            aptabase.initialize(key, optionsWith(server.baseUrl()));
        else
            aptabase.initialize(key);
        QCOMPARE(captured.lines, QStringList{DebugPrint::quoted(line)});
        QCOMPARE(aptabase.client(), nullptr);

        aptabase.trackEvent("ignored");
        aptabase.startPolling();
        aptabase.flush();
        QCoreApplication::processEvents();
        QCOMPARE(server.requests.size(), 0);
        QCOMPARE(captured.lines.size(), 1);
    }

    void acceptedKeysPickTheirEndpoint()
    {
        const QString host = QStringLiteral("http://127.0.0.1:9/base");
        const Aptabase::RegionHosts regions{"http://127.0.0.1:7/us", "http://127.0.0.1:8/eu"};
        const QList<QPair<QString, QString>> cases{{"A-EU-1", regions.eu}, // ignores the host
                                                   {"A-US-", regions.us},
                                                   {"A-SH-1", host}};
        for (const auto &[key, base] : cases) {
            CapturedLines captured;
            Aptabase aptabase({}, regions);
            aptabase.initialize(key, optionsWith(host));
            QVERIFY(aptabase.client());
            QCOMPARE(aptabase.client()->dispatcher().apiUrl(), QUrl(base + "/api/v0/events"));
            QCOMPARE(captured.lines, QStringList());
        }
    }

    void trackingModeDecidesDebugFlag()
    {
        EnvironmentInfo env;
        env.isDebug = true;
        Aptabase keeps(env);
        keeps.initialize("A-DEV-1", InitOptions({}, {}, TrackingMode::readFromEnvironment()));
        QVERIFY(keeps.env().isDebug);
        QCOMPARE(keeps.client()->flushInterval(), 2.0);
        Aptabase release(env);
        release.initialize("A-DEV-1", InitOptions({}, {}, TrackingMode::asRelease()));
        QVERIFY(!release.env().isDebug);
        QCOMPARE(release.client()->flushInterval(), 60.0);
    }

    void eventsOnTheWire()
    {
        LoopbackIngestion server;
        CapturedLines captured;
        EnvironmentInfo env;
        env.osName = QStringLiteral("Linux");
        env.osVersion = QStringLiteral("12.0.0");
        env.deviceModel = QStringLiteral("Latitude 7440");
        Aptabase aptabase(env);
        aptabase.initialize("A-SH-4817305526", optionsWith(server.baseUrl()));
        aptabase.trackEvent("kinds", ValueProps{{"on", true},
                                                {"off", false},
                                                {"count", 7},
                                                {"ratio", 0.25},
                                                {"scale", 1.1f},
                                                {"name", "x"}});
        aptabase.trackEvent("variants", QVariantMap{{"b", true},
                                                    {"i", qint64(1) << 40},
                                                    {"f", 1.1f},
                                                    {"d", 0.25},
                                                    {"s", QStringLiteral("x")}});
        aptabase.trackEvent("dropped", QVariantMap{{"ok", 1}, {"when", QDateTime()}});
        aptabase.trackEvent("bare");
        aptabase.flush();
        QTRY_COMPARE(server.requests.size(), 1);

        const auto &request = server.requests[0];
        QCOMPARE(LoopbackIngestion::eventNames(request),
                 (QStringList{"kinds", "variants", "bare"}));
        QCOMPARE(request.headers.value("app-key"), "A-SH-4817305526");
        QVERIFY2(
            request.body.contains(
                R"("props":{"count":7,"name":"x","off":false,"on":true,"ratio":0.25,"scale":1.1})"),
            request.body);
        // A float keeps its own precision, not a double's.
        QVERIFY2(request.body.contains(
                     R"("props":{"b":true,"d":0.25,"f":1.1,"i":1099511627776,"s":"x"})"),
                 request.body);
        QVERIFY2(request.body.contains(R"("props":{})"), request.body);

        const QJsonObject system =
            LoopbackIngestion::events(request).at(0).toObject().value("systemProps").toObject();
        QCOMPARE(system.value("sdkVersion").toString(), "zasuzil@0.3.11");
        QCOMPARE(system.value("osName").toString(), "Linux");
        QCOMPARE(system.value("osVersion").toString(), "12.0.0");
        QCOMPARE(system.value("isDebug").toBool(), false);
        QCOMPARE(system.value("deviceModel").toString(), "Latitude 7440");
        QCOMPARE(server.problems, QStringList());
        QCOMPARE(captured.lines,
                 QStringList{"\"Aptabase: Props with key when has an unsupported value type. "
                             "Supported types are: String, Int, Double, Float and Boolean. "
                             "Event will be discarded\""});
    }
};

QTEST_GUILESS_MAIN(TestAptabaseFront)
#include "tst_aptabase_front.moc"
