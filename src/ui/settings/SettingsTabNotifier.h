#pragma once

#include "ui/settings/SettingsTab.h"

#include <QObject>

// The one process-wide channel that tells a settings window already open to show a tab.
class SettingsTabNotifier : public QObject {
    Q_OBJECT
public:
    static SettingsTabNotifier &shared();

Q_SIGNALS:
    void SwitchSettingsTab(SettingsTab tab);
};
