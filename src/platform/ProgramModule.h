#pragma once

#include <QString>

// The windowed program lives in a module of its own, loaded only when it runs, so that the
// console commands (status, help, version) start with Qt Core alone and never map the GUI
// libraries.
class ProgramModule {
public:
    // Runs the program to its end and returns its exit status. `url` is UTF-8, empty for none.
    using Run = int (*)(int argc, char **argv, bool launchedAtLogin, const char *url);
    static constexpr const char *entryName = "vandorelRunProgram";

    // The module's entry, beside the executable or where it is installed; none, with the
    // loader's reason in `error`, when it is missing.
    static Run load(QString *error);
};
