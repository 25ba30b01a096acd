#pragma once

#include "core/guard/EmailClientManager.h"
#include "ui/guard/GuardSettingsView.h"

// The settings page of the mail guard.
class EmailSettingsView : public GuardSettingsView {
    Q_OBJECT
public:
    EmailSettingsView(EmailClientManager &emailClientManager, const Services &services,
                      QWidget *parent = nullptr)
        : GuardSettingsView(GuardPageProfile::email(), emailClientManager, services, parent)
    {
    }

    const std::optional<EmailClient> &selectedEmailClient() const { return selection(); }
};
