#include "CapturedLines.h"
#include "LoopbackIngestion.h"

#include "aptabase/Aptabase.h"
#include "aptabase/EventDispatcher.h"

#include "BuildConfig.h"

#include <QDateTime>
#include <QTest>

namespace {

const QString invalidTail = QStringLiteral(" is invalid. Tracking will be disabled.");
const QString selfHostedLine = QStringLiteral(
    "Aptabase: Host parameter must be defined when using Self-Hosted App Key. Tracking will be "
    "disabled.");

InitOptions optionsWith(const QString &host) {
    return InitOptions(host, 3600, TrackingMode::readFromEnvironment());
}

} // namespace

class TestAptabaseFront : public QObject {
    Q_OBJECT
private slots:
    void refusedKeysLeaveTrackingOff_data() {
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

    void refusedKeysLeaveTrackingOff() {
        QFETCH(QString, key);
        QFETCH(bool, withOptions);
        QFETCH(QString, line);
        LoopbackIngestion server;
        QVERIFY(server.listen());
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
        aptabase.stopPolling();
        QTest::qWait(50);
        QCOMPARE(server.requests.size(), 0);
        QCOMPARE(captured.lines.size(), 1);
    }

    void acceptedKeysPickTheirEndpoint_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("base");
        const QString eu = QString::fromUtf8(BuildConfig::analyticsEuHost);
        QTest::newRow("EU ignores the host") << "A-EU-1" << eu;
        QTest::newRow("US, empty identifier") << "A-US-" << QString(BuildConfig::analyticsUsHost);
        QTest::newRow("DEV") << "A-DEV-1"
                             << "http://localhost:3000";
        QTest::newRow("SH takes the host") << "A-SH-1"
                                           << "http://127.0.0.1:9/base";
    }

    void acceptedKeysPickTheirEndpoint() {
        QFETCH(QString, key);
        QFETCH(QString, base);
        CapturedLines captured;
        Aptabase aptabase;
        aptabase.initialize(key, optionsWith("http://127.0.0.1:9/base"));
        QVERIFY(aptabase.client());
        QCOMPARE(aptabase.client()->dispatcher().apiUrl(), QUrl(base + "/api/v0/events"));
        QCOMPARE(captured.lines, QStringList());
    }

    void trackingModeDecidesDebugFlag() {
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

    void valuesKeepTheirExactKind_data() {
        using Kind = AnyCodableValue::Kind;
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("kind"); // -1: unsupported
        QTest::newRow("bool") << QVariant(true) << int(Kind::Boolean);
        QTest::newRow("int") << QVariant(7) << int(Kind::Integer);
        QTest::newRow("qint64") << QVariant(qint64(1) << 40) << int(Kind::Integer);
        QTest::newRow("double") << QVariant(0.25) << int(Kind::Double);
        QTest::newRow("float") << QVariant(1.5f) << int(Kind::Float);
        QTest::newRow("string") << QVariant("text") << int(Kind::String);
        QTest::newRow("bytes") << QVariant(QByteArray("1")) << -1;
        QTest::newRow("date") << QVariant(QDateTime::currentDateTime()) << -1;
        QTest::newRow("list") << QVariant(QStringList{"a"}) << -1;
        QTest::newRow("invalid") << QVariant() << -1;
    }

    void valuesKeepTheirExactKind() {
        QFETCH(QVariant, value);
        QFETCH(int, kind);
        CapturedLines captured;
        const auto props = Aptabase::toCodableProps({{"a", 1}, {"key", value}});
        if (kind < 0) {
            QVERIFY(!props);
            QCOMPARE(captured.lines,
                     QStringList{"\"Aptabase: Props with key key has an unsupported value type. "
                                 "Supported types are: String, Int, Double, Float and Boolean. "
                                 "Event will be discarded\""});
        } else {
            QVERIFY(props);
            QCOMPARE(int(props->constFind("key")->kind()), kind);
        }
    }

    void eventsOnTheWire() {
        LoopbackIngestion server;
        QVERIFY(server.listen());
        CapturedLines captured;
        Aptabase aptabase;
        aptabase.initialize("A-SH-4817305526", optionsWith(server.baseUrl()));
        aptabase.trackEvent("kinds", ValueProps{{"on", true},
                                                {"off", false},
                                                {"count", 7},
                                                {"ratio", 0.25},
                                                {"scale", 1.1f},
                                                {"name", "x"}});
        aptabase.trackEvent("dropped", QVariantMap{{"ok", 1}, {"when", QDateTime()}});
        aptabase.trackEvent("bare");
        aptabase.flush();
        QTRY_COMPARE(server.requests.size(), 1);

        const auto &request = server.requests[0];
        QCOMPARE(request.eventNames(), (QStringList{"kinds", "bare"}));
        QCOMPARE(request.headers.value("app-key"), "A-SH-4817305526");
        QVERIFY2(
            request.body.contains(
                R"("props":{"count":7,"name":"x","off":false,"on":true,"ratio":0.25,"scale":1.1})"),
            request.body);
        QVERIFY2(request.body.contains(R"("props":{})"), request.body);

        const QJsonObject system =
            request.events().at(0).toObject().value("systemProps").toObject();
        const EnvironmentInfo &env = aptabase.env();
        QCOMPARE(system.value("sdkVersion").toString(), "zasuzil@0.3.11");
        QCOMPARE(system.value("osName").toString(), "Linux");
        QCOMPARE(system.value("osVersion").toString(), env.osVersion);
        QCOMPARE(system.value("isDebug").toBool(), env.isDebug);
        QCOMPARE(system.value("deviceModel").toString(), env.deviceModel);
        QCOMPARE(server.problems, QStringList());
        QCOMPARE(captured.lines.size(), 1); // the dropped event's
    }
};

QTEST_GUILESS_MAIN(TestAptabaseFront)
#include "tst_aptabase_front.moc"
