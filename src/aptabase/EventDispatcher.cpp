#include "aptabase/EventDispatcher.h"

#include "aptabase/DebugPrint.h"
#include "foundation/ReadOnceUpload.h"
#include "foundation/ReplyOutcome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringDecoder>

namespace {

constexpr int requestTimeoutMs = 60000;

QString failureLine(qsizetype batchSize, const QString &reason)
{
    return QStringLiteral("Aptabase: Failed to send ") + QString::number(batchSize)
           + QStringLiteral(" events. Reason: ") + reason;
}

QString utf8OrEmpty(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString() : text;
}

} // namespace

EventDispatcher::EventDispatcher(const QString &appKey, const QString &baseUrl,
                                 const EnvironmentInfo &env, QNetworkAccessManager *session,
                                 QObject *parent)
    : QObject(parent),
      m_headers{
          {"Content-Type", "application/json"},
          {"App-Key", appKey.toUtf8()},
          {"User-Agent",
           (env.osName + QLatin1Char('/') + env.osVersion + QLatin1Char(' ') + env.locale)
               .toUtf8()},
      },
      m_apiUrl(baseUrl + QStringLiteral("/api/v0/events"), QUrl::StrictMode),
      m_session(session ? session : new QNetworkAccessManager(this))
{
    if (!m_apiUrl.isValid())
        qFatal("Aptabase: invalid ingestion address %s", qPrintable(baseUrl));
}

void EventDispatcher::enqueue(const Event &event)
{
    m_events.enqueue(event);
}

void EventDispatcher::enqueue(const QList<Event> &events)
{
    m_events.enqueue(events);
}

void EventDispatcher::flush(std::function<void()> done)
{
    if (m_events.isEmpty()) {
        if (done)
            done();
        return;
    }
    sendNextBatch(std::make_shared<QList<Event>>(), done);
}

void EventDispatcher::sendNextBatch(const FailedEvents &failed, const std::function<void()> &done)
{
    if (m_events.isEmpty()) {
        // Failed batches go to the back, behind whatever arrived meanwhile.
        if (!failed->isEmpty())
            m_events.enqueue(*failed);
        if (done)
            done();
        return;
    }
    const QList<Event> batch = m_events.dequeue(maximumBatchSize);
    sendEvents(batch, [this, batch, failed, done](bool sent) {
        if (!sent)
            failed->append(batch);
        sendNextBatch(failed, done);
    });
}

std::optional<QByteArray> EventDispatcher::encode(const QList<Event> &batch)
{
    QJsonArray array;
    for (const Event &event : batch) {
        const std::optional<QJsonObject> object = event.toJson();
        if (!object)
            return std::nullopt;
        array.append(*object);
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

void EventDispatcher::sendEvents(const QList<Event> &batch, std::function<void(bool sent)> finished)
{
    if (batch.isEmpty()) {
        finished(true);
        return;
    }
    const std::optional<QByteArray> body = encode(batch);
    if (!body) {
        DebugPrint::write(failureLine(
            batch.size(),
            QStringLiteral(
                "The data couldn’t be written because it isn’t in the correct format.")));
        finished(false);
        return;
    }
    QNetworkRequest request(m_apiUrl);
    request.setTransferTimeout(requestTimeoutMs);
    for (const auto &[name, value] : m_headers)
        request.setRawHeader(name, value);
    // One attempt, one request: a batch sent twice would count its events twice.
    QNetworkReply *reply = ReadOnceUpload::post(*m_session, request, *body);
    ++m_sending;
    const qsizetype batchSize = batch.size();
    connect(reply, &QNetworkReply::finished, this, [this, reply, batchSize, finished] {
        reply->deleteLater();
        --m_sending;
        finished(handleReply(reply, batchSize));
    });
}

bool EventDispatcher::handleReply(QNetworkReply *reply, qsizetype batchSize)
{
    const ReplyOutcome outcome = ReplyOutcome::of(*reply);
    if (outcome.failure) {
        DebugPrint::write(failureLine(batchSize, *outcome.failure));
        return false;
    }
    if (!outcome.status)
        return true; // no failure and nothing to judge
    const int statusCode = *outcome.status;
    if (statusCode < 300)
        return true;
    const QString reason =
        QString::number(statusCode) + QLatin1Char(' ') + utf8OrEmpty(reply->readAll());
    if (statusCode < 500) {
        DebugPrint::write(QStringLiteral("Aptabase: Failed to send ") + QString::number(batchSize)
                          + QStringLiteral(" events because of ") + reason
                          + QStringLiteral(". Will not retry."));
        return true;
    }
    DebugPrint::write(failureLine(batchSize, QStringLiteral("Error Domain=AptabaseError Code=")
                                                 + QString::number(statusCode)
                                                 + QStringLiteral(" \"(null)\" UserInfo={reason=")
                                                 + reason + QLatin1Char('}')));
    return false;
}
