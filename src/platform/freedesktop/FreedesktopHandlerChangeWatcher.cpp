#include "platform/freedesktop/FreedesktopHandlerChangeWatcher.h"

#include "platform/freedesktop/DesktopFileLocator.h"
#include "platform/freedesktop/DesktopLinkStore.h"
#include "platform/freedesktop/XdgDirectories.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>

#include <algorithm>

namespace {

void appendUnique(QStringList &list, const QString &item)
{
    if (!list.contains(item))
        list.append(item);
}

// The directory to watch for a path: its own directory, or the nearest one that exists, so
// that a file made later in a directory made later is still seen.
QString existingDirectoryOf(const QString &path)
{
    QFileInfo dir(QFileInfo(path).absolutePath());
    while (!dir.isDir() && !dir.isRoot())
        dir = QFileInfo(dir.absolutePath());
    return dir.absoluteFilePath();
}

void digestFile(QCryptographicHash &hash, const QString &path)
{
    hash.addData(QFile::encodeName(path));
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        hash.addData("\x01");
        hash.addData(file.readAll());
    } else {
        hash.addData("\x00");
    }
}

} // namespace

FreedesktopHandlerChangeWatcher::~FreedesktopHandlerChangeWatcher() = default;

QStringList FreedesktopHandlerChangeWatcher::decidingFiles(const QStringList &schemes,
                                                           const QStringList &identifiers)
{
    QStringList files;
    const QStringList desktops = XdgDirectories::currentDesktops();
    for (const XdgDirectories::Place &place : XdgDirectories::mimeappsPlaces()) {
        for (const QString &desktop : desktops)
            appendUnique(files, place.path + u'/' + desktop + QStringLiteral("-mimeapps.list"));
        appendUnique(files, place.path + QStringLiteral("/mimeapps.list"));
        if (place.holdsApplications) {
            appendUnique(files, place.path + QStringLiteral("/defaults.list"));
            appendUnique(files, place.path + QStringLiteral("/mimeinfo.cache"));
        }
    }
    if (const auto store = DesktopLinkStore::current()) {
        if (std::any_of(schemes.cbegin(), schemes.cend(),
                        [&](const QString &scheme) { return store->decides(scheme); })) {
            for (const QString &file : store->files())
                appendUnique(files, file);
        }
    }
    for (const QString &identifier : identifiers) {
        if (identifier.isEmpty() || identifier.contains(u'/') || identifier.startsWith(u'!'))
            continue;
        const QString desktopId = identifier + QStringLiteral(".desktop");
        for (const QString &dir : XdgDirectories::applicationsDirs()) {
            const QString nested = DesktopFileLocator::fileInDirectory(dir, desktopId);
            appendUnique(files, nested.isEmpty() ? dir + u'/' + desktopId : nested);
        }
    }
    return files;
}

void FreedesktopHandlerChangeWatcher::watch(const QStringList &schemes,
                                            const QStringList &identifiers)
{
    m_files = decidingFiles(schemes, identifiers);
    QStringList paths;
    for (const QString &file : std::as_const(m_files)) {
        const QFileInfo info(file);
        if (info.exists())
            appendUnique(paths, file);
        // A directory of the store is watched for its files' edits as well.
        if (info.isDir()) {
            for (const QString &name : QDir(file).entryList(QDir::Files))
                appendUnique(paths, file + u'/' + name);
        }
        appendUnique(paths, existingDirectoryOf(file));
    }
    if (!m_watcher) {
        m_watcher = new QFileSystemWatcher(this);
        connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &HandlerChangeWatcher::touched);
        connect(m_watcher, &QFileSystemWatcher::directoryChanged, this,
                &HandlerChangeWatcher::touched);
    }
    // All anew: a watch on a file that was renamed over or removed is dead, whatever the
    // watcher still lists.
    const QStringList watched = m_watcher->files() + m_watcher->directories();
    if (!watched.isEmpty())
        m_watcher->removePaths(watched);
    m_watcher->addPaths(paths);
}

void FreedesktopHandlerChangeWatcher::stop()
{
    delete m_watcher;
    m_watcher = nullptr;
    m_files.clear();
}

QByteArray FreedesktopHandlerChangeWatcher::contentsDigest() const
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString &path : m_files) {
        if (QFileInfo(path).isDir()) {
            const QDir dir(path);
            for (const QString &name : dir.entryList(QDir::Files, QDir::Name))
                digestFile(hash, dir.filePath(name));
        } else {
            digestFile(hash, path);
        }
    }
    return hash.result();
}
