#pragma once

#include "LoopbackIngestion.h"
#include "aptabase/Aptabase.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QTest>

// The application's analytics client pointed at a loopback ingestion server while it lives.
// Its flush timer is far off: events go out on the first activation (startPolling) or flush().
struct LoopbackAnalytics {
    LoopbackIngestion server;
    Aptabase aptabase;

    LoopbackAnalytics()
    {
        if (server.listen())
            aptabase.initialize(QStringLiteral("A-SH-7700112233"),
                                InitOptions(server.baseUrl(), 3600, TrackingMode::asRelease()));
        Aptabase::setShared(&aptabase);
    }
    ~LoopbackAnalytics() { Aptabase::setShared(nullptr); }
    LoopbackAnalytics(const LoopbackAnalytics &) = delete;
    LoopbackAnalytics &operator=(const LoopbackAnalytics &) = delete;

    // Every event the server has received so far, as sent.
    QJsonArray events() const
    {
        QJsonArray all;
        for (const LoopbackIngestion::Request &request : server.requests)
            for (const QJsonValue &event : request.events())
                all.append(event);
        return all;
    }

    // Waits until `count` events in all have arrived, and a little longer for any extra.
    QJsonArray arrived(qsizetype count) const
    {
        static_cast<void>(QTest::qWaitFor([&] { return events().size() >= count; }, 5000));
        QTest::qWait(50);
        return events();
    }

    // Sends what waits and returns every event so far as its name and properties.
    QList<QPair<QString, QJsonObject>> flushedEvents()
    {
        aptabase.flush();
        QTest::qWait(150);
        static_cast<void>(QTest::qWaitFor([&] { return server.openRequests == 0; }, 2000));
        QList<QPair<QString, QJsonObject>> named;
        for (const QJsonValue &event : events())
            named.append({event[QLatin1String("eventName")].toString(),
                          event[QLatin1String("props")].toObject()});
        return named;
    }
};
