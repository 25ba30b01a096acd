#include "platform/freedesktop/KdeGlobals.h"

#include "platform/freedesktop/MimeAppsListEditor.h"
#include "platform/freedesktop/MimeAppsListWriter.h"
#include "platform/freedesktop/XdgDirectories.h"

#include <QFile>

namespace {

const QString group = QStringLiteral("General");
const QString key = QStringLiteral("BrowserApplication");
// KConfig marks a value whose environment variables it expands this way.
const QString expandedKey = QStringLiteral("BrowserApplication[$e]");

QStringList kdeglobalsFiles()
{
    QStringList files{XdgDirectories::configHome() + QStringLiteral("/kdeglobals")};
    for (const QString &dir : XdgDirectories::configDirs())
        files.append(dir + QStringLiteral("/kdeglobals"));
    return files;
}

// The user's file first, then the system's: the first that sets the key wins.
std::optional<QString> browserApplication()
{
    for (const QString &path : kdeglobalsFiles()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const MimeAppsListEditor editor(file.readAll(), MimeAppsListEditor::Syntax::lenient);
        const auto value =
            editor.value(group, key) ? editor.value(group, key) : editor.value(group, expandedKey);
        if (value)
            return value->trimmed();
    }
    return std::nullopt;
}

} // namespace

bool KdeGlobals::decides(const QString &scheme) const
{
    const QString lower = scheme.toLower();
    return lower == u"http" || lower == u"https";
}

std::optional<QString> KdeGlobals::choice(const QString &, const DesktopFileLocator &locator,
                                          const QStringList &handlingIds) const
{
    const auto value = browserApplication();
    if (!value || value->isEmpty())
        return std::nullopt;
    if (value->startsWith(u'!')) {
        const auto program = DesktopEntry::commandProgram(value->sliced(1));
        if (!program)
            return std::nullopt;
        if (const auto entry = locator.entryRunning(*program, handlingIds))
            return entry->path;
        return u'!' + *program;
    }
    QString desktopId = *value;
    if (!desktopId.endsWith(QStringLiteral(".desktop")))
        desktopId += QStringLiteral(".desktop");
    if (const auto entry = locator.resolve(desktopId))
        return entry->path;
    return std::nullopt;
}

int KdeGlobals::write(const QString &, const QString &desktopId, const DesktopEntry &) const
{
    return MimeAppsListWriter::update(kdeglobalsFiles().first(),
                                      [&](const QByteArray &content) {
                                          MimeAppsListEditor editor(
                                              content, MimeAppsListEditor::Syntax::lenient);
                                          editor.removeKey(group, expandedKey);
                                          editor.setValue(group, key, desktopId.toUtf8());
                                          return editor.content();
                                      })
        .status;
}

QString KdeGlobals::failureLine(int, const DesktopEntry &) const
{
    return {};
}

QStringList KdeGlobals::files() const
{
    return kdeglobalsFiles();
}
