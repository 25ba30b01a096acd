// A later copy started while one runs: how long until it has handed its URL over (or, with
// no URL, said that another copy runs) and ended. Runs the real program under its own
// Xvfb and session bus in a throw-away home; prints the median and worst of each.

#include "PrivateBuses.h"
#include "XvfbDisplay.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

// Milliseconds each run of the program with these arguments took to end.
std::vector<qint64> time(const QStringList &arguments, int rounds)
{
    std::vector<qint64> ms;
    for (int i = 0; i < rounds; ++i) {
        QProcess later;
        QElapsedTimer clock;
        clock.start();
        later.start(QStringLiteral(VANDOREL_BINARY), arguments);
        later.waitForFinished(30000);
        ms.push_back(clock.elapsed());
    }
    std::sort(ms.begin(), ms.end());
    return ms;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir home;
    for (const char *dir : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        const QString path = home.path() + u'/' + QLatin1StringView(dir);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner
                                        | QFileDevice::ExeOwner);
        qputenv(dir, QFile::encodeName(path));
    }
    const PrivateBuses buses;
    const XvfbDisplay display;
    if (!buses.isRunning() || !display.isRunning()) {
        out << "needs dbus-daemon and Xvfb\n";
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");

    QProcess first;
    first.start(QStringLiteral(VANDOREL_BINARY));
    QByteArray log;
    while (!log.contains("🚀 App launched") && first.waitForReadyRead(30000))
        log += first.readAllStandardOutput();

    constexpr int rounds = 10;
    for (const auto &[label, arguments] :
         {std::pair{"URL handed over", QStringList{"vandorel://about"}},
          std::pair{"plain second start", QStringList{}}}) {
        const std::vector<qint64> ms = time(arguments, rounds);
        out << label << ": median " << ms[ms.size() / 2] << " ms, worst " << ms.back()
            << " ms over " << rounds << " runs\n";
    }
    first.terminate();
    first.waitForFinished(10000);
    return 0;
}
