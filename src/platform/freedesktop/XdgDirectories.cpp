#include "platform/freedesktop/XdgDirectories.h"

#include <QDir>

namespace {

QString singleDir(const char *variable, const QString &fallback)
{
    const QString value = qEnvironmentVariable(variable);
    return QDir::cleanPath(value.isEmpty() ? fallback : value);
}

QStringList dirList(const char *variable, const QStringList &fallback)
{
    QStringList dirs;
    for (const QString &dir : qEnvironmentVariable(variable).split(u':', Qt::SkipEmptyParts))
        dirs.append(QDir::cleanPath(dir));
    if (dirs.isEmpty())
        return fallback;
    return dirs;
}

QString applicationsIn(const QString &dataDir)
{
    return dataDir + QStringLiteral("/applications");
}

} // namespace

QString XdgDirectories::configHome()
{
    return singleDir("XDG_CONFIG_HOME", QDir::homePath() + QStringLiteral("/.config"));
}

QStringList XdgDirectories::configDirs()
{
    return dirList("XDG_CONFIG_DIRS", {QStringLiteral("/etc/xdg")});
}

QString XdgDirectories::dataHome()
{
    return singleDir("XDG_DATA_HOME", QDir::homePath() + QStringLiteral("/.local/share"));
}

QStringList XdgDirectories::dataDirs()
{
    return dirList("XDG_DATA_DIRS",
                   {QStringLiteral("/usr/local/share"), QStringLiteral("/usr/share")});
}

QStringList XdgDirectories::allDataDirs()
{
    return QStringList{dataHome()} + dataDirs();
}

QStringList XdgDirectories::currentDesktops()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(u':', Qt::SkipEmptyParts);
}

QList<XdgDirectories::Place> XdgDirectories::mimeappsPlaces()
{
    QList<Place> places{{configHome(), false}};
    for (const QString &dir : configDirs())
        places.append({dir, false});
    for (const QString &dir : applicationsDirs())
        places.append({dir, true});
    return places;
}

QStringList XdgDirectories::applicationsDirs()
{
    QStringList dirs;
    for (const QString &dir : allDataDirs())
        dirs.append(applicationsIn(dir));
    return dirs;
}
