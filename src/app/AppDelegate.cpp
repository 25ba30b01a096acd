#include "app/AppDelegate.h"

#include "core/settings/SettingsStore.h"
#include "core/support/Console.h"

AppDelegate::AppDelegate(QObject *parent) : QObject(parent) {}

void AppDelegate::applicationDidFinishLaunching()
{
    Console::line(QStringLiteral("🚀 App launched -> configure update scheduler"));
    configureUpdateScheduler();
    connect(&SettingsStore::standard(), &SettingsStore::changed, this,
            &AppDelegate::userDefaultsDidChange);
}

void AppDelegate::applicationWillTerminate()
{
    disconnect(&SettingsStore::standard(), nullptr, this, nullptr);
}

void AppDelegate::configureUpdateScheduler() {}
void AppDelegate::userDefaultsDidChange() {}
