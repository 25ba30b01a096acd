#pragma once

#include "core/updates/UpdaterController.h"

class UpdateManager;

// The updater of a platform without a native one: a check reads the appcast and shows the
// update sheet when a newer version exists, else the up-to-date message, through the
// manager's presenter.
class AppcastUpdaterController final : public UpdaterController {
public:
    explicit AppcastUpdaterController(UpdateManager &manager) : m_manager(manager) {}

    void startUpdater() override { m_started = true; }
    void checkForUpdates() override;

    bool isStarted() const { return m_started; }

private:
    UpdateManager &m_manager;
    bool m_started = false;
};
