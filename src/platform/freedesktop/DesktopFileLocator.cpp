#include "platform/freedesktop/DesktopFileLocator.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

const QString suffix = QStringLiteral(".desktop");

// `name` is what is left of the id below `dir`; each '-' may stand for a subdirectory.
QString findBelow(const QString &dir, const QString &name)
{
    const QString direct = dir + u'/' + name;
    if (QFileInfo(direct).isFile())
        return direct;
    for (qsizetype dash = name.indexOf(u'-'); dash > 0; dash = name.indexOf(u'-', dash + 1)) {
        const QString subdir = dir + u'/' + name.first(dash);
        if (!QFileInfo(subdir).isDir())
            continue;
        const QString found = findBelow(subdir, name.sliced(dash + 1));
        if (!found.isEmpty())
            return found;
    }
    return {};
}

} // namespace

DesktopFileLocator::DesktopFileLocator(QStringList applicationsDirs)
    : m_dirs(std::move(applicationsDirs))
{
}

QString DesktopFileLocator::fileInDirectory(const QString &dir, const QString &desktopId)
{
    if (!desktopId.endsWith(suffix) || desktopId.contains(u'/') || desktopId.startsWith(u'.'))
        return {};
    return findBelow(dir, desktopId);
}

bool DesktopFileLocator::isShadowed(const QString &desktopId, qsizetype index) const
{
    for (qsizetype i = 0; i < index && i < m_dirs.size(); ++i) {
        if (!fileInDirectory(m_dirs[i], desktopId).isEmpty())
            return true;
    }
    return false;
}

std::optional<DesktopFileLocator::Resolved>
DesktopFileLocator::resolve(const QString &desktopId) const
{
    for (const QString &dir : m_dirs) {
        const QString file = fileInDirectory(dir, desktopId);
        if (file.isEmpty())
            continue;
        const auto entry = DesktopEntry::read(file);
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
