#include "XdgTree.h"
#include "ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

const QList<QByteArray> managedVariables{"HOME",          "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS",
                                         "XDG_DATA_HOME", "XDG_DATA_DIRS",   "XDG_CURRENT_DESKTOP",
                                         "PATH",          "XDG_RUNTIME_DIR"};

} // namespace

XdgTree::XdgTree()
{
    for (const QByteArray &name : managedVariables)
        m_saved.insert(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name))
                                                             : std::nullopt);
    const QString root = m_dir.path();
    for (const char *dir : {"home", "config", "etc/xdg", "local/share/applications",
                            "share1/applications", "share2/applications", "bin", "runtime"})
        QDir().mkpath(root + u'/' + QLatin1String(dir));
    QFile::setPermissions(root + "/runtime",
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("HOME", QFile::encodeName(root + "/home"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root + "/config"));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(root + "/etc/xdg"));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root + "/local/share"));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(root + "/share1:" + root + "/share2"));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root + "/runtime"));
    qputenv("PATH",
            QFile::encodeName(root + "/bin:") + m_saved.value("PATH").value_or("/usr/bin:/bin"));
    qunsetenv("XDG_CURRENT_DESKTOP");
}

XdgTree::~XdgTree()
{
    for (auto it = m_saved.cbegin(); it != m_saved.cend(); ++it) {
        if (it.value())
            qputenv(it.key().constData(), *it.value());
        else
            qunsetenv(it.key().constData());
    }
}

QString XdgTree::path(const QString &relative) const
{
    return relative.isEmpty() ? m_dir.path() : m_dir.path() + u'/' + relative;
}

void XdgTree::write(const QString &relative, const QByteArray &content) const
{
    const QString file = path(relative);
    QDir().mkpath(QFileInfo(file).absolutePath());
    QFile out(file);
    if (out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        out.write(content);
}

QByteArray XdgTree::read(const QString &relative) const
{
    QFile in(path(relative));
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

QString XdgTree::stub(const QString &name) const
{
    const QString relative = "bin/" + name;
    write(relative, "#!/bin/sh\nexit 0\n");
    QFile::setPermissions(path(relative),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path(relative);
}

QString XdgTree::entry(const QString &dir, const QString &file, const QByteArray &mimeTypes,
                       const QByteArray &extra, const QByteArray &name) const
{
    const QString base = QFileInfo(file).completeBaseName();
    QByteArray content =
        "[Desktop Entry]\nType=Application\nName=" + (name.isEmpty() ? base.toUtf8() : name)
        + "\nExec=" + stub(base).toUtf8() + " %u\n";
    if (!mimeTypes.isEmpty())
        content += "MimeType=" + mimeTypes + "\n";
    content += extra;
    const QString relative = dir + u'/' + file;
    write(relative, content);
    return path(relative);
}

QString XdgTree::installFixture(const QString &fixture, const QString &dir, bool installed) const
{
    QFile in(fixture);
    if (!in.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(in.readAll());
    static const QRegularExpression exec("^(Exec|TryExec)=(\\S+)",
                                         QRegularExpression::MultilineOption);
    QString result;
    qsizetype last = 0;
    for (auto it = exec.globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        const QString name = match.captured(2).section(u'/', -1);
        const QString program = installed ? stub(name) : path("missing/" + name);
        result += text.mid(last, match.capturedStart(2) - last) + program;
        last = match.capturedEnd(2);
    }
    result += text.mid(last);
    const QString relative = dir + u'/' + QFileInfo(fixture).fileName();
    write(relative, result.toUtf8());
    return path(relative);
}

void XdgTree::updateCaches() const
{
    for (const char *dir :
         {"local/share/applications", "share1/applications", "share2/applications"})
        runProgram("update-desktop-database", {path(QLatin1String(dir))}, 30000);
}

XdgTree::GioAnswer XdgTree::gioMime(const QString &mimeType)
{
    GioAnswer answer;
    const QStringList lines = runProgram("gio", {"mime", mimeType}, 30000).text().split(u'\n');
    bool inRegistered = false;
    for (const QString &line : lines) {
        if (line.startsWith("Default application for")) {
            answer.defaultId = line.section(": ", -1).trimmed();
        } else if (line.startsWith(u'\t') || line.startsWith(u' ')) {
            if (inRegistered)
                answer.registered.append(line.trimmed());
        } else {
            inRegistered = line.startsWith("Registered applications");
        }
    }
    return answer;
}

QString XdgTree::xdgMimeDefault(const QString &mimeType)
{
    return runProgram("xdg-mime", {"query", "default", mimeType}, 30000).text().trimmed();
}

bool XdgTree::xdgMimeSet(const QString &id, const QStringList &schemes)
{
    QStringList arguments{"default", id + u".desktop"};
    for (const QString &scheme : schemes)
        arguments.append(u"x-scheme-handler/" + scheme);
    return runProgram("xdg-mime", arguments, 30000).succeeded();
}

bool XdgTree::gioSet(const QString &scheme, const QString &id)
{
    return runProgram("gio", {"mime", u"x-scheme-handler/" + scheme, id + u".desktop"}, 30000)
        .succeeded();
}
