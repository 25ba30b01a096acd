#include "platform/freedesktop/MimeAppsListWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/statvfs.h>

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

} // namespace

int MimeAppsListWriter::update(const QString &path,
                               const std::function<QByteArray(const QByteArray &)> &edit,
                               bool createIfMissing)
{
    const QString target = writeTarget(path);
    const QFileInfo info(target);
    QByteArray before;
    if (info.exists()) {
        if (!(info.permissions() & QFileDevice::WriteOwner))
            return NotWritable;
        QFile file(target);
        if (!file.open(QIODevice::ReadOnly))
            return NotWritable;
        before = file.readAll();
    } else if (!createIfMissing) {
        return Unchanged;
    }
    const QByteArray after = edit(before);
    if (info.exists() && after == before)
        return Unchanged;

    const QString dir = info.absolutePath();
    if (!QDir().mkpath(dir))
        return onReadOnlyFileSystem(QFileInfo(dir).absolutePath()) ? ReadOnlyFileSystem : Failed;
    if (onReadOnlyFileSystem(dir))
        return ReadOnlyFileSystem;
    QSaveFile file(target);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly))
        return Failed;
    if (file.write(after) != after.size() || !file.commit())
        return Failed;
    return Written;
}
