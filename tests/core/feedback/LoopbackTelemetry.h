#pragma once

#include "../../aptabase/LoopbackIngestion.h"
#include "aptabase/Aptabase.h"

#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QTest>

// The application's analytics client pointed at a loopback ingestion server while it lives;
// events go out only when asked for.
struct LoopbackTelemetry {
    LoopbackIngestion server;
    Aptabase aptabase;

    LoopbackTelemetry()
    {
        if (server.listen())
            aptabase.initialize(QStringLiteral("A-SH-7700112233"),
                                InitOptions(server.baseUrl(), 3600, TrackingMode::asRelease()));
        Aptabase::setShared(&aptabase);
        aptabase.startPolling();
    }
    ~LoopbackTelemetry() { Aptabase::setShared(nullptr); }

    // Every event sent so far, as name and properties.
    QList<QPair<QString, QJsonObject>> events()
    {
        aptabase.flush();
        QTest::qWait(150);
        static_cast<void>(QTest::qWaitFor([&] { return server.openRequests == 0; }, 2000));
        QList<QPair<QString, QJsonObject>> all;
        for (const LoopbackIngestion::Request &request : server.requests)
            for (const QJsonValue &event : request.events())
                all.append({event[QLatin1String("eventName")].toString(),
                            event[QLatin1String("props")].toObject()});
        return all;
    }
};
