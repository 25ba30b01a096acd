#pragma once

#include "core/guard/Browser.h"
#include "core/guard/HandlerGuard.h"

// Guards the default web browser (https, with http as the fallback).
class BrowserManager : public HandlerGuard {
    Q_OBJECT
public:
    explicit BrowserManager(const GuardEnvironment &environment, QObject *parent = nullptr)
        : HandlerGuard(GuardProfile::browser(), environment, parent)
    {
    }

    const QList<Browser> &installedBrowsers() const { return installed(); }
    const std::optional<Browser> &currentDefaultBrowser() const { return currentDefault(); }
    bool isChangingBrowser() const { return isChanging(); }

    std::optional<Browser> targetDefaultBrowser() const { return target(); }
    void setTargetDefaultBrowser(const std::optional<Browser> &browser) { setTarget(browser); }
    qint64 browserChangeCount() const { return changeCount(); }
    void setBrowserChangeCount(qint64 count) { setChangeCount(count); }
    std::optional<QDateTime> lastBrowserChange() const { return lastChange(); }
    void setLastBrowserChange(const std::optional<QDateTime> &when) { setLastChange(when); }

    void updateCurrentDefaultBrowser() { updateCurrentDefault(); }
    void checkDefaultBrowser() { check(); }
    void setDefaultBrowser(const Browser &browser) { setDefault(browser); }
    void cancelBrowserChange() { cancelChange(); }
};
