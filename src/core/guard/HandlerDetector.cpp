#include "core/guard/HandlerDetector.h"

#include "foundation/Console.h"
#include "platform/HandlerDatabase.h"

#include <QSet>

HandlerDetector::HandlerDetector(const GuardProfile &profile, const HandlerDatabase &handlers)
    : m_profile(profile), m_handlers(handlers), m_resolver(profile, handlers)
{
}

QList<HandlerRecord> HandlerDetector::detect() const
{
    QList<HandlerRecord> result;
    QSet<QString> seen;
    for (const QString &identifier : m_handlers.knownIdentifiers(m_profile.applicationKind)) {
        const auto record = installedRecord(identifier);
        if (!record || seen.contains(record->bundleIdentifier))
            continue;
        result.append(*record);
        seen.insert(record->bundleIdentifier);
        Console::line(u"✅ Found: " + record->name);
    }
    for (const QString &identifier : registeredHandlers()) {
        if (seen.contains(identifier))
            continue;
        const auto record = installedRecord(identifier);
        if (!record || !isLikely(*record))
            continue;
        result.append(*record);
        seen.insert(record->bundleIdentifier);
    }
    DefaultResolver::sortByName(result);
    Console::line(m_profile.totalPrefix + QString::number(result.size()));
    return result;
}

bool HandlerDetector::isLikely(const HandlerRecord &record) const
{
    const QString name = record.name.toLower();
    for (const QString &word : m_profile.exclusionWords) {
        if (name.contains(word))
            return false;
    }
    for (const QString &keyword : m_profile.keywords) {
        if (name.contains(keyword))
            return true;
    }
    return false;
}

QStringList HandlerDetector::registeredHandlers() const
{
    QStringList identifiers;
    // Schemes mostly share their handlers; each is read once.
    QSet<QString> locations;
    for (const QString &scheme : m_profile.registeredSchemes) {
        for (const QString &location : m_handlers.applicationsForScheme(scheme)) {
            if (locations.contains(location))
                continue;
            locations.insert(location);
            const auto application = m_handlers.applicationAt(location);
            if (application && !application->identifier.isEmpty()
                && !identifiers.contains(application->identifier))
                identifiers.append(application->identifier);
        }
    }
    return identifiers;
}

std::optional<HandlerRecord> HandlerDetector::installedRecord(const QString &identifier) const
{
    const auto location = m_handlers.locationForIdentifier(identifier);
    if (!location)
        return std::nullopt;
    return m_resolver.recordAt(*location);
}
