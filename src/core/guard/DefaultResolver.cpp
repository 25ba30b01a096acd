#include "core/guard/DefaultResolver.h"

#include "core/support/CodePointOrder.h"
#include "platform/HandlerDatabase.h"

#include <algorithm>

DefaultResolver::DefaultResolver(const GuardProfile &profile, const HandlerDatabase &handlers)
    : m_profile(profile), m_handlers(handlers)
{
}

std::optional<QString> DefaultResolver::currentDefaultIdentifier() const
{
    for (const QString &scheme : m_profile.resolutionSchemes) {
        const auto identifier = m_profile.resolution == GuardProfile::Resolution::SchemeDefault
                                    ? schemeDefaultIdentifier(scheme)
                                    : firstApplicationIdentifier(scheme);
        if (identifier)
            return identifier;
    }
    return std::nullopt;
}

std::optional<QString> DefaultResolver::firstApplicationIdentifier(const QString &scheme) const
{
    const QStringList applications = m_handlers.applicationsForScheme(scheme);
    if (applications.isEmpty())
        return std::nullopt;
    const auto application = m_handlers.applicationAt(applications.first());
    if (!application || application->identifier.isEmpty())
        return std::nullopt;
    return application->identifier;
}

std::optional<QString> DefaultResolver::schemeDefaultIdentifier(const QString &scheme) const
{
    const auto location = m_handlers.defaultApplicationForScheme(scheme);
    if (!location)
        return std::nullopt;
    const auto application = m_handlers.applicationAt(*location);
    if (!application || application->identifier.isEmpty())
        return std::nullopt;
    return application->identifier;
}

std::optional<HandlerRecord> DefaultResolver::resolve(QList<HandlerRecord> &installed) const
{
    const auto identifier = currentDefaultIdentifier();
    if (!identifier)
        return std::nullopt;
    const auto known =
        std::find_if(installed.cbegin(), installed.cend(),
                     [&](const HandlerRecord &r) { return r.bundleIdentifier == *identifier; });
    if (known != installed.cend())
        return *known;

    if (const auto location = m_handlers.locationForIdentifier(*identifier)) {
        if (const auto application = m_handlers.applicationAt(*location)) {
            HandlerRecord record(
                application->name.value_or(m_handlers.displayNameAtPath(*location)), *identifier,
                *location, application->version);
            installed.append(record);
            sortByName(installed);
            return record;
        }
    }
    return HandlerRecord(m_profile.unknownName, *identifier);
}

std::optional<HandlerRecord> DefaultResolver::recordAt(const QString &location) const
{
    const auto application = m_handlers.applicationAt(location);
    if (!application || application->identifier.isEmpty())
        return std::nullopt;
    return HandlerRecord(application->name.value_or(m_handlers.displayNameAtPath(location)),
                         application->identifier, location, application->version);
}

void DefaultResolver::sortByName(QList<HandlerRecord> &records)
{
    std::stable_sort(records.begin(), records.end(),
                     [](const HandlerRecord &a, const HandlerRecord &b) {
                         return codePointLess(a.name, b.name);
                     });
}
