#pragma once

#include "platform/DeviceFacts.h"
#include "platform/HandlerChangeWatcher.h"
#include "platform/HandlerDatabase.h"
#include "platform/InstallLayout.h"
#include "platform/LoginItem.h"
#include "platform/QuitRequests.h"
#include "platform/SingleInstance.h"
#include "platform/SystemEvents.h"
#include "platform/UrlHandOver.h"

#include <memory>

// The one place that picks the platform's implementations; the build links exactly one
// backend, so callers never name a platform.
class PlatformBackend {
public:
    static std::unique_ptr<HandlerDatabase> createHandlerDatabase();
    // A watcher of the files the handler database decides defaults by.
    static std::unique_ptr<HandlerChangeWatcher> createHandlerChangeWatcher();
    static std::unique_ptr<SingleInstance> createSingleInstance(const QString &appId);
    static std::unique_ptr<SystemEvents> createSystemEvents();
    // Launch at login of the running executable.
    static std::unique_ptr<LoginItem> createLoginItem(const QString &appId);
    static std::unique_ptr<DeviceFacts> createDeviceFacts();
    static std::unique_ptr<InstallLayout> createInstallLayout();
    static std::unique_ptr<UrlHandOver> createUrlHandOver(const QString &appId);
    // One per process.
    static std::unique_ptr<QuitRequests> createQuitRequests();
};
