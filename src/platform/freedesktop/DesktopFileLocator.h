#pragma once

#include "platform/freedesktop/DesktopEntry.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// Maps desktop file ids ("firefox-esr.desktop", "kde4-foo.desktop") to files in the
// applications directories and back. A file in a subdirectory takes the subdirectory path as
// a prefix with '-' for '/': applications/kde4/foo.desktop has the id kde4-foo.desktop.
class DesktopFileLocator {
public:
    struct Resolved {
        QString path;
        DesktopEntry entry;
    };

    // Told of each entry before it is read, of each subdirectory looked into and of the
    // folder of each program an entry names by its path.
    using Observer = std::function<void(const QString &path)>;

    // How a name is looked for: a look at the path, or the folder's listing, read once for
    // a locator asked about many names.
    enum class Lookup { byName, byListing };

    explicit DesktopFileLocator(QStringList applicationsDirs, Observer observer = {},
                                Lookup lookup = Lookup::byName);

    const QStringList &directories() const { return m_dirs; }

    // The file with this id in one directory, or an empty string. Where both a plain file and
    // one in a subdirectory carry the id, the plain file is taken.
    static QString fileInDirectory(const QString &dir, const QString &desktopId);
    // Whether a directory earlier than the one at `index` has a file with this id.
    bool isShadowed(const QString &desktopId, qsizetype index) const;
    // The file GLib uses for the id: the first directory's file with it that is launchable
    // (an unusable override in a higher directory lets a lower one through, as in GLib).
    std::optional<Resolved> resolve(const QString &desktopId) const;
    // The id of a file inside one of the directories; empty when it lies outside them all.
    QString desktopIdOf(const QString &filePath) const;
    // The launchable entry whose Exec runs `program`: among `preferredIds` first (in order),
    // then any entry of the directories (by id).
    std::optional<Resolved> entryRunning(const QString &program,
                                         const QStringList &preferredIds) const;

private:
    struct Listing {
        QSet<QByteArray> files;
        QSet<QByteArray> folders;
    };

    static Listing list(const QString &dir);
    QString findIn(const QString &dir, const QString &desktopId) const;
    QString findBelow(const QString &dir, const QString &name) const;
    bool holds(const QString &dir, const QString &name, bool folder) const;
    void observePrograms(const DesktopEntry &entry) const;

    QStringList m_dirs;
    Observer m_observer;
    Lookup m_lookup;
    mutable QHash<QString, Listing> m_listings;
};
