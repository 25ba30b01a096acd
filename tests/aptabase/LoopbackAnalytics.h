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

    // Waits until every batch on its way has been answered, and returns every event the
    // server has received so far as its name and properties.
    QList<QPair<QString, QJsonObject>> arrivedNamed() const
    {
        static_cast<void>(QTest::qWaitFor(
            [this] { return aptabase.client() && !aptabase.client()->dispatcher().isSending(); }));
        QList<QPair<QString, QJsonObject>> named;
        for (const LoopbackIngestion::Request &request : server.requests)
            for (const QJsonValue &event : LoopbackIngestion::events(request))
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
