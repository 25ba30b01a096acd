#pragma once

#include "aptabase/DebugPrint.h"

#include <QStringList>

// Takes the analytics client's debug lines for as long as it lives.
struct CapturedLines {
    CapturedLines()
    {
        previous = DebugPrint::setSink([this](const QString &line) { lines << line; });
    }
    ~CapturedLines() { DebugPrint::setSink(previous); }

    QStringList lines;
    DebugPrint::Sink previous;
};
