#include "platform/freedesktop/FileStamps.h"

#include <QFile>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace {

constexpr std::uint32_t changes = IN_MODIFY | IN_ATTRIB | IN_CLOSE_WRITE | IN_MOVED_FROM
                                  | IN_MOVED_TO | IN_CREATE | IN_DELETE | IN_DELETE_SELF
                                  | IN_MOVE_SELF;
// The watch is gone, or events were lost.
constexpr std::uint32_t lost =
    IN_Q_OVERFLOW | IN_IGNORED | IN_UNMOUNT | IN_DELETE_SELF | IN_MOVE_SELF;

std::int64_t nanoseconds(const statx_timestamp &time)
{
    return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

FileStamps::~FileStamps()
{
    clear();
}

void FileStamps::note(const QString &path)
{
    if (m_paths.contains(path))
        return;
    m_paths.insert(path);
    const QByteArray encoded = QFile::encodeName(path);
    const Stamp own = stampOf(encoded, false);
    // What a link points to changes where no watch of the link's folder sees it.
    if (S_ISLNK(own.mode))
        keep(encoded, false);
    if (S_ISDIR(own.exists && S_ISLNK(own.mode) ? stampOf(encoded).mode : own.mode)) {
        if (watch(encoded, {}))
            return;
    } else if (const qsizetype slash = encoded.lastIndexOf('/'); slash > 0) {
        if (watch(encoded.first(slash), encoded.sliced(slash + 1)))
            return;
    }
    keep(encoded, false);
}

// Watches a folder for a change of the named entry, or of any entry when `name` is empty.
bool FileStamps::watch(const QByteArray &folder, const QByteArray &name)
{
    if (!m_inotifyTried) {
        m_inotifyTried = true;
        m_inotify = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    }
    if (m_inotify < 0)
        return false;
    int descriptor = m_descriptors.value(folder, -1);
    if (descriptor < 0) {
        descriptor = inotify_add_watch(m_inotify, folder.constData(), changes | IN_ONLYDIR);
        if (descriptor < 0)
            return false;
        m_descriptors.insert(folder, descriptor);
    }
    Watch &watch = m_watches[descriptor];
    if (name.isEmpty())
        watch.whole = true;
    else
        watch.names.insert(name);
    keep(folder, true);
    return true;
}

void FileStamps::keep(const QByteArray &path, bool identityOnly)
{
    if (identityOnly && m_kept.contains(path))
        return;
    const Stamp stamp = stampOf(path);
    if (identityOnly) {
        m_kept.insert(path);
        m_identities.emplace_back(path, stamp);
        return;
    }
    m_settled = m_settled && isSettled(stamp);
    m_stamps.emplace_back(path, stamp);
}

bool FileStamps::unchanged()
{
    m_changed = m_changed || !m_settled || eventsTellOfChange();
    if (m_changed)
        return false;
    for (const auto &[path, stamp] : m_identities) {
        const Stamp now = stampOf(path);
        if (now.exists != stamp.exists || now.device != stamp.device || now.inode != stamp.inode)
            return false;
    }
    for (const auto &[path, stamp] : m_stamps) {
        if (stampOf(path) != stamp)
            return false;
    }
    return true;
}

bool FileStamps::eventsTellOfChange()
{
    if (m_inotify < 0)
        return false;
    alignas(inotify_event) char buffer[4096];
    bool changed = false;
    for (;;) {
        const ssize_t size = read(m_inotify, buffer, sizeof buffer);
        if (size <= 0)
            return changed;
        for (ssize_t at = 0; at < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer + at);
            at += ssize_t(sizeof(inotify_event)) + event->len;
            const auto watch = m_watches.constFind(event->wd);
            changed = changed || (event->mask & lost) || watch == m_watches.cend() || watch->whole
                      || watch->names.contains(QByteArray(event->name));
        }
    }
}

void FileStamps::clear()
{
    if (m_inotify >= 0)
        close(m_inotify);
    m_inotify = -1;
    m_inotifyTried = false;
    m_changed = false;
    m_paths.clear();
    m_watches.clear();
    m_descriptors.clear();
    m_kept.clear();
    m_identities.clear();
    m_stamps.clear();
    m_settled = true;
}

FileStamps::Stamp FileStamps::stampOf(const QByteArray &path, bool followLinks)
{
    struct statx info {};
    const unsigned mask =
        STATX_TYPE | STATX_MODE | STATX_INO | STATX_SIZE | STATX_MTIME | STATX_CTIME;
    const int flags = followLinks ? 0 : AT_SYMLINK_NOFOLLOW;
    if (statx(AT_FDCWD, path.constData(), flags, mask, &info) != 0)
        return {};
    return {true,
            (std::uint64_t(info.stx_dev_major) << 32) | info.stx_dev_minor,
            info.stx_ino,
            info.stx_mode,
            std::int64_t(info.stx_size),
            nanoseconds(info.stx_mtime),
            nanoseconds(info.stx_ctime)};
}

// The kernel stamps a write with the coarse clock's time, so a write after this tick gets a
// later time than one before it, while two in the tick of the note may carry the same time.
// A file system that keeps whole seconds (nothing below the second) is given two seconds.
bool FileStamps::isSettled(const Stamp &stamp)
{
    if (!stamp.exists)
        return true;
    timespec now{};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    const std::int64_t latest = std::max(stamp.modified, stamp.changed);
    constexpr std::int64_t second = 1'000'000'000;
    if (latest % second == 0)
        return latest + 2 * second <= nanoseconds(now);
    return latest < nanoseconds(now);
}
