#pragma once

#include "platform/freedesktop/XdgDirectories.h"

#include <QList>
#include <QString>
#include <QStringList>

class DesktopFileLocator;

// The handlers of one MIME type as GLib's desktop app info gathers them: every place's
// mimeapps.list files in precedence order, and in application directories also
// defaults.list and mimeinfo.cache. Desktop file ids are kept with their ".desktop" suffix.
class MimeAssociations {
public:
    static MimeAssociations load(const QString &mimeType,
                                 const QList<XdgDirectories::Place> &places,
                                 const QStringList &desktops);

    // Every [Default Applications] entry of every place, in order. GLib tries these and then
    // the associations; the first launchable one is the default. It does not ask that an
    // explicit default is also associated, nor that no [Removed Associations] names it.
    QStringList explicitDefaults() const;
    // The associated ids in order: per place its added associations and then its cached
    // ones, less what a [Removed Associations] of a higher place names.
    QStringList associated(const DesktopFileLocator &locator) const;

private:
    struct PlaceLists {
        QStringList defaults;
        QStringList additions;
        QStringList removals;
        QString cachePath;                // mimeinfo.cache of an applications directory
        qsizetype applicationsIndex = -1; // index among the applications dirs; -1 for config
    };

    void collect(const DesktopFileLocator &locator, QStringList &hits,
                 QStringList &blacklist) const;

    QString m_mimeType;
    QList<PlaceLists> m_places;
};
