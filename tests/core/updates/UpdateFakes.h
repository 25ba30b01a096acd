#pragma once

#include "core/updates/UpdateSheetPresenter.h"
#include "core/updates/UpdaterController.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

// A one-item appcast that offers `version`.
inline QByteArray feed(const QByteArray &version)
{
    return "<?xml version=\"1.0\"?><rss xmlns:sparkle=\"urn:x\"><channel><item>"
           "<enclosure url=\"http://127.0.0.1/v.tar\" sparkle:version=\""
           + version + "\"/></item></channel></rss>\n";
}

// An updater that notes what it is asked to do.
struct RecordingController final : UpdaterController {
    explicit RecordingController(QStringList &calls) : calls(calls) {}
    void startUpdater() override { calls.append(QStringLiteral("startUpdater")); }
    void checkForUpdates() override { calls.append(QStringLiteral("checkForUpdates")); }
    void checkForUpdatesInBackground() override
    {
        calls.append(QStringLiteral("checkForUpdatesInBackground"));
    }
    QStringList &calls;
};

// Notes the versions the update sheet was shown for, and whether with the Homebrew block.
struct RecordingSheet final : UpdateSheetPresenter {
    void presentUpdateAvailable(const QString &version, bool isBrewInstall) override
    {
        shown << version;
        brew << isBrewInstall;
    }
    QStringList shown;
    QList<bool> brew;
};
