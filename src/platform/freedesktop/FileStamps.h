#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

// Whether files and folders are still as they were when they were read. A folder and the
// parent folder of a file are watched through inotify, which tells of every write, rename,
// chmod and entry added or taken in them without a look at the files; the folders' own
// identity (device and inode) is compared at each check, so a folder replaced or moved
// away shows too. A path without a folder to watch (or where inotify is unavailable) keeps
// a stamp: type, size, and modification and change times to the nanosecond. Note a path
// before reading it, so a change made while it is read shows.
class FileStamps {
public:
    FileStamps() = default;
    ~FileStamps();
    FileStamps(const FileStamps &) = delete;
    FileStamps &operator=(const FileStamps &) = delete;

    // Starts following the path as it is now; a path noted before is left as it was.
    void note(const QString &path);
    // Whether every noted path is as it was noted. A stamped file written in the clock tick
    // in which it was noted can't be told from a second write in that tick, so it counts as
    // changed.
    bool unchanged();
    void clear();

private:
    struct Stamp {
        bool exists = false;
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::uint32_t mode = 0;
        std::int64_t size = 0;
        std::int64_t modified = 0; // nanoseconds since the epoch
        std::int64_t changed = 0;
        bool operator==(const Stamp &) const = default;
    };
    struct Watch {
        bool whole = false;     // the folder itself was noted: any change in it counts
        QSet<QByteArray> names; // else the names of the noted files in it
    };

    static Stamp stampOf(const QByteArray &path, bool followLinks = true);
    static bool isSettled(const Stamp &stamp);
    bool watch(const QByteArray &folder, const QByteArray &name);
    void keep(const QByteArray &path, bool identityOnly);
    bool eventsTellOfChange();

    QSet<QString> m_paths;
    int m_inotify = -1;
    bool m_inotifyTried = false;
    bool m_changed = false;
    QHash<int, Watch> m_watches;
    QHash<QByteArray, int> m_descriptors;
    QSet<QByteArray> m_kept;
    // Folders are compared by identity alone; their contents are watched.
    std::vector<std::pair<QByteArray, Stamp>> m_identities;
    std::vector<std::pair<QByteArray, Stamp>> m_stamps;
    bool m_settled = true;
};
