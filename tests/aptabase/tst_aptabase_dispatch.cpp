#include "CapturedLines.h"
#include "FakeTimerFactory.h"
#include "LoopbackIngestion.h"

#include "aptabase/AptabaseClient.h"
#include "aptabase/EventDispatcher.h"

#include <QJsonObject>
#include <QTest>

#include <memory>

using namespace std::chrono_literals;

namespace {

const QString appKey = QStringLiteral("A-SH-4817305526");

EnvironmentInfo environment()
{
    EnvironmentInfo env;
    env.osName = QStringLiteral("Linux");
    env.osVersion = QStringLiteral("12.0.0");
    env.locale = EnvironmentInfo::systemLanguage();
    return env;
}

std::unique_ptr<AptabaseClient> clientFor(const QString &baseUrl, double flushInterval = 3600,
                                          AptabaseClient::Clock clock = {},
                                          TimerFactory *timers = nullptr)
{
    return std::make_unique<AptabaseClient>(
        appKey, baseUrl, environment(),
        InitOptions(baseUrl, flushInterval, TrackingMode::readFromEnvironment()), nullptr,
        std::move(clock), timers);
}

// Waits until every batch on its way has been answered.
bool sent(const AptabaseClient &client)
{
    return QTest::qWaitFor([&client] { return !client.dispatcher().isSending(); });
}

QStringList names(int from, int to)
{
    QStringList result;
    for (int i = from; i < to; ++i)
        result << QStringLiteral("e%1").arg(i);
    return result;
}

void track(AptabaseClient &client, int from, int to)
{
    for (const QString &name : names(from, to))
        client.trackEvent(name);
}

bool flushAndWait(AptabaseClient &client)
{
    bool done = false;
    client.flush([&done] { done = true; });
    return QTest::qWaitFor([&done] { return done; });
}

} // namespace

