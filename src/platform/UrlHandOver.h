#pragma once

#include <QString>

#include <functional>

// Carries a URL from a copy of the program that starts while another runs to the copy
// that runs, which opens it.
class UrlHandOver {
public:
    enum class Result { opened, refused, unreachable };
    // Opens a URL in this copy; false for a URL it does not know.
    using Opener = std::function<bool(const QString &url)>;

    virtual ~UrlHandOver() = default;

    // In the copy that runs: take URLs from later copies from now on. False when they
    // cannot reach this copy (no session bus, or the name is taken).
    virtual bool listen(Opener open) = 0;
    // In a later copy: hands the URL over and waits for the running copy's answer.
    virtual Result handOver(const QString &url) = 0;
};
