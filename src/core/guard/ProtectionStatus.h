#pragma once

#include "core/guard/HandlerRecord.h"

#include <QString>

#include <optional>

// How well a guard, or the whole program, is doing its work.
enum class ProtectionStatus { protected_, notProtected, mismatch };

namespace Protection {

// A guard that works but sees a default other than its target is a mismatch; one that
// doesn't work is not protected, mismatch or not.
ProtectionStatus statusOf(const std::optional<HandlerRecord> &current,
                          const std::optional<HandlerRecord> &target, bool isProtected);
// Not protected outranks mismatch.
ProtectionStatus overall(ProtectionStatus browser, ProtectionStatus email);
// "protected", "notProtected", "mismatch".
QString name(ProtectionStatus status);

} // namespace Protection
