#pragma once

// The updater that installs new versions on a normal install. The update manager starts it
// before every check and then asks it to check; the updater talks to the user by itself.
class UpdaterController {
public:
    virtual ~UpdaterController() = default;

    virtual void startUpdater() = 0;
    virtual void checkForUpdates() = 0;
};
