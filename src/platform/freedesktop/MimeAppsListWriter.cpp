#include "platform/freedesktop/MimeAppsListWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/statvfs.h>
#include <unistd.h>

namespace {

// The file a write must replace: the end of a symlink chain (which may not exist yet).
QString writeTarget(const QString &path)
{
    QFileInfo info(path);
    for (int hops = 0; info.isSymLink() && hops < 32; ++hops) {
        const QString target = info.symLinkTarget();
        if (target.isEmpty())
            break;
        info = QFileInfo(target);
    }
    return info.absoluteFilePath();
}

bool onReadOnlyFileSystem(const QString &dir)
{
    struct statvfs fs {};
    return statvfs(QFile::encodeName(dir).constData(), &fs) == 0 && (fs.f_flag & ST_RDONLY) != 0;
}

// Writes `bytes` to a new file named after `target`, never over an existing one, and syncs
// it; returns its path, or an empty string when no copy could be made.
QString keepCopy(const QString &target, const QString &suffix, const QByteArray &bytes,
                 QFileDevice::Permissions mode)
{
    for (int n = 1; n <= 100; ++n) {
        const QString name = target + suffix + (n > 1 ? u'-' + QString::number(n) : QString());
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, mode)) {
            if (file.exists())
                continue;
            return {};
        }
        if (file.write(bytes) == bytes.size() && file.flush() && ::fsync(file.handle()) == 0)
            return name;
        file.remove();
        return {};
    }
    return {};
}

} // namespace

MimeAppsListWriter::Result
MimeAppsListWriter::update(const QString &path, const std::function<Edit(const QByteArray &)> &edit,
                           bool createIfMissing)
{
    const QString target = writeTarget(path);
    const QFileInfo info(target);
    QByteArray before;
    if (info.exists()) {
        if (!(info.permissions() & QFileDevice::WriteOwner))
            return {NotWritable};
        QFile file(target);
        if (!file.open(QIODevice::ReadOnly))
            return {NotWritable};
        before = file.readAll();
    } else if (!createIfMissing) {
        return {Unchanged};
    }
    const Edit after = edit(before);
    if (info.exists() && after.content == before)
        return {Unchanged};

    const QString dir = info.absolutePath();
    if (!QDir().mkpath(dir))
        return {onReadOnlyFileSystem(QFileInfo(dir).absolutePath()) ? ReadOnlyFileSystem : Failed};
    if (onReadOnlyFileSystem(dir))
        return {ReadOnlyFileSystem};
    Result result;
    if (info.exists() && !after.keepOriginalSuffix.isEmpty()) {
        // The copy is whole before the list is replaced, so a crash leaves one or the other.
        result.keptCopy = keepCopy(target, after.keepOriginalSuffix, before, info.permissions());
        if (result.keptCopy.isEmpty())
            return {Failed};
    }
    QSaveFile file(target);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly))
        return {Failed};
    if (file.write(after.content) != after.content.size() || !file.commit())
        return {Failed};
    return result;
}
