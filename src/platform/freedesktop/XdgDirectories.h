#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The base directories of the freedesktop desktop, read from the environment at every call
// ($XDG_CONFIG_HOME, $XDG_CONFIG_DIRS, $XDG_DATA_HOME, $XDG_DATA_DIRS, $XDG_CURRENT_DESKTOP),
// with the standard defaults where a variable is unset or empty.
class XdgDirectories {
public:
    // A directory that may hold mimeapps.list files; application directories also hold
    // desktop entries, mimeinfo.cache and defaults.list.
    struct Place {
        QString path;
        bool holdsApplications = false;
    };

    static QString configHome();
    static QStringList configDirs();
    static QString dataHome();
    static QStringList dataDirs();
    // $XDG_DATA_HOME then $XDG_DATA_DIRS.
    static QStringList allDataDirs();
    // The parts of $XDG_CURRENT_DESKTOP, lower-cased, in order.
    static QStringList currentDesktops();

    // Where mimeapps.list files are looked for, highest precedence first.
    static QList<Place> mimeappsPlaces();
    // The "applications" directories, highest precedence first.
    static QStringList applicationsDirs();
};
