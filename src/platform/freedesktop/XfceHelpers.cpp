#include "platform/freedesktop/XfceHelpers.h"

#include "platform/freedesktop/KeyFileScanner.h"
#include "platform/freedesktop/MimeAppsListEditor.h"
#include "platform/freedesktop/MimeAppsListWriter.h"
#include "platform/freedesktop/XdgDirectories.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString helpersRc = QStringLiteral("/xfce4/helpers.rc");
const QString helpersDir = QStringLiteral("/xfce4/helpers");

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList configPlaces()
{
    return QStringList{XdgDirectories::configHome()} + XdgDirectories::configDirs();
}

} // namespace

bool XfceHelpers::decides(const QString &scheme) const
{
    return !categoryOf(scheme).isEmpty();
}

QString XfceHelpers::categoryOf(const QString &scheme)
{
    const QString lower = scheme.toLower();
    if (lower == u"http" || lower == u"https")
        return QStringLiteral("WebBrowser");
    if (lower == u"mailto")
        return QStringLiteral("MailReader");
    return {};
}

std::optional<QString> XfceHelpers::Helper::program() const
{
    for (const QString &candidate : programs) {
        if (DesktopEntry::programExists(candidate))
            return candidate;
    }
    return std::nullopt;
}

// The first config place whose helpers.rc sets the key wins.
std::optional<QString> XfceHelpers::chosenHelper(const QString &category)
{
    for (const QString &dir : configPlaces()) {
        const auto name =
            MimeAppsListEditor(readAll(dir + helpersRc), MimeAppsListEditor::Syntax::lenient)
                .value({}, category);
        if (name && !name->isEmpty())
            return name;
    }
    return std::nullopt;
}

std::optional<XfceHelpers::Helper> XfceHelpers::readHelper(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = file.readAll();
    Helper helper;
    helper.name = QFileInfo(path).completeBaseName();
    QStringList commands;
    KeyFileScanner scanner(content);
    while (scanner.next()) {
        if (scanner.group() != "Desktop Entry")
            continue;
        if (scanner.key() == "X-XFCE-Binaries")
            helper.programs = scanner.listValue().value_or(QStringList());
        else if (scanner.key() == "X-XFCE-Commands")
            commands = scanner.listValue().value_or(QStringList());
        else if (scanner.key() == "X-XFCE-Category")
            helper.category = scanner.value().value_or(QString());
    }
    // Without binaries XFCE runs the commands as they stand (%B stands for a binary).
    if (helper.programs.isEmpty()) {
        for (const QString &command : std::as_const(commands)) {
            const auto program = DesktopEntry::commandProgram(command);
            if (program && !command.contains(QStringLiteral("%B")))
                helper.programs.append(*program);
        }
    }
    return helper;
}

std::optional<XfceHelpers::Helper> XfceHelpers::helperNamed(const QString &name)
{
    if (name.contains(u'/'))
        return std::nullopt;
    for (const QString &dir : XdgDirectories::allDataDirs()) {
        const QString path = dir + helpersDir + u'/' + name + QStringLiteral(".desktop");
        if (QFileInfo::exists(path))
            return readHelper(path);
    }
    return std::nullopt;
}

QList<XfceHelpers::Helper> XfceHelpers::allHelpers()
{
    QList<Helper> helpers;
    QStringList seen;
    for (const QString &dir : XdgDirectories::allDataDirs()) {
        const QDir helperDir(dir + helpersDir);
        for (const QString &file :
             helperDir.entryList({QStringLiteral("*.desktop")}, QDir::Files, QDir::Name)) {
            const QString name = QFileInfo(file).completeBaseName();
            if (seen.contains(name))
                continue;
            seen.append(name);
            if (const auto helper = readHelper(helperDir.filePath(file)))
                helpers.append(*helper);
        }
    }
    return helpers;
}

std::optional<QString> XfceHelpers::choice(const QString &scheme, const DesktopFileLocator &locator,
                                           const QStringList &handlingIds) const
{
    const auto name = chosenHelper(categoryOf(scheme));
    if (!name)
        return std::nullopt;
    const auto helper = helperNamed(*name);
    const auto program = helper ? helper->program() : std::nullopt;
    if (!program)
        return std::nullopt;
    if (const auto entry = locator.entryRunning(*program, handlingIds))
        return entry->path;
    return u'!' + *program;
}

// The helper that runs the entry's program: the one named after the entry first (as
// xdg-settings names those it makes), else the first by name.
int XfceHelpers::write(const QString &scheme, const QString &desktopId,
                       const DesktopEntry &entry) const
{
    const QString category = categoryOf(scheme);
    const auto program = entry.execProgram();
    if (!program)
        return NoHelper;
    const QString ownName = QFileInfo(desktopId).completeBaseName();
    std::optional<QString> chosen;
    for (const Helper &helper : allHelpers()) {
        const auto runs = helper.program();
        if (helper.category != category || !runs || !DesktopEntry::isSameProgram(*runs, *program))
            continue;
        if (!chosen || helper.name == ownName)
            chosen = helper.name;
    }
    if (!chosen)
        return NoHelper;
    return MimeAppsListWriter::update(XdgDirectories::configHome() + helpersRc,
                                      [&](const QByteArray &content) {
                                          MimeAppsListEditor editor(
                                              content, MimeAppsListEditor::Syntax::lenient);
                                          editor.setValue({}, category, chosen->toUtf8());
                                          return editor.content();
                                      })
        .status;
}

QString XfceHelpers::failureLine(int status, const DesktopEntry &entry) const
{
    if (status != NoHelper)
        return {};
    return u"⚠️ No XFCE helper runs " + entry.execProgram().value_or(entry.exec());
}

QStringList XfceHelpers::files() const
{
    QStringList files;
    for (const QString &dir : configPlaces())
        files.append(dir + helpersRc);
    for (const QString &dir : XdgDirectories::allDataDirs())
        files.append(dir + helpersDir);
    return files;
}
