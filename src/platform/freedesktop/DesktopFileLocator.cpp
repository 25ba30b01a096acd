#include "platform/freedesktop/DesktopFileLocator.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <dirent.h>
#include <sys/stat.h>

namespace {

const QString suffix = QStringLiteral(".desktop");

} // namespace

DesktopFileLocator::DesktopFileLocator(QStringList applicationsDirs, Observer observer,
                                       Lookup lookup)
    : m_dirs(std::move(applicationsDirs)), m_observer(std::move(observer)), m_lookup(lookup)
{
}

// `name` is what is left of the id below `dir`; each '-' may stand for a subdirectory.
QString DesktopFileLocator::findBelow(const QString &dir, const QString &name) const
{
    if (holds(dir, name, false))
        return dir + u'/' + name;
    for (qsizetype dash = name.indexOf(u'-'); dash > 0; dash = name.indexOf(u'-', dash + 1)) {
        if (!holds(dir, name.first(dash), true))
            continue;
        const QString subdir = dir + u'/' + name.first(dash);
        if (m_observer)
            m_observer(subdir);
        const QString found = findBelow(subdir, name.sliced(dash + 1));
        if (!found.isEmpty())
            return found;
    }
    return {};
}

// Whether the folder holds a file (or a folder) of that name, links followed.
bool DesktopFileLocator::holds(const QString &dir, const QString &name, bool folder) const
{
    if (m_lookup == Lookup::byName) {
        const QFileInfo info(dir + u'/' + name);
        return folder ? info.isDir() : info.isFile();
    }
    auto listing = m_listings.constFind(dir);
    if (listing == m_listings.cend())
        listing = m_listings.insert(dir, list(dir));
    return (folder ? listing->folders : listing->files).contains(QFile::encodeName(name));
}

// Files are kept only when they may be desktop entries.
DesktopFileLocator::Listing DesktopFileLocator::list(const QString &dir)
{
    Listing listing;
    const QByteArray path = QFile::encodeName(dir);
    DIR *handle = opendir(path.constData());
    if (!handle)
        return listing;
    while (const dirent *entry = readdir(handle)) {
        const QByteArray name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        bool isFolder = entry->d_type == DT_DIR;
        bool isFile = entry->d_type == DT_REG;
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) {
            struct stat info {};
            if (stat(QByteArray(path + '/' + name).constData(), &info) != 0)
                continue;
            isFolder = S_ISDIR(info.st_mode);
            isFile = S_ISREG(info.st_mode);
        }
        if (isFolder)
            listing.folders.insert(name);
        else if (isFile && name.endsWith(".desktop"))
            listing.files.insert(name);
    }
    closedir(handle);
    return listing;
}

QString DesktopFileLocator::fileInDirectory(const QString &dir, const QString &desktopId)
{
    return DesktopFileLocator(QStringList()).findIn(dir, desktopId);
}

QString DesktopFileLocator::findIn(const QString &dir, const QString &desktopId) const
{
    if (!desktopId.endsWith(suffix) || desktopId.contains(u'/') || desktopId.startsWith(u'.'))
        return {};
    return findBelow(dir, desktopId);
}

bool DesktopFileLocator::isShadowed(const QString &desktopId, qsizetype index) const
{
    for (qsizetype i = 0; i < index && i < m_dirs.size(); ++i) {
        if (!findIn(m_dirs[i], desktopId).isEmpty())
            return true;
    }
    return false;
}

// Whether a program is there shows in the folder it is looked for in.
void DesktopFileLocator::observePrograms(const DesktopEntry &entry) const
{
    for (const auto &program : {std::optional(entry.tryExec()), entry.execProgram()}) {
        if (!program || program->isEmpty())
            continue;
        if (program->contains(u'/')) {
            m_observer(QFileInfo(*program).absolutePath());
            continue;
        }
        for (const QString &dir : DesktopEntry::searchPath())
            m_observer(dir);
    }
}

std::optional<DesktopFileLocator::Resolved>
DesktopFileLocator::resolve(const QString &desktopId) const
{
    for (const QString &dir : m_dirs) {
        const QString file = findIn(dir, desktopId);
        if (file.isEmpty())
            continue;
        if (m_observer)
            m_observer(file);
        const auto entry = DesktopEntry::read(file);
        if (entry && m_observer)
            observePrograms(*entry);
        if (entry && entry->isLaunchable())
            return Resolved{file, *entry};
    }
    return std::nullopt;
}

QString DesktopFileLocator::desktopIdOf(const QString &filePath) const
{
    const QString path = QDir::cleanPath(QFileInfo(filePath).absoluteFilePath());
    if (!path.endsWith(suffix))
        return {};
    for (const QString &dir : m_dirs) {
        const QString prefix = QDir::cleanPath(dir) + u'/';
        if (path.startsWith(prefix))
            return path.sliced(prefix.size()).replace(u'/', u'-');
    }
    return {};
}

std::optional<DesktopFileLocator::Resolved>
DesktopFileLocator::entryRunning(const QString &program, const QStringList &preferredIds) const
{
    const auto runs = [&](const std::optional<Resolved> &resolved) {
        if (!resolved)
            return false;
        const auto exec = resolved->entry.execProgram();
        return exec && DesktopEntry::isSameProgram(*exec, program);
    };
    for (const QString &id : preferredIds) {
        if (auto resolved = resolve(id); runs(resolved))
            return resolved;
    }
    QStringList ids;
    for (const QString &dir : m_dirs) {
        QDirIterator it(dir, {QStringLiteral("*.desktop")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString id = desktopIdOf(it.next());
            if (!id.isEmpty() && !ids.contains(id) && !preferredIds.contains(id))
                ids.append(id);
        }
    }
    ids.sort();
    for (const QString &id : std::as_const(ids)) {
        if (auto resolved = resolve(id); runs(resolved))
            return resolved;
    }
    return std::nullopt;
}
