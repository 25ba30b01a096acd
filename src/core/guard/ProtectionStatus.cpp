#include "core/guard/ProtectionStatus.h"

namespace Protection {

ProtectionStatus statusOf(const std::optional<HandlerRecord> &current,
                          const std::optional<HandlerRecord> &target, bool isProtected)
{
    const bool isMismatch =
        current && target && current->bundleIdentifier != target->bundleIdentifier;
    if (isMismatch && isProtected)
        return ProtectionStatus::mismatch;
    if (!isProtected)
        return ProtectionStatus::notProtected;
    return ProtectionStatus::protected_;
}

ProtectionStatus overall(ProtectionStatus browser, ProtectionStatus email)
{
    if (browser == ProtectionStatus::notProtected || email == ProtectionStatus::notProtected)
        return ProtectionStatus::notProtected;
    if (browser == ProtectionStatus::mismatch || email == ProtectionStatus::mismatch)
        return ProtectionStatus::mismatch;
    return ProtectionStatus::protected_;
}

QString name(ProtectionStatus status)
{
    switch (status) {
    case ProtectionStatus::protected_:
        return QStringLiteral("protected");
    case ProtectionStatus::notProtected:
        return QStringLiteral("notProtected");
    case ProtectionStatus::mismatch:
        return QStringLiteral("mismatch");
    }
    return {};
}

} // namespace Protection
