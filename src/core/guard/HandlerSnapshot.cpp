#include "core/guard/HandlerSnapshot.h"

namespace {

// The kept answer for `key`, asked for the first time through `ask`.
template <typename Answer, typename Ask>
Answer remembered(QHash<QString, Answer> &answers, const QString &key, Ask ask)
{
    auto it = answers.constFind(key);
    if (it == answers.constEnd())
        it = answers.insert(key, ask());
    return *it;
}

} // namespace

HandlerSnapshot::HandlerSnapshot(const HandlerDatabase &handlers)
    : m_handlers(handlers), m_hold(handlers.holdReading())
{
}

QStringList HandlerSnapshot::knownIdentifiers(Kind kind) const
{
    return m_handlers.knownIdentifiers(kind);
}

QStringList HandlerSnapshot::applicationsForScheme(const QString &scheme) const
{
    return remembered(m_applications, scheme,
                      [&] { return m_handlers.applicationsForScheme(scheme); });
}

std::optional<QString> HandlerSnapshot::defaultApplicationForScheme(const QString &scheme) const
{
    return remembered(m_defaults, scheme,
                      [&] { return m_handlers.defaultApplicationForScheme(scheme); });
}

std::optional<QString> HandlerSnapshot::locationForIdentifier(const QString &identifier) const
{
    return remembered(m_locations, identifier,
                      [&] { return m_handlers.locationForIdentifier(identifier); });
}

std::optional<HandlerDatabase::Application>
HandlerSnapshot::applicationAt(const QString &location) const
{
    return remembered(m_applicationsAt, location,
                      [&] { return m_handlers.applicationAt(location); });
}

QString HandlerSnapshot::displayNameAtPath(const QString &path) const
{
    return m_handlers.displayNameAtPath(path);
}

int HandlerSnapshot::setDefaultHandler(const QString &, const QString &)
{
    return -1;
}
