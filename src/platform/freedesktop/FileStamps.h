#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

// What files and folders looked like when they were read: device, inode, type, size, and
// modification and change times to the nanosecond, or that nothing was there. A replacement
// by rename, an edit in place, a chmod and an entry added to or taken from a folder all give
// a different stamp. Note a path before reading it, so a change made while it is read shows.
class FileStamps {
public:
    // Keeps the path's stamp as it is now; a path noted before is left as it was noted.
    void note(const QString &path);
    // Whether every noted path still has its stamp. A path written in the same clock tick
    // in which it was noted can't be told from a second write in that tick, so it counts as
    // changed.
    bool unchanged() const;
    void clear();
    bool isEmpty() const { return m_stamps.empty(); }

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

    static Stamp stampOf(const QByteArray &path);
    static bool isSettled(const Stamp &stamp);

    QSet<QString> m_paths;
    std::vector<std::pair<QByteArray, Stamp>> m_stamps;
    bool m_settled = true;
};
