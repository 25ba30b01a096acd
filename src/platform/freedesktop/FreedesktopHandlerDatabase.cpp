#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include "platform/freedesktop/AppStreamVersion.h"
#include "platform/freedesktop/DesktopFileLocator.h"
#include "platform/freedesktop/DesktopLinkStore.h"
#include "platform/freedesktop/FreedesktopKnownApplications.h"
#include "platform/freedesktop/KeyFileScanner.h"
#include "platform/freedesktop/MimeAppsListEditor.h"
#include "platform/freedesktop/MimeAppsListWriter.h"
#include "platform/freedesktop/MimeAssociations.h"
#include "platform/freedesktop/XdgDirectories.h"

#include "foundation/Console.h"

#include <QDate>
#include <QFileInfo>
#include <QMutex>

namespace {

const QString suffix = QStringLiteral(".desktop");
const QString defaultGroup = QStringLiteral("Default Applications");
const QString addedGroup = QStringLiteral("Added Associations");

// Writers in this process take turns; each write replaces its file atomically, so readers
// never need the lock.
QMutex writeLock;

DesktopFileLocator currentLocator()
{
    return DesktopFileLocator(XdgDirectories::applicationsDirs());
}

MimeAssociations associationsFor(const QString &mimeType)
{
    return MimeAssociations::load(mimeType, XdgDirectories::mimeappsPlaces(),
                                  XdgDirectories::currentDesktops());
}

QString stripSuffix(QString desktopId)
{
    if (desktopId.endsWith(suffix))
        desktopId.chop(suffix.size());
    return desktopId;
}

bool isIdentifier(const QString &identifier)
{
    return !identifier.isEmpty() && !identifier.contains(u'/') && !identifier.startsWith(u'.')
           && !identifier.contains(u';') && !identifier.contains(u'\n')
           && !identifier.contains(u'\r');
}

// Whether a written list item names the desktop id.
bool names(QByteArrayView item, const QString &desktopId)
{
    return KeyFileScanner::splitList(item) == QStringList{desktopId};
}

// A list GLib refuses as a whole changes nothing for it, so a default written into it would
// never be seen. The user's file is kept byte for byte beside it, and the list that replaces
// it carries every line GLib can read plus the new default.
MimeAppsListWriter::Edit setDefaultIn(const QByteArray &content, const QString &mimeType,
                                      const QString &desktopId,
                                      QList<MimeAppsListEditor::RefusedLine> *refused)
{
    MimeAppsListEditor editor(content);
    *refused = editor.refusedLines();
    editor.dropRefusedLines();
    const QByteArray id = KeyFileScanner::escapeListItem(desktopId);
    editor.setValue(defaultGroup, mimeType, id);
    QByteArray added = id + ';';
    for (const QByteArray &item : editor.rawItems(addedGroup, mimeType)) {
        if (!names(item, desktopId))
            added += item + ';';
    }
    editor.setValue(addedGroup, mimeType, added);
    if (refused->isEmpty())
        return editor.content();
    return {editor.content(),
            QStringLiteral(".unreadable-") + QDate::currentDate().toString(Qt::ISODate)};
}

// A desktop-specific list GLib refuses shadows nothing, and is left as it is.
QByteArray dropContraryDefault(const QByteArray &content, const QString &mimeType,
                               const QString &desktopId)
{
    MimeAppsListEditor editor(content);
    if (!editor.refusedLines().isEmpty())
        return content;
    const QStringList defaults = editor.values(defaultGroup, mimeType).value_or(QStringList());
    if (!defaults.isEmpty() && defaults.first() != desktopId)
        editor.removeKey(defaultGroup, mimeType);
    return editor.content();
}

} // namespace

QString FreedesktopHandlerDatabase::mimeTypeForScheme(const QString &scheme)
{
    if (scheme.isEmpty() || !(scheme.front().isLetter() && scheme.front().unicode() < 128))
        return {};
    for (const QChar c : scheme) {
        const bool allowed =
            c.unicode() < 128 && (c.isLetterOrNumber() || c == u'+' || c == u'-' || c == u'.');
        if (!allowed)
            return {};
    }
    return QStringLiteral("x-scheme-handler/") + scheme.toLower();
}

QStringList FreedesktopHandlerDatabase::knownIdentifiers(Kind kind) const
{
    return kind == Kind::browser ? FreedesktopKnownApplications::browsers()
                                 : FreedesktopKnownApplications::mailClients();
}

namespace {

// The desktop's own setting goes first where the desktop decides the scheme by it.
std::optional<QString> storeChoice(const QString &scheme, const DesktopFileLocator &locator,
                                   const MimeAssociations &associations)
{
    const auto store = DesktopLinkStore::current();
    if (!store || !store->decides(scheme))
        return std::nullopt;
    return store->choice(scheme, locator,
                         associations.explicitDefaults() + associations.associated(locator));
}

} // namespace

