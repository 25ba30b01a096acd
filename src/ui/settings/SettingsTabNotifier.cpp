#include "ui/settings/SettingsTabNotifier.h"

SettingsTabNotifier &SettingsTabNotifier::shared()
{
    static SettingsTabNotifier notifier;
    return notifier;
}
