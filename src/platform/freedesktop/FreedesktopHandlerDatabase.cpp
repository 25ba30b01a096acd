#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include "platform/freedesktop/AppStreamVersion.h"
#include "platform/freedesktop/DesktopFileLocator.h"
#include "platform/freedesktop/DesktopLinkStore.h"
#include "platform/freedesktop/FileStamps.h"
#include "platform/freedesktop/FreedesktopKnownApplications.h"
#include "platform/freedesktop/KeyFileScanner.h"
#include "platform/freedesktop/MimeAppsListEditor.h"
#include "platform/freedesktop/MimeAppsListWriter.h"
#include "platform/freedesktop/MimeAssociations.h"
#include "platform/freedesktop/XdgDirectories.h"

#include "foundation/Console.h"

#include <QDate>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QScopeGuard>

#include <algorithm>

namespace {

const QString suffix = QStringLiteral(".desktop");
const QString defaultGroup = QStringLiteral("Default Applications");
const QString addedGroup = QStringLiteral("Added Associations");

// Writers in this process take turns; each write replaces its file atomically, so readers
// never need the lock.
QMutex writeLock;

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

// What the database has read under one environment, with the stamps of every file and
// folder the answers came from. Every question starts with refresh(), which drops it all when
// one of them changed.
class FreedesktopHandlerDatabase::Reading {
public:
    QMutex mutex;
    int holds = 0;

    void refresh();
    void forget()
    {
        m_environment.clear();
        m_checkedInHold = false;
        m_unnoted = false;
    }

    const DesktopFileLocator &locator() const { return m_locator; }
    // The data dirs that have AppStream folders at all.
    const QStringList &appStreamDirs() const { return m_appStreamDirs; }
    const DesktopLinkStore *store() const { return m_store.get(); }
    // Under a hold nothing is noted, and what was read is dropped when the last hold ends:
    // one picture costs no look at the files beyond reading them.
    void note(const QString &path)
    {
        if (holds > 0)
            m_unnoted = true;
        else
            m_stamps.note(path);
    }
    void release()
    {
        if (--holds == 0 && m_unnoted)
            forget();
    }

    std::optional<DesktopFileLocator::Resolved> resolve(const QString &desktopId);
    const MimeAssociations &associations(const QString &mimeType);
    const QStringList &associated(const QString &mimeType);
    // The entry at a path, read once.
    std::optional<DesktopEntry> entryAt(const QString &path);

    QHash<QString, QStringList> applications;
    QHash<QString, std::optional<QString>> defaults;
    QHash<QString, std::optional<Application>> applicationsAt;

private:
    static QByteArray currentEnvironment();
    void start();

    bool m_checkedInHold = false;
    bool m_unnoted = false;
    QByteArray m_environment;
    FileStamps m_stamps;
    DesktopFileLocator m_locator{QStringList()};
    QList<XdgDirectories::Place> m_places;
    QStringList m_desktops;
    QStringList m_dataDirs;
    QStringList m_appStreamDirs;
    std::unique_ptr<DesktopLinkStore> m_store;
    QHash<QString, std::optional<DesktopFileLocator::Resolved>> m_resolved;
    QHash<QString, MimeAssociations> m_associations;
    QHash<QString, QStringList> m_associated;
    QHash<QString, std::optional<DesktopEntry>> m_entries;
};

// Everything the folders, the desktop and the program search depend on.
QByteArray FreedesktopHandlerDatabase::Reading::currentEnvironment()
{
    QByteArray key = "\n";
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME",
                             "XDG_DATA_DIRS", "XDG_CURRENT_DESKTOP", "PATH"})
        key += (qEnvironmentVariableIsSet(name) ? "=" + qgetenv(name) : QByteArray()) + '\n';
    return key;
}

void FreedesktopHandlerDatabase::Reading::refresh()
{
    if (holds > 0 && m_checkedInHold)
        return;
    m_checkedInHold = holds > 0;
    const QByteArray environment = currentEnvironment();
    if (environment == m_environment && m_stamps.unchanged())
        return;
    m_environment = environment;
    start();
}