QStringList FreedesktopHandlerDatabase::applicationsForScheme(const QString &scheme) const
{
    const QString mimeType = mimeTypeForScheme(scheme);
    if (mimeType.isEmpty())
        return {};
    const DesktopFileLocator locator = currentLocator();
    const MimeAssociations associations = associationsFor(mimeType);
    QStringList locations;
    for (const QString &id : associations.explicitDefaults()) {
        if (const auto resolved = locator.resolve(id)) {
            locations.append(resolved->path);
            break;
        }
    }
    // GLib lists an association only when its entry is not Hidden, though a Hidden entry
    // may still be the default (above, or the first association below).
    bool defaultFound = !locations.isEmpty();
    for (const QString &id : associations.associated(locator)) {
        const auto resolved = locator.resolve(id);
        if (!resolved || locations.contains(resolved->path))
            continue;
        if (!defaultFound) {
            defaultFound = true;
            locations.append(resolved->path);
        } else if (!resolved->entry.hidden()) {
            locations.append(resolved->path);
        }
    }
    if (const auto chosen = storeChoice(scheme, locator, associations)) {
        locations.removeAll(*chosen);
        locations.prepend(*chosen);
    }
    return locations;
}

// GIO's answer, which is what opens links on the desktop, unless the desktop's own setting
// decides. xdg-mime 1.1.3 differs: it takes a listed default whose file merely exists (a
// missing TryExec or a malformed entry still wins there), and its fallback to mimeinfo.cache
// ignores [Removed Associations].
std::optional<QString>
FreedesktopHandlerDatabase::defaultApplicationForScheme(const QString &scheme) const
{
    const QString mimeType = mimeTypeForScheme(scheme);
    if (mimeType.isEmpty())
        return std::nullopt;
    const DesktopFileLocator locator = currentLocator();
    const MimeAssociations associations = associationsFor(mimeType);
    if (const auto chosen = storeChoice(scheme, locator, associations))
        return chosen;
    for (const QString &id : associations.explicitDefaults()) {
        if (const auto resolved = locator.resolve(id))
            return resolved->path;
    }
    for (const QString &id : associations.associated(locator)) {
        if (const auto resolved = locator.resolve(id))
            return resolved->path;
    }
    return std::nullopt;
}

std::optional<QString>
FreedesktopHandlerDatabase::locationForIdentifier(const QString &identifier) const
{
    if (!isIdentifier(identifier))
        return std::nullopt;
    // A Hidden entry counts: GLib still opens URLs with it when a list names it as default.
    const auto resolved = currentLocator().resolve(identifier + suffix);
    if (!resolved)
        return std::nullopt;
    return resolved->path;
}

std::optional<HandlerDatabase::Application>
FreedesktopHandlerDatabase::applicationAt(const QString &location) const
{
    // A program the desktop's setting runs without an entry: known by that name alone.
    if (location.startsWith(u'!'))
        return Application{location, std::nullopt, std::nullopt};
    const auto entry = DesktopEntry::read(location);
    if (!entry || !entry->isValid())
        return std::nullopt;
    QString desktopId = currentLocator().desktopIdOf(location);
    if (desktopId.isEmpty())
        desktopId = QFileInfo(location).fileName();
    const QString identifier = stripSuffix(desktopId);
    return Application{identifier, entry->name(),
                       AppStreamVersion::find(identifier, XdgDirectories::allDataDirs())};
}

QString FreedesktopHandlerDatabase::displayNameAtPath(const QString &path) const
{
    return stripSuffix(QFileInfo(path).fileName());
}

// GLib only makes an application it can load the default, so an id without a launchable
// entry is refused (NotInstalled) rather than written into the list, where every reader
// would skip it anyway.
int FreedesktopHandlerDatabase::setDefaultHandler(const QString &scheme, const QString &identifier)
{
    const QString mimeType = mimeTypeForScheme(scheme);
    if (mimeType.isEmpty() || !isIdentifier(identifier))
        return InvalidArgument;
    const QString desktopId = identifier + suffix;
    const auto resolved = currentLocator().resolve(desktopId);
    if (!resolved)
        return NotInstalled;

    const QMutexLocker locker(&writeLock);
    // Where the desktop decides by its own setting, that is written first; when it can't
    // name the program, nothing is written.
    if (const auto store = DesktopLinkStore::current(); store && store->decides(scheme)) {
        const int storeStatus = store->write(scheme, desktopId, resolved->entry);
        if (storeStatus != Success) {
            report(store->failureLine(storeStatus, resolved->entry));
            return storeStatus;
        }
    }
    const QString configHome = XdgDirectories::configHome();
    const QString listPath = configHome + QStringLiteral("/mimeapps.list");
    QList<MimeAppsListEditor::RefusedLine> refused;
    const MimeAppsListWriter::Result written =
        MimeAppsListWriter::update(listPath, [&](const QByteArray &content) {
            return setDefaultIn(content, mimeType, desktopId, &refused);
        });
    if (written.status != Success)
        return written.status;
    if (!written.keptCopy.isEmpty())
        Console::line(
            QStringLiteral("⚠️ %1 line %2 is unreadable (%3); kept the file as %4 and "
                           "wrote a readable list")
                .arg(listPath)
                .arg(refused.first().number)
                .arg(QString::fromUtf8(refused.first().text), written.keptCopy));
    // The desktop-specific lists of the same directory are read first; a default there for
    // another application would hide the one just written.
    for (const QString &desktop : XdgDirectories::currentDesktops()) {
        const QString path = configHome + u'/' + desktop + QStringLiteral("-mimeapps.list");
        const int shadowStatus = MimeAppsListWriter::update(
                                     path,
                                     [&](const QByteArray &content) {
                                         return dropContraryDefault(content, mimeType, desktopId);
                                     },
                                     false)
                                     .status;
        if (shadowStatus != Success)
            return shadowStatus;
    }
    return Success;
}
