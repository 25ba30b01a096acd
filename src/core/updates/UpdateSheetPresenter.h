#pragma once

#include <QString>

// Shows the update sheet: the window that tells of a newer version and, on a Homebrew
// install, offers the command that updates. It is a view of its own rather than a prompt:
// it has no answer to report and a copy button that acts while it stays open.
class UpdateSheetPresenter {
public:
    virtual ~UpdateSheetPresenter() = default;

    // The sheet for `version`, with the Homebrew block if `isBrewInstall`.
    virtual void presentUpdateAvailable(const QString &version, bool isBrewInstall) = 0;
};
