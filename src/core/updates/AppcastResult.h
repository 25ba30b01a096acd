#pragma once

#include <QString>

#include <optional>

// What the feed announces: the version of the release read last, and its release notes link
// as plain text (not parsed as a URL). An empty version means the feed named none.
struct AppcastResult {
    QString version;
    std::optional<QString> releaseNotesURL;

    friend bool operator==(const AppcastResult &, const AppcastResult &) = default;
};
