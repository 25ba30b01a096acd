#pragma once

#include <QString>

// Where the program's own updater shows what a check found. Implemented by the interface
// layer; core code only calls it.
class UpdatePresenter {
public:
    virtual ~UpdatePresenter() = default;

    // The update sheet for `version`, with the Homebrew block if `isBrewInstall`.
    virtual void presentUpdateAvailable(const QString &version, bool isBrewInstall) = 0;
    // The message that this copy is up to date.
    virtual void presentNoUpdate() = 0;
};
