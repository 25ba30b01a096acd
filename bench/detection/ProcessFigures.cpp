#include "ProcessFigures.h"

#include <algorithm>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char **environ;

namespace {

double medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

ProcessFigures::Run runOnce(const QStringList &command)
{
    std::vector<QByteArray> arguments;
    for (const QString &argument : command)
        arguments.push_back(argument.toLocal8Bit());
    std::vector<char *> argv;
    for (QByteArray &argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    ProcessFigures::Run run;
    if (posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        rusage usage{};
        wait4(pid, &status, 0, &usage);
        run.cpuMilliseconds = (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000.0
                              + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000.0;
        run.peakMebibytes = usage.ru_maxrss / 1024.0;
    }
    posix_spawn_file_actions_destroy(&actions);
    return run;
}

} // namespace

ProcessFigures::Run ProcessFigures::median(const QStringList &command, int runs)
{
    std::vector<double> cpu;
    std::vector<double> peak;
    for (int i = 0; i < runs; ++i) {
        const Run run = runOnce(command);
        cpu.push_back(run.cpuMilliseconds);
        peak.push_back(run.peakMebibytes);
    }
    return {medianOf(cpu), medianOf(peak)};
}
