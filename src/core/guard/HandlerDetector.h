#pragma once

#include "core/guard/DefaultResolver.h"
#include "core/guard/GuardProfile.h"
#include "core/guard/HandlerRecord.h"

#include <QList>
#include <QStringList>

class HandlerDatabase;

// Finds the applications a guard offers as targets: the platform's known identifiers of
// the profile's kind that are installed, then the registered handlers of its schemes whose
// name looks right. Sorted by name, by code points.
class HandlerDetector {
public:
    HandlerDetector(const GuardProfile &profile, const HandlerDatabase &handlers);

    QList<HandlerRecord> detect() const;

    // The name test alone: no exclusion word anywhere in the lower-cased name, and a
    // keyword somewhere in it.
    bool isLikely(const HandlerRecord &record) const;
    // Identifiers registered for the profile's schemes, first seen first, no repeats.
    QStringList registeredHandlers() const;

private:
    std::optional<HandlerRecord> installedRecord(const QString &identifier) const;

    const GuardProfile &m_profile;
    const HandlerDatabase &m_handlers;
    DefaultResolver m_resolver;
};
