#include "foundation/ReplyOutcome.h"

#include <QNetworkReply>
#include <QNetworkRequest>

ReplyOutcome ReplyOutcome::of(const QNetworkReply &reply)
{
    ReplyOutcome outcome;
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid())
        outcome.status = status.toInt();
    const bool failed = reply.error() != QNetworkReply::NoError && !outcome.status;
    if (failed)
        outcome.failure = reply.errorString();
    return outcome;
}
