#pragma once

#include "LoopbackHttp.h"

#include <QJsonArray>
#include <QStringList>

// A scripted ingestion server on loopback (200 once the script is used up). It checks each
// request the way the ingestion service does, collecting what it would reject in `problems`.
class LoopbackIngestion : public LoopbackHttp {
public:
    static QJsonArray events(const Request &request);
    static QStringList eventNames(const Request &request);
    static QStringList validateEvents(const QByteArray &body, bool checkTimestamps);

    QStringList problems;
    bool validateTimestamps = true;

protected:
    void received(const Request &request) override;
};
