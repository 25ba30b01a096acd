#include "platform/freedesktop/AutostartLoginItem.h"

#include "platform/freedesktop/DesktopEntry.h"
#include "platform/freedesktop/XdgDirectories.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <sys/statvfs.h>

namespace {

QString failure(const QString &path, int code)
{
    return path + u": " + qt_error_string(code);
}

bool onReadOnlyFileSystem(const QString &dir)
{
    struct statvfs fs {};
    return statvfs(QFile::encodeName(dir).constData(), &fs) == 0 && (fs.f_flag & ST_RDONLY) != 0;
}

// Why the folder cannot take a new or removed file, if it cannot. The mode bits are
// checked here, as the system would not refuse root.
std::optional<QString> unwritableFolder(const QString &dir)
{
    const QFileInfo info(dir);
    if (!info.isDir())
        return failure(dir, ENOTDIR);
    if (!(info.permissions() & QFileDevice::WriteOwner))
        return failure(dir, EACCES);
    if (onReadOnlyFileSystem(dir))
        return failure(dir, EROFS);
    return std::nullopt;
}

} // namespace

AutostartLoginItem::AutostartLoginItem(const QString &appId, const QString &executable)
    : m_appId(appId), m_executable(executable)
{
}

QString AutostartLoginItem::entryPath() const
{
    return XdgDirectories::configHome() + u"/autostart/" + m_appId + u".desktop";
}

QByteArray AutostartLoginItem::entryContent() const
{
    const QString exec = execArgument(m_executable) + u" --login";
    return QByteArrayLiteral("[Desktop Entry]\n"
                             "Type=Application\n"
                             "Name=Vandorel\n"
                             "Comment=Keep your default web browser and mail client in place\n")
           + "Exec=" + exec.toUtf8() + "\nIcon=" + m_appId.toUtf8()
           + "\nTerminal=false\nX-GNOME-Autostart-enabled=true\n";
}

bool AutostartLoginItem::isEnabled() const
{
    const QString path = entryPath();
    if (!QFileInfo::exists(path))
        return false;
    const std::optional<DesktopEntry> entry = DesktopEntry::read(path);
    return !entry || !entry->hidden();
}

std::optional<QString> AutostartLoginItem::registerItem()
{
    const QString path = entryPath();
    const QString dir = QFileInfo(path).absolutePath();
    errno = 0;
    if (!QFileInfo(dir).exists() && !QDir().mkpath(dir))
        return failure(dir, errno ? errno : EIO);
    if (auto why = unwritableFolder(dir))
        return why;
    if (QFileInfo(path).isDir())
        return failure(path, EISDIR);
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    const QByteArray content = entryContent();
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return path + u": " + file.errorString();
    return std::nullopt;
}

std::optional<QString> AutostartLoginItem::unregisterItem()
{
    const QString path = entryPath();
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return std::nullopt;
    if (auto why = unwritableFolder(info.absolutePath()))
        return why;
    if (info.isDir())
        return failure(path, EISDIR);
    QFile file(path);
    if (!file.remove())
        return path + u": " + file.errorString();
    return std::nullopt;
}

QString AutostartLoginItem::execArgument(const QString &argument)
{
    static const QString reserved = QStringLiteral(" \t\n\"'\\><~|&;$*?#`()");
    QString quoted;
    const bool needsQuotes = argument.isEmpty()
                             || std::any_of(argument.begin(), argument.end(),
                                            [](QChar c) { return reserved.contains(c); });
    for (const QChar c : argument) {
        if (c == u'%')
            quoted += u'%';
        else if (needsQuotes && QStringView(u"\"`$\\").contains(c))
            quoted += u'\\';
        quoted += c;
    }
    if (needsQuotes)
        quoted = u'"' + quoted + u'"';
    // The key file's string escapes come on top of the quoting.
    QString escaped;
    for (const QChar c : quoted) {
        if (c == u'\\')
            escaped += QStringLiteral("\\\\");
        else if (c == u'\n')
            escaped += QStringLiteral("\\n");
        else if (c == u'\t')
            escaped += QStringLiteral("\\t");
        else if (c == u'\r')
            escaped += QStringLiteral("\\r");
        else
            escaped += c;
    }
    return escaped;
}
