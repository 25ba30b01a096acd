#pragma once

#include "core/guard/BrowserManager.h"
#include "ui/guard/GuardSettingsView.h"

// The settings page of the browser guard.
class BrowserSettingsView : public GuardSettingsView {
    Q_OBJECT
public:
    BrowserSettingsView(BrowserManager &browserManager, const Services &services,
                        QWidget *parent = nullptr)
        : GuardSettingsView(GuardPageProfile::browser(), browserManager, services, parent)
    {
    }

    const std::optional<Browser> &selectedBrowser() const { return selection(); }
};
