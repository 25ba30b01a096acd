#include "platform/freedesktop/DesktopEntry.h"

#include "platform/freedesktop/KeyFileScanner.h"
#include "platform/freedesktop/WholeFile.h"

#include <QFileInfo>

namespace {

const QByteArray entryGroup = QByteArrayLiteral("Desktop Entry");

// GLib's reading of a Boolean, which alone ignores trailing white space.
bool readBoolean(QByteArrayView value)
{
    const QByteArray trimmed = value.toByteArray().trimmed();
    return trimmed == "true" || trimmed == "1";
}

// The first word of a command line, split as a POSIX shell (and GLib) splits it.
std::optional<QString> firstShellWord(const QString &line)
{
    QString word;
    bool inWord = false;
    qsizetype i = 0;
    const qsizetype n = line.size();
    while (i < n && line[i].isSpace())
        ++i;
    if (i < n && line[i] == u'#')
        return std::nullopt;
    for (; i < n; ++i) {
        const QChar c = line[i];
        if (c == u'\'') {
            const qsizetype close = line.indexOf(u'\'', i + 1);
            if (close < 0)
                return std::nullopt;
            word += line.sliced(i + 1, close - i - 1);
            i = close;
            inWord = true;
        } else if (c == u'"') {
            for (++i;; ++i) {
                if (i >= n)
                    return std::nullopt;
                if (line[i] == u'"')
                    break;
                if (line[i] == u'\\' && i + 1 < n && QStringView(u"$`\"\\\n").contains(line[i + 1]))
                    ++i;
                word += line[i];
            }
            inWord = true;
        } else if (c == u'\\') {
            if (i + 1 < n && line[i + 1] != u'\n')
                word += line[i + 1];
            ++i;
            inWord = true;
        } else if (c.isSpace()) {
            break;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (!inWord)
        return std::nullopt;
    return word;
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::read(const QString &path)
{
    const auto content = WholeFile::read(path);
    if (!content)
        return std::nullopt;
    return parse(*content);
}

DesktopEntry DesktopEntry::parse(QByteArrayView content)
{
    DesktopEntry entry;
    KeyFileScanner scanner(content);
    while (scanner.next()) {
        if (scanner.group() != entryGroup)
            continue;
        const QByteArrayView key = scanner.key();
        if (key == "Name")
            entry.m_name = scanner.value();
        else if (key == "Type")
            entry.m_type = scanner.value().value_or(QString());
        else if (key == "Hidden")
            entry.m_hidden = readBoolean(scanner.rawValue());
        else if (key == "NoDisplay")
            entry.m_noDisplay = readBoolean(scanner.rawValue());
        else if (key == "TryExec")
            entry.m_tryExec = scanner.value().value_or(QString());
        else if (key == "Exec")
            entry.m_exec = scanner.value().value_or(QString());
        else if (key == "MimeType")
            entry.m_mimeTypes = scanner.listValue().value_or(QStringList());
        else if (key == "Categories")
            entry.m_categories = scanner.listValue().value_or(QStringList());
    }
    entry.m_valid = scanner.valid() && scanner.firstGroup() == entryGroup;
    if (!entry.m_valid)
        return DesktopEntry();
    return entry;
}

std::optional<QString> DesktopEntry::execProgram() const
{
    return firstShellWord(m_exec);
}

std::optional<QString> DesktopEntry::commandProgram(const QString &commandLine)
{
    return firstShellWord(commandLine);
}

bool DesktopEntry::isLaunchable() const
{
    if (!m_valid || m_type != QLatin1String("Application"))
        return false;
    if (!m_tryExec.isEmpty() && !programExists(m_tryExec))
        return false;
    if (m_exec.isEmpty())
        return true;
    const auto program = execProgram();
    return program && programExists(*program);
}

bool DesktopEntry::programExists(const QString &program)
{
    return !programPath(program).isEmpty();
}

QString DesktopEntry::programPath(const QString &program)
{
    const auto isExecutableFile = [](const QString &path) {
        const QFileInfo info(path);
        return info.isFile() && info.isExecutable();
    };
    if (program.contains(u'/'))
        return isExecutableFile(program) ? program : QString();
    for (const QString &dir : searchPath()) {
        const QString candidate = dir + u'/' + program;
        if (isExecutableFile(candidate))
            return candidate;
    }
    return {};
}

QStringList DesktopEntry::searchPath()
{
    if (!qEnvironmentVariableIsSet("PATH"))
        return {QStringLiteral("/bin"), QStringLiteral("/usr/bin"), QStringLiteral(".")};
    QStringList dirs = qEnvironmentVariable("PATH").split(u':');
    for (QString &dir : dirs) {
        if (dir.isEmpty())
            dir = QStringLiteral(".");
    }
    return dirs;
}

bool DesktopEntry::isSameProgram(const QString &a, const QString &b)
{
    if (QFileInfo(a).fileName() == QFileInfo(b).fileName())
        return true;
    const QString pathA = QFileInfo(programPath(a)).canonicalFilePath();
    return !pathA.isEmpty() && pathA == QFileInfo(programPath(b)).canonicalFilePath();
}
