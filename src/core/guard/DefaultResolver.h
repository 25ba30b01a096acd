#pragma once

#include "core/guard/GuardProfile.h"
#include "core/guard/HandlerRecord.h"

#include <QList>
#include <QString>

#include <optional>

class HandlerDatabase;

// Answers which application the system uses now for a guard's schemes, and turns
// applications into records. Stateless; every answer is asked of the system afresh.
class DefaultResolver {
public:
    DefaultResolver(const GuardProfile &profile, const HandlerDatabase &handlers);

    // The identifier of the current default: for web links https first and http only
    // when https has no handler; for mail the mailto default directly.
    std::optional<QString> currentDefaultIdentifier() const;

    // The record of the current default. Looks in `installed` first; an application
    // missing from it but readable is appended to it (which is then re-sorted by name);
    // one that can't be read gives the "Unknown ..." record, which is not appended.
    std::optional<HandlerRecord> resolve(QList<HandlerRecord> &installed) const;

    // A record for the application at `location`; nothing without an identifier.
    std::optional<HandlerRecord> recordAt(const QString &location) const;

    // Sorts ascending by name, by code points.
    static void sortByName(QList<HandlerRecord> &records);

private:
    std::optional<QString> firstApplicationIdentifier(const QString &scheme) const;
    std::optional<QString> schemeDefaultIdentifier(const QString &scheme) const;

    const GuardProfile &m_profile;
    const HandlerDatabase &m_handlers;
};