// Notes the lists, the application folders (whose entries come and go by their listing),
// the desktop's own store and the AppStream folders before anything of them is read.
void FreedesktopHandlerDatabase::Reading::start()
{
    m_stamps.clear();
    applications.clear();
    defaults.clear();
    applicationsAt.clear();
    m_resolved.clear();
    m_associations.clear();
    m_associated.clear();
    m_entries.clear();
    m_places = XdgDirectories::mimeappsPlaces();
    m_desktops = XdgDirectories::currentDesktops();
    m_dataDirs = XdgDirectories::allDataDirs();
    m_store = DesktopLinkStore::current();
    for (const XdgDirectories::Place &place : std::as_const(m_places)) {
        if (place.holdsApplications) {
            note(place.path);
            note(place.path + QStringLiteral("/defaults.list"));
            note(place.path + QStringLiteral("/mimeinfo.cache"));
        }
        note(place.path + QStringLiteral("/mimeapps.list"));
        for (const QString &desktop : std::as_const(m_desktops))
            note(place.path + u'/' + desktop + QStringLiteral("-mimeapps.list"));
    }
    if (m_store) {
        for (const QString &file : m_store->files())
            note(file);
    }
    for (const QString &folder : AppStreamVersion::folders(m_dataDirs))
        note(folder);
    m_appStreamDirs.clear();
    for (const QString &dir : std::as_const(m_dataDirs)) {
        const QStringList folders = AppStreamVersion::folders({dir});
        if (std::any_of(folders.cbegin(), folders.cend(),
                        [](const QString &folder) { return QFileInfo(folder).isDir(); }))
            m_appStreamDirs.append(dir);
    }
    // Listing the folders pays only for the many questions of one picture.
    m_locator = DesktopFileLocator(
        XdgDirectories::applicationsDirs(), [this](const QString &path) { note(path); },
        holds > 0 ? DesktopFileLocator::Lookup::byListing : DesktopFileLocator::Lookup::byName);
}

std::optional<DesktopFileLocator::Resolved>
FreedesktopHandlerDatabase::Reading::resolve(const QString &desktopId)
{
    auto it = m_resolved.constFind(desktopId);
    if (it == m_resolved.cend())
        it = m_resolved.insert(desktopId, m_locator.resolve(desktopId));
    return *it;
}

const MimeAssociations &FreedesktopHandlerDatabase::Reading::associations(const QString &mimeType)
{
    auto it = m_associations.find(mimeType);
    if (it == m_associations.end())
        it =
            m_associations.insert(mimeType, MimeAssociations::load(mimeType, m_places, m_desktops));
    return *it;
}

const QStringList &FreedesktopHandlerDatabase::Reading::associated(const QString &mimeType)
{
    auto it = m_associated.find(mimeType);
    if (it == m_associated.end())
        it = m_associated.insert(mimeType, associations(mimeType).associated(m_locator));
    return *it;
}

std::optional<DesktopEntry> FreedesktopHandlerDatabase::Reading::entryAt(const QString &path)
{
    auto it = m_entries.constFind(path);
    if (it == m_entries.cend()) {
        note(path);
        it = m_entries.insert(path, DesktopEntry::read(path));
    }
    return *it;
}

FreedesktopHandlerDatabase::FreedesktopHandlerDatabase() : m_reading(std::make_unique<Reading>()) {}

FreedesktopHandlerDatabase::~FreedesktopHandlerDatabase() = default;

std::shared_ptr<void> FreedesktopHandlerDatabase::holdReading() const
{
    const QMutexLocker locker(&m_reading->mutex);
    ++m_reading->holds;
    return std::shared_ptr<void>(nullptr, [reading = m_reading.get()](void *) {
        const QMutexLocker locker(&reading->mutex);
        reading->release();
    });
}

namespace {

// The desktop's own setting goes first where the desktop decides the scheme by it.
std::optional<QString> storeChoice(const QString &scheme, const DesktopLinkStore *store,
                                   const DesktopFileLocator &locator,
                                   const QStringList &handlingIds)
{
    if (!store || !store->decides(scheme))
        return std::nullopt;
    return store->choice(scheme, locator, handlingIds);
}

} // namespace

