#pragma once

#include "aptabase/ConcurrentQueue.h"
#include "aptabase/EnvironmentInfo.h"
#include "aptabase/Event.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QUrl>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

// Drains the queue of events in batches and posts them to the ingestion endpoint. Each
// batch is finished, thrown away or put back at the end of the queue, by its outcome.
class EventDispatcher : public QObject {
    Q_OBJECT
public:
    static constexpr qsizetype maximumBatchSize = 25;

    // `session` is the transport; without one the dispatcher makes its own. A base address
    // that does not form a URL is a programming fault and stops the process.
    EventDispatcher(const QString &appKey, const QString &baseUrl, const EnvironmentInfo &env,
                    QNetworkAccessManager *session = nullptr, QObject *parent = nullptr);

    void enqueue(const Event &event);
    void enqueue(const QList<Event> &events);

    // Sends everything queued, batch after batch, and calls `done` when the last answer is
    // in. Returns at once; the work goes on in the event loop.
    void flush(std::function<void()> done = {});

    const QUrl &apiUrl() const { return m_apiUrl; }
    const QList<QPair<QByteArray, QByteArray>> &headers() const { return m_headers; }
    qsizetype pendingCount() const { return m_events.count(); }
    // Whether a batch is on its way and its answer still to come.
    bool isSending() const { return m_sending > 0; }

    // The body of one request: a JSON array of the events, or none if one cannot be encoded.
    static std::optional<QByteArray> encode(const QList<Event> &batch);

private:
    using FailedEvents = std::shared_ptr<QList<Event>>;

    void sendNextBatch(const FailedEvents &failed, const std::function<void()> &done);
    // Calls `finished` with false when the batch has to go back into the queue.
    void sendEvents(const QList<Event> &batch, std::function<void(bool sent)> finished);
    bool handleReply(QNetworkReply *reply, qsizetype batchSize);

    ConcurrentQueue<Event> m_events;
    QList<QPair<QByteArray, QByteArray>> m_headers;
    QUrl m_apiUrl;
    QNetworkAccessManager *m_session;
    int m_sending = 0;
};
