#pragma once

// The updater that installs new versions on a normal install. The update manager starts it
// before every check and then asks it to check; the updater talks to the user by itself.
class UpdaterController {
public:
    virtual ~UpdaterController() = default;

    virtual void startUpdater() = 0;
    // A check the user asked for: it also tells when there is no update.
    virtual void checkForUpdates() = 0;
    // A check of the program's own schedule: it speaks up only when there is an update.
    virtual void checkForUpdatesInBackground() = 0;
};
