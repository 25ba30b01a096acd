#pragma once

#include <QString>

#include <functional>

// Writes the program's diagnostic lines: UTF-8, one line each, flushed at once.
// They go to standard output unless redirected (the --status mode sends them to
// standard error so its JSON stays parseable; tests collect them).
class Console {
public:
    using Sink = std::function<void(const QString &line)>;

    static void line(const QString &text);

    // Replaces where lines go; an empty sink restores standard output.
    static void setSink(Sink sink);
    static void toStandardError();
};