QStringList FreedesktopHandlerDatabase::applicationsForScheme(const QString &scheme) const
{
    const QString mimeType = mimeTypeForScheme(scheme);
    if (mimeType.isEmpty())
        return {};
    Reading &reading = *m_reading;
    const QMutexLocker locker(&reading.mutex);
    reading.refresh();
    if (const auto kept = reading.applications.constFind(mimeType);
        kept != reading.applications.cend())
        return *kept;
    const QStringList explicitDefaults = reading.associations(mimeType).explicitDefaults();
    const QStringList &associated = reading.associated(mimeType);
    QStringList locations;
    for (const QString &id : explicitDefaults) {
        if (const auto resolved = reading.resolve(id)) {
            locations.append(resolved->path);
            break;
        }
    }
    // GLib lists an association only when its entry is not Hidden, though a Hidden entry
    // may still be the default (above, or the first association below).
    bool defaultFound = !locations.isEmpty();
    for (const QString &id : associated) {
        const auto resolved = reading.resolve(id);
        if (!resolved || locations.contains(resolved->path))
            continue;
        if (!defaultFound) {
            defaultFound = true;
            locations.append(resolved->path);
        } else if (!resolved->entry.hidden()) {
            locations.append(resolved->path);
        }
    }
    if (const auto chosen = storeChoice(scheme, reading.store(), reading.locator(),
                                        explicitDefaults + associated)) {
        locations.removeAll(*chosen);
        locations.prepend(*chosen);
    }
    reading.applications.insert(mimeType, locations);
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
    Reading &reading = *m_reading;
    const QMutexLocker locker(&reading.mutex);
    reading.refresh();
    auto kept = reading.defaults.constFind(mimeType);
    if (kept == reading.defaults.cend())
        kept = reading.defaults.insert(mimeType, findDefault(scheme, mimeType));
    return *kept;
}

std::optional<QString> FreedesktopHandlerDatabase::findDefault(const QString &scheme,
                                                               const QString &mimeType) const
{
    Reading &reading = *m_reading;
    const QStringList explicitDefaults = reading.associations(mimeType).explicitDefaults();
    // The association list is long and only read when no listed default resolves.
    const auto associated = [&]() -> const QStringList & { return reading.associated(mimeType); };
    if (reading.store() && reading.store()->decides(scheme)) {
        if (const auto chosen = storeChoice(scheme, reading.store(), reading.locator(),
                                            explicitDefaults + associated()))
            return chosen;
    }
    for (const QString &id : explicitDefaults) {
        if (const auto resolved = reading.resolve(id))
            return resolved->path;
    }
    for (const QString &id : associated()) {
        if (const auto resolved = reading.resolve(id))
            return resolved->path;
    }
    return std::nullopt;
}

std::optional<QString>
FreedesktopHandlerDatabase::locationForIdentifier(const QString &identifier) const
{
    if (!isIdentifier(identifier))
        return std::nullopt;
    const QMutexLocker locker(&m_reading->mutex);
    m_reading->refresh();
    // A Hidden entry counts: GLib still opens URLs with it when a list names it as default.
    const auto resolved = m_reading->resolve(identifier + suffix);
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
    Reading &reading = *m_reading;
    const QMutexLocker locker(&reading.mutex);
    reading.refresh();
    auto kept = reading.applicationsAt.constFind(location);
    if (kept != reading.applicationsAt.cend())
        return *kept;
    std::optional<Application> application;
    const auto entry = reading.entryAt(location);
    if (entry && entry->isValid()) {
        QString desktopId = reading.locator().desktopIdOf(location);
        if (desktopId.isEmpty())
            desktopId = QFileInfo(location).fileName();
        const QString identifier = stripSuffix(desktopId);
        const QString appStream = AppStreamVersion::path(identifier, reading.appStreamDirs());
        if (!appStream.isEmpty())
            reading.note(appStream);
        application =
            Application{identifier, entry->name(),
                        appStream.isEmpty() ? std::nullopt : AppStreamVersion::readFile(appStream)};
    }
    reading.applicationsAt.insert(location, application);
    return application;
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
    const auto resolved = DesktopFileLocator(XdgDirectories::applicationsDirs()).resolve(desktopId);
    if (!resolved)
        return NotInstalled;

    const QMutexLocker locker(&writeLock);
    // What was read before the write is not asked again, even under a hold.
    const auto forget = qScopeGuard([this] {
        const QMutexLocker readingLocker(&m_reading->mutex);
        m_reading->forget();
    });
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
