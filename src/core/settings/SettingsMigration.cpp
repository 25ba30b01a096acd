#include "core/settings/SettingsMigration.h"

#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"

#include <array>

namespace {

struct Step {
    qint64 toVersion;
    void (*apply)(SettingsStore &store);
};

// Version 1 numbers the layout that files had before they carried a version: its keys
// and values stay exactly as they are.
void numberTheFirstLayout(SettingsStore &) {}

constexpr std::array<Step, 1> steps = {{
    {1, numberTheFirstLayout},
}};

static_assert(steps.back().toVersion == SettingsMigration::currentVersion);

} // namespace

void SettingsMigration::run(SettingsStore &store)
{
    const qint64 version = store.value(SettingsTable::schemaVersion);
    if (version >= currentVersion)
        return;
    for (const Step &step : steps) {
        if (step.toVersion > version)
            step.apply(store);
    }
    store.set(SettingsTable::schemaVersion, currentVersion);
}
