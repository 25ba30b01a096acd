#pragma once

#include "platform/HandlerDatabase.h"

#include <QHash>
#include <QMutex>
#include <QSemaphore>
#include <QStringList>

#include <atomic>

// An in-memory handler database: applications at locations, schemes with ordered
// handler lists. Setting a default moves the application to the front of the scheme's
// list, unless the scheme is marked to refuse.
class FakeHandlerDatabase final : public HandlerDatabase {
public:
    // Installs an application; its location is "/apps/<identifier>.desktop".
    QString install(const QString &identifier, std::optional<QString> name,
                    std::optional<QString> version = {})
    {
        const QString location = u"/apps/" + identifier + u".desktop";
        m_apps.insert(location, Application{identifier, std::move(name), std::move(version)});
        return location;
    }

    void setHandlers(const QString &scheme, const QStringList &identifiers)
    {
        QMutexLocker lock(&m_mutex);
        m_schemes[scheme] = identifiers;
    }
    void refuse(const QString &scheme) { m_refused.append(scheme); }
    void setKnown(Kind kind, const QStringList &identifiers) { m_known[kind] = identifiers; }
    QStringList setCalls() const
    {
        QMutexLocker lock(&m_mutex);
        return m_setCalls;
    }

    // How often a scheme's handlers were looked up: each reading of a default does so once.
    int schemeReads() const { return m_schemeReads; }

    // Holds the next write at its start until released, as a slow system would.
    void holdWrites() { m_held = true; }
    void waitUntilWriting() { m_writing.acquire(); }
    void releaseWrites()
    {
        m_held = false;
        m_release.release();
    }

    QStringList knownIdentifiers(Kind kind) const override { return m_known.value(kind); }
    QStringList applicationsForScheme(const QString &scheme) const override
    {
        QMutexLocker lock(&m_mutex);
        ++m_schemeReads;
        QStringList locations;
        for (const QString &identifier : m_schemes.value(scheme))
            locations.append(u"/apps/" + identifier + u".desktop");
        return locations;
    }
    std::optional<QString> defaultApplicationForScheme(const QString &scheme) const override
    {
        const QStringList all = applicationsForScheme(scheme);
        return all.isEmpty() ? std::nullopt : std::optional<QString>(all.first());
    }
    std::optional<QString> locationForIdentifier(const QString &identifier) const override
    {
        const QString location = u"/apps/" + identifier + u".desktop";
        return m_apps.contains(location) ? std::optional<QString>(location) : std::nullopt;
    }
    std::optional<Application> applicationAt(const QString &location) const override
    {
        if (const auto it = m_apps.constFind(location); it != m_apps.cend())
            return *it;
        // A scheme may name an application that is gone: its id is still readable
        // from the location, as a desktop file id is.
        if (location.startsWith(u"/apps/") && location.endsWith(u".desktop"))
            return Application{location.mid(6, location.size() - 14), std::nullopt, std::nullopt};
        return std::nullopt;
    }
    QString displayNameAtPath(const QString &path) const override
    {
        return path.section(u'/', -1).chopped(8);
    }
    int setDefaultHandler(const QString &scheme, const QString &identifier) override
    {
        if (m_held) {
            m_writing.release();
            m_release.acquire();
        }
        QMutexLocker lock(&m_mutex);
        m_setCalls.append(scheme + u'=' + identifier);
        if (m_refused.contains(scheme))
            return -54;
        QStringList &list = m_schemes[scheme];
        list.removeAll(identifier);
        list.prepend(identifier);
        return 0;
    }

private:
    mutable QMutex m_mutex;
    QHash<QString, Application> m_apps;
    QHash<QString, QStringList> m_schemes;
    QHash<Kind, QStringList> m_known;
    QStringList m_refused;
    QStringList m_setCalls;
    mutable int m_schemeReads = 0;
    std::atomic<bool> m_held = false;
    QSemaphore m_writing;
    QSemaphore m_release;
};
