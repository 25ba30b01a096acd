#include "core/updates/AppcastUpdaterController.h"

#include "core/updates/UpdateManager.h"
#include "core/updates/UpdatePresenter.h"

void AppcastUpdaterController::checkForUpdates()
{
    // The manager owns this controller and answers only while it lives.
    UpdateManager &manager = m_manager;
    manager.checkForUpdates([&manager](bool available, const std::optional<QString> &version) {
        const std::shared_ptr<UpdatePresenter> presenter = manager.presenter();
        if (!presenter)
            return;
        if (available && version)
            presenter->presentUpdateAvailable(*version, manager.isBrewInstall());
        else
            presenter->presentNoUpdate();
    });
}
