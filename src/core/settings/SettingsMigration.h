#pragma once

#include <QtGlobal>

class SettingsStore;

// Brings a settings file written by an earlier version of the program to the layout of
// this one. Runs once at start, before anything reads the store.
class SettingsMigration {
public:
    static constexpr qint64 currentVersion = 1;

    // Runs the steps from the file's version up to the current one and then stores the
    // current version. A file of the current layout is not written to; one of a newer
    // layout (a newer program wrote it) is left as it is.
    static void run(SettingsStore &store);
};
