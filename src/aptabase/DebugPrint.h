#pragma once

#include <QString>

#include <functional>

// The analytics client's diagnostic lines: each text is written as a quoted, escaped string
// literal, one line on standard output, flushed. A sink installed by a test takes the lines
// instead.
class DebugPrint {
public:
    using Sink = std::function<void(const QString &line)>;

    static void write(const QString &text);
    static QString quoted(const QString &text);

    // Returns the sink it replaces; an empty sink restores standard output.
    static Sink setSink(Sink sink);
};
