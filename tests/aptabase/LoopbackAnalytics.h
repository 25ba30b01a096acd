#pragma once

#include "FakeTimerFactory.h"
#include "LoopbackIngestion.h"
#include "aptabase/Aptabase.h"
#include "aptabase/EventDispatcher.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QTest>

// The application's analytics client pointed at a loopback ingestion server while it lives.
// Its flush timer never fires by itself: events go out on the first activation
// (startPolling) or flush().
struct LoopbackAnalytics {
    LoopbackIngestion server;
    FakeTimerFactory timers;
    Aptabase aptabase;

    LoopbackAnalytics()
    {
        aptabase.setTimers(&timers);
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
            for (const QJsonValue &event : LoopbackIngestion::events(request))
                all.append(event);
        return all;
    }

    // Waits until every batch on its way has been answered, and returns every event so far.
    QJsonArray arrived() const
    {
        static_cast<void>(QTest::qWaitFor(
            [this] { return aptabase.client() && !aptabase.client()->dispatcher().isSending(); }));
        return events();
    }

    // As arrived(), each event as its name and properties.
    QList<QPair<QString, QJsonObject>> arrivedNamed() const
    {
        QList<QPair<QString, QJsonObject>> named;
        for (const QJsonValue &event : arrived())
            named.append({event[QLatin1String("eventName")].toString(),
                          event[QLatin1String("props")].toObject()});
        return named;
    }

    // Sends what waits and returns every event so far as its name and properties.
    QList<QPair<QString, QJsonObject>> flushedEvents()
    {
        aptabase.flush();
        return arrivedNamed();
    }
};
