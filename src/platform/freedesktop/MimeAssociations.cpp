#include "platform/freedesktop/MimeAssociations.h"

#include "platform/freedesktop/DesktopFileLocator.h"
#include "platform/freedesktop/MimeAppsList.h"

namespace {

// Appends what is neither blacklisted nor already there.
void expand(QStringList &list, const QStringList &toAdd, const QStringList &blacklist = {})
{
    for (const QString &id : toAdd) {
        if (!blacklist.contains(id) && !list.contains(id))
            list.append(id);
    }
}

} // namespace

MimeAssociations MimeAssociations::load(const QString &mimeType,
                                        const QList<XdgDirectories::Place> &places,
                                        const QStringList &desktops)
{
    MimeAssociations result;
    result.m_mimeType = mimeType;
    qsizetype applicationsIndex = 0;
    for (const XdgDirectories::Place &place : places) {
        PlaceLists lists;
        // A desktop-specific list may only name defaults; GLib ignores its other groups.
        for (const QString &desktop : desktops)
            expand(lists.defaults,
                   MimeAppsList::read(place.path + u'/' + desktop + u"-mimeapps.list", mimeType)
                       .defaults());
        const MimeAppsList main = MimeAppsList::read(place.path + u"/mimeapps.list", mimeType);
        expand(lists.additions, main.added());
        expand(lists.removals, main.removed(), lists.additions);
        expand(lists.defaults, main.defaults());
        if (place.holdsApplications) {
            // defaults.list is an old GLib-only file that still counts for defaults.
            expand(lists.defaults,
                   MimeAppsList::read(place.path + u"/defaults.list", mimeType).defaults());
            lists.cachePath = place.path + u"/mimeinfo.cache";
            lists.applicationsIndex = applicationsIndex++;
        }
        result.m_places.append(lists);
    }
    return result;
}

QStringList MimeAssociations::explicitDefaults() const
{
    QStringList defaults;
    for (const PlaceLists &lists : m_places)
        expand(defaults, lists.defaults);
    return defaults;
}

QStringList MimeAssociations::associated(const DesktopFileLocator &locator) const
{
    QStringList hits;
    QStringList blacklist;
    collect(locator, hits, blacklist);
    return hits;
}

void MimeAssociations::collect(const DesktopFileLocator &locator, QStringList &hits,
                               QStringList &blacklist) const
{
    for (const PlaceLists &lists : m_places) {
        // An application directory speaks only for ids that no higher directory provides.
        const auto counts = [&](const QString &id) {
            return !blacklist.contains(id) && !hits.contains(id)
                   && (lists.applicationsIndex < 0
                       || !locator.isShadowed(id, lists.applicationsIndex));
        };
        // GIO lets the cache add back what this directory's own list removes; a removal only
        // acts on the directories below. The cache is long and only read when asked for.
        QStringList additions = lists.additions;
        if (!lists.cachePath.isEmpty())
            expand(additions, MimeAppsList::read(lists.cachePath, m_mimeType).cached());
        for (const QString &id : std::as_const(additions)) {
            if (counts(id))
                hits.append(id);
        }
        for (const QString &id : lists.removals) {
            if (counts(id))
                blacklist.append(id);
        }
    }
}