class TestAptabaseDispatch : public QObject {
    Q_OBJECT
private slots:
    void batchesOfAtMost25OldestFirst()
    {
        LoopbackIngestion server;
        auto client = clientFor(server.baseUrl());
        track(*client, 0, 26);
        QVERIFY(flushAndWait(*client));

        QCOMPARE(server.requests.size(), 2);
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[0]), names(0, 25));
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[1]), names(25, 26));
        const EnvironmentInfo env = environment();
        if (qEnvironmentVariable("LC_ALL").startsWith("de_DE"))
            QCOMPARE(env.locale, "de"); // the bare language, as ctest runs this test
        for (const auto &request : server.requests) {
            QCOMPARE(request.method, "POST");
            QCOMPARE(request.path, "/api/v0/events");
            QCOMPARE(request.headers.value("content-type"), "application/json");
            QCOMPARE(request.headers.value("app-key"), appKey.toUtf8());
            QCOMPARE(request.headers.value("user-agent"),
                     QString("Linux/12.0.0 " + env.locale).trimmed().toUtf8());
        }
        QCOMPARE(server.problems, QStringList());
        QCOMPARE(client->dispatcher().pendingCount(), 0);
    }

    // The service refuses a string property over 200 UTF-16 code units, and the whole batch
    // with it: a long value is cut at a character boundary before it is queued.
    void longPropertyValuesAreCut()
    {
        LoopbackIngestion server;
        auto client = clientFor(server.baseUrl());
        const QString a = QStringLiteral("a");
        client->trackEvent(QStringLiteral("long"),
                           {{"plain", AnyCodableValue::string(QString(u'x').repeated(300))},
                            {"emoji", AnyCodableValue::string(a.repeated(199) + u"😀😀")},
                            {"mark", AnyCodableValue::string(a.repeated(198) + u"e\u0301\u0301")},
                            {"short", AnyCodableValue::string(QStringLiteral("Web & Mail"))},
                            {"count", AnyCodableValue::integer(7)}});
        track(*client, 0, 1);
        QVERIFY(flushAndWait(*client));

        QCOMPARE(server.problems, QStringList());
        QCOMPARE(server.requests.size(), 1);
        QCOMPARE(
            LoopbackIngestion::events(server.requests[0])[0][QLatin1String("props")].toObject(),
            QJsonObject({{"plain", QString(u'x').repeated(200)},
                         {"emoji", a.repeated(199)},
                         {"mark", a.repeated(198)},
                         {"short", "Web & Mail"},
                         {"count", 7}}));
    }

    // A client error drops the batch; a server error or a refused connection puts it back.
    void failuresDecideWhetherTheBatchComesBack()
    {
        LoopbackIngestion server;
        server.script({{404, "No such app"}, {500, "down \"for\" now"}});
        CapturedLines captured;
        auto client = clientFor(server.baseUrl());
        track(*client, 0, 3);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(client->dispatcher().pendingCount(), 0);

        track(*client, 0, 2);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(captured.lines,
                 QStringList({"\"Aptabase: Failed to send 3 events because of 404 No such app. "
                              "Will not retry.\"",
                              "\"Aptabase: Failed to send 2 events. Reason: Error "
                              "Domain=AptabaseError Code=500 \\\"(null)\\\" UserInfo={reason=500 "
                              "down \\\"for\\\" now}\""}));
        QCOMPARE(client->dispatcher().pendingCount(), 2);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 3);
        QCOMPARE(LoopbackIngestion::events(server.requests[2]),
                 LoopbackIngestion::events(server.requests[1]));
        QCOMPARE(client->dispatcher().pendingCount(), 0);

        const quint16 port = server.port();
        server.close();
        captured.lines.clear();
        track(*client, 2, 3);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(captured.lines.size(), 1);
        QVERIFY2(captured.lines[0].startsWith("\"Aptabase: Failed to send 1 events. Reason: "),
                 qPrintable(captured.lines[0]));
        QCOMPARE(client->dispatcher().pendingCount(), 1);
        QVERIFY(server.listen(port));
        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 4);
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[3]), names(2, 3));
    }

    // One attempt, one request: a batch whose connection drops, or that gets no HTTP back,
    // is not sent again behind the client's back (it would arrive twice), but kept for the
    // next flush.
    void aBrokenConnectionIsOneRequestAndTheBatchIsKept()
    {
        LoopbackIngestion server;
        server.script({{0}, {-1}});
        CapturedLines captured;
        auto client = clientFor(server.baseUrl());
        track(*client, 0, 2);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 1);
        QCOMPARE(client->dispatcher().pendingCount(), 2);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 2);
        QCOMPARE(client->dispatcher().pendingCount(), 2);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 3);
        QCOMPARE(client->dispatcher().pendingCount(), 0);
        QCOMPARE(captured.lines.size(), 2);
    }

    void onlyTheFailedBatchOfAFlushReturns()
    {
        LoopbackIngestion server;
        server.script({{500}, {200}});
        CapturedLines captured;
        auto client = clientFor(server.baseUrl());
        track(*client, 0, 30);
        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 2);
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[1]), names(25, 30));
        QCOMPARE(client->dispatcher().pendingCount(), 25);

        QVERIFY(flushAndWait(*client));
        QCOMPARE(server.requests.size(), 3);
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[2]), names(0, 25));
    }

    void eventsWaitForPollingAndStopFlushesOnce()
    {
        LoopbackIngestion server;
        FakeTimerFactory timers;
        auto client = clientFor(server.baseUrl(), 0.02, {}, &timers);
        track(*client, 0, 1);
        QVERIFY(!client->dispatcher().isSending());
        QCOMPARE(client->dispatcher().pendingCount(), 1);

        client->startPolling(); // an activation flushes at once, then every tick
        QVERIFY(client->isPolling());
        QVERIFY(sent(*client));
        QCOMPARE(server.requests.size(), 1);
        track(*client, 1, 2);
        QCOMPARE(timers.fire(20ms), 1);
        QVERIFY(sent(*client));
        QCOMPARE(server.requests.size(), 2);

        track(*client, 2, 3);
        client->stopPolling();
        QVERIFY(!client->isPolling());
        QVERIFY(sent(*client));
        QCOMPARE(server.requests.size(), 3);
        track(*client, 3, 4);
        QCOMPARE(timers.fire(20ms), 0);
        QCOMPARE(client->dispatcher().pendingCount(), 1);
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[2]), names(2, 3));
    }

    void tickDuringATimerFlushIsSkipped()
    {
        LoopbackIngestion server;
        FakeTimerFactory timers;
        auto client = clientFor(server.baseUrl(), 0.02, {}, &timers);
        client->startPolling();
        timers.fire(20ms); // the activation flush and a tick find nothing to send
        QVERIFY(!client->dispatcher().isSending());

        server.hold();
        track(*client, 0, 1);
        timers.fire(20ms);
        QTRY_COMPARE(server.requests.size(), 1);
        track(*client, 1, 2);
        timers.fire(20ms);
        QCOMPARE(client->dispatcher().pendingCount(), 1); // the tick sent nothing

        server.release(); // the running flush picks up what arrived meanwhile
        QVERIFY(sent(*client));
        QCOMPARE(server.requests.size(), 2);
        QCOMPARE(LoopbackIngestion::eventNames(server.requests[1]), names(1, 2));
        QCOMPARE(server.mostOpenRequests, 1);
    }

    void sessionRenewsAfterMoreThanAnHourOfSilence()
    {
        LoopbackIngestion server;
        server.validateTimestamps = false;
        const QDateTime start = QDateTime::fromSecsSinceEpoch(1700000000, Qt::UTC);
        QDateTime now = start;
        auto client = clientFor(server.baseUrl(), 3600, [&now] { return now; });
        const QString first = client->sessionId();
        QVERIFY(first.startsWith("1700000000") && first.size() == 18);

        // Gaps of 3000, 3000 and exactly 3600 seconds keep the session; 3600.001 does not.
        for (qint64 offsetMs : {0LL, 3000000LL, 6000000LL, 9600000LL, 13200001LL}) {
            now = start.addMSecs(offsetMs);
            track(*client, 0, 1);
        }
        const QString second = client->sessionId();
        QVERIFY(second != first);
        QVERIFY(second.startsWith(QString::number(now.toSecsSinceEpoch())));

        QVERIFY(flushAndWait(*client));
        QStringList sent;
        for (const QJsonValue &event : LoopbackIngestion::events(server.requests.value(0)))
            sent << event["sessionId"].toString();
        QCOMPARE(sent, (QStringList{first, first, first, first, second}));
        QCOMPARE(LoopbackIngestion::events(server.requests[0]).last()["timestamp"].toString(),
                 QString("2023-11-15T01:53:20Z"));
    }
};

QTEST_GUILESS_MAIN(TestAptabaseDispatch)
#include "tst_aptabase_dispatch.moc"
