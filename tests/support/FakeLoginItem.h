#pragma once

#include "platform/LoginItem.h"

#include <QStringList>

// Launch at login in memory: registering turns it on, unregistering off, unless a failure
// is set, which every call then reports instead.
class FakeLoginItem final : public LoginItem {
public:
    bool isEnabled() const override { return m_enabled; }
    std::optional<QString> registerItem() override { return set(true); }
    std::optional<QString> unregisterItem() override { return set(false); }

    void setEnabled(bool enabled) { m_enabled = enabled; }
    void setFailure(std::optional<QString> failure) { m_failure = std::move(failure); }
    // "register" and "unregister", in the order asked.
    const QStringList &calls() const { return m_calls; }

private:
    std::optional<QString> set(bool enabled)
    {
        m_calls << (enabled ? QStringLiteral("register") : QStringLiteral("unregister"));
        if (m_failure)
            return m_failure;
        m_enabled = enabled;
        return std::nullopt;
    }

    bool m_enabled = false;
    std::optional<QString> m_failure;
    QStringList m_calls;
};
