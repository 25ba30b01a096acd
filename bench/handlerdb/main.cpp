// Prints how long the handler database takes for a default lookup, a full list and a write
// on a temporary tree of about 200 desktop entries.
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}

template <typename Call>
double microsecondsPerCall(int rounds, Call call)
{
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < rounds; ++i)
        call(i);
    return double(timer.nsecsElapsed()) / 1000.0 / rounds;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    const QString root = dir.path();
    qputenv("HOME", QFile::encodeName(root));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root + QStringLiteral("/config")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(root + QStringLiteral("/etc")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root + QStringLiteral("/local")));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(root + QStringLiteral("/share1:") + root
                                               + QStringLiteral("/share2")));
    qputenv("XDG_CURRENT_DESKTOP", "GNOME");

    const QString program = root + QStringLiteral("/bin/app");
    write(program, "#!/bin/sh\n");
    QFile::setPermissions(program, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    QByteArray translations;
    for (int i = 0; i < 60; ++i)
        translations +=
            "Comment[l" + QByteArray::number(i) + "]=A translated comment for this application\n";
    for (int i = 0; i < 200; ++i) {
        const bool browser = i % 20 == 0;
        const QByteArray types = browser ? "text/html;x-scheme-handler/http;x-scheme-handler/https;"
                                         : "text/plain;image/png;";
        const QString share = i % 2 ? QStringLiteral("/share1") : QStringLiteral("/share2");
        write(root + share + QStringLiteral("/applications/app") + QString::number(i)
                  + QStringLiteral(".desktop"),
              "[Desktop Entry]\nType=Application\nName=App " + QByteArray::number(i)
                  + "\nExec=" + program.toUtf8() + " %u\nMimeType=" + types + "\n" + translations);
    }
    for (const char *share : {"/share1", "/share2"})
        QProcess::execute(QStringLiteral("update-desktop-database"),
                          {root + QLatin1String(share) + QStringLiteral("/applications")});
    write(root + QStringLiteral("/config/mimeapps.list"),
          "[Default Applications]\nx-scheme-handler/https=app40.desktop\n");

    FreedesktopHandlerDatabase db;
    QTextStream out(stdout);
    const int rounds = 200;
    out << "tree: 200 desktop entries, 10 of them browsers\n";
    out << "default lookup (explicit default): " << microsecondsPerCall(rounds, [&](int) {
        db.defaultApplicationForScheme(QStringLiteral("https"));
    }) << " us\n";
    out << "default lookup (from associations): " << microsecondsPerCall(rounds, [&](int) {
        db.defaultApplicationForScheme(QStringLiteral("http"));
    }) << " us\n";
    out << "full list (https): " << microsecondsPerCall(rounds, [&](int) {
        db.applicationsForScheme(QStringLiteral("https"));
    }) << " us\n";
    out << "write default: " << microsecondsPerCall(50, [&](int i) {
        db.setDefaultHandler(QStringLiteral("https"),
                             i % 2 ? QStringLiteral("app20") : QStringLiteral("app60"));
    }) << " us\n";
    return 0;
}
