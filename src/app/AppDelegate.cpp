#include "app/AppDelegate.h"

#include "core/settings/SettingsStore.h"
#include "core/updates/UpdateManager.h"
#include "core/updates/UpdateScheduler.h"
#include "foundation/Console.h"

AppDelegate::AppDelegate(QObject *parent)
    : QObject(parent),
      m_updateScheduler(std::make_unique<UpdateScheduler>(SettingsStore::standard(), m_timers, [] {
          UpdateManager::shared().checkAutomaticallyAndPresentIfAvailable();
      }))
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    Console::line(QStringLiteral("🚀 App launched -> configure update scheduler"));
    configureUpdateScheduler();
    connect(&SettingsStore::standard(), &SettingsStore::changed, this,
            &AppDelegate::userDefaultsDidChange);
}

void AppDelegate::applicationWillTerminate()
{
    m_updateScheduler->stop();
    disconnect(&SettingsStore::standard(), nullptr, this, nullptr);
}

void AppDelegate::configureUpdateScheduler()
{
    m_updateScheduler->configureUpdateScheduler();
}

void AppDelegate::userDefaultsDidChange()
{
    m_updateScheduler->userDefaultsDidChange();
}
