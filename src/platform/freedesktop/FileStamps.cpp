#include "platform/freedesktop/FileStamps.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

namespace {

std::int64_t nanoseconds(const statx_timestamp &time)
{
    return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

void FileStamps::note(const QString &path)
{
    if (m_paths.contains(path))
        return;
    m_paths.insert(path);
    QByteArray encoded = QFile::encodeName(path);
    const Stamp stamp = stampOf(encoded);
    m_settled = m_settled && isSettled(stamp);
    m_stamps.emplace_back(std::move(encoded), stamp);
}

bool FileStamps::unchanged() const
{
    if (!m_settled)
        return false;
    for (const auto &[path, stamp] : m_stamps) {
        if (stampOf(path) != stamp)
            return false;
    }
    return true;
}

void FileStamps::clear()
{
    m_paths.clear();
    m_stamps.clear();
    m_settled = true;
}

FileStamps::Stamp FileStamps::stampOf(const QByteArray &path)
{
    struct statx info {};
    const unsigned mask =
        STATX_TYPE | STATX_MODE | STATX_INO | STATX_SIZE | STATX_MTIME | STATX_CTIME;
    if (statx(AT_FDCWD, path.constData(), 0, mask, &info) != 0)
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
