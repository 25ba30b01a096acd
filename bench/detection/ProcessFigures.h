#pragma once

#include <QString>
#include <QStringList>

// What a whole process costs: CPU time and peak memory of a command run to its end.
class ProcessFigures {
public:
    struct Run {
        double cpuMilliseconds = 0; // user + system
        double peakMebibytes = 0;
    };

    // The medians over `runs` runs of the command, its output thrown away.
    static Run median(const QStringList &command, int runs);
};
