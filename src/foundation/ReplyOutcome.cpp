#include "foundation/ReplyOutcome.h"

#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

// The errors a reply reports for an HTTP status of 400 and up: the server answered.
bool isHttpStatusError(QNetworkReply::NetworkError error)
{
    if (error == QNetworkReply::ContentReSendError)
        return false; // the request could not be sent again: no answer came
    return (error >= QNetworkReply::ContentAccessDenied
            && error <= QNetworkReply::UnknownContentError)
           || (error >= QNetworkReply::InternalServerError
               && error <= QNetworkReply::UnknownServerError);
}

} // namespace

ReplyOutcome ReplyOutcome::of(const QNetworkReply &reply)
{
    ReplyOutcome outcome;
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid())
        outcome.status = status.toInt();
    const QNetworkReply::NetworkError error = reply.error();
    if (error != QNetworkReply::NoError && !(outcome.status && isHttpStatusError(error))) {
        outcome.failure = reply.errorString();
        outcome.status.reset();
    }
    return outcome;
}
