#include "platform/PlatformBackend.h"

#include "platform/freedesktop/AutostartLoginItem.h"
#include "platform/freedesktop/DBusUrlHandOver.h"
#include "platform/freedesktop/FreedesktopDeviceFacts.h"
#include "platform/freedesktop/FreedesktopHandlerChangeWatcher.h"
#include "platform/freedesktop/FreedesktopInstallLayout.h"
#include "platform/freedesktop/FreedesktopSystemEvents.h"
#include "platform/freedesktop/LockFileSingleInstance.h"
#include "platform/freedesktop/PosixQuitRequests.h"

#include <QCoreApplication>

std::unique_ptr<HandlerChangeWatcher> PlatformBackend::createHandlerChangeWatcher()
{
    return std::make_unique<FreedesktopHandlerChangeWatcher>();
}

std::unique_ptr<SingleInstance> PlatformBackend::createSingleInstance(const QString &appId)
{
    return std::make_unique<LockFileSingleInstance>(appId);
}

std::unique_ptr<SystemEvents> PlatformBackend::createSystemEvents()
{
    return std::make_unique<FreedesktopSystemEvents>();
}

std::unique_ptr<LoginItem> PlatformBackend::createLoginItem(const QString &appId)
{
    return std::make_unique<AutostartLoginItem>(appId, QCoreApplication::applicationFilePath());
}

std::unique_ptr<DeviceFacts> PlatformBackend::createDeviceFacts()
{
    return std::make_unique<FreedesktopDeviceFacts>();
}

std::unique_ptr<InstallLayout> PlatformBackend::createInstallLayout()
{
    return std::make_unique<FreedesktopInstallLayout>();
}

std::unique_ptr<UrlHandOver> PlatformBackend::createUrlHandOver(const QString &appId)
{
    return std::make_unique<DBusUrlHandOver>(appId);
}

std::unique_ptr<QuitRequests> PlatformBackend::createQuitRequests()
{
    return std::make_unique<PosixQuitRequests>();
}
