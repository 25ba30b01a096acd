#pragma once

#include "core/guard/EmailClient.h"
#include "core/guard/HandlerGuard.h"

// Guards the default mail client (mailto).
class EmailClientManager : public HandlerGuard {
    Q_OBJECT
public:
    explicit EmailClientManager(const GuardEnvironment &environment, QObject *parent = nullptr)
        : HandlerGuard(GuardProfile::email(), environment, parent)
    {
    }

    const QList<EmailClient> &installedEmailClients() const { return installed(); }
    const std::optional<EmailClient> &currentDefaultEmailClient() const { return currentDefault(); }
    bool isChangingEmailClient() const { return isChanging(); }

    std::optional<EmailClient> targetDefaultEmailClient() const { return target(); }
    void setTargetDefaultEmailClient(const std::optional<EmailClient> &client)
    {
        setTarget(client);
    }
    qint64 emailChangeCount() const { return changeCount(); }
    void setEmailChangeCount(qint64 count) { setChangeCount(count); }
    std::optional<QDateTime> lastEmailChange() const { return lastChange(); }
    void setLastEmailChange(const std::optional<QDateTime> &when) { setLastChange(when); }

    void updateCurrentDefaultEmailClient() { updateCurrentDefault(); }
    void checkDefaultEmailClient() { check(); }
    void setDefaultEmailClient(const EmailClient &client) { setDefault(client); }
    void cancelEmailClientChange() { cancelChange(); }
};
