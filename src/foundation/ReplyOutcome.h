#pragma once

#include <QString>

#include <optional>

class QNetworkReply;

// What a finished network reply brought: the server's answer, or a failure on the way there.
// A reply reports HTTP statuses of 400 and up as errors too; those are answers, with a body,
// to be judged by their status. Any other error is a failure, even when a status came before
// it: a body broken off by a reset, or the last hop of a redirect loop, is no answer.
struct ReplyOutcome {
    std::optional<QString> failure; // the failure, described; there is no answer then
    std::optional<int> status;      // the answer's HTTP status; none for a reply without one

    static ReplyOutcome of(const QNetworkReply &reply);
};
