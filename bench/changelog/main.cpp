// Adding one record to a full log: the whole read, sort, trim and rewrite, through a real
// settings file. Prints the median and worst time of an add, and the size of the blob.

#include "core/changelog/ChangeLogCodec.h"
#include "core/changelog/LogManager.h"
#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "core/support/SystemClock.h"
#include "foundation/Console.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    SettingsStore store(dir.path() + u"/settings.ini");
    const SystemClock clock;
    LogManager log(store, clock);
    Console::setSink([](const QString &) {});

    const QString from = QStringLiteral("Google Chrome");
    const QString to = QStringLiteral("Firefox Developer Edition");
    QElapsedTimer fill;
    fill.start();
    for (qsizetype i = 0; i < LogManager::maxLogs; ++i)
        log.logBrowserChange(from, to);
    const qint64 fillMs = fill.elapsed();

    constexpr int rounds = 50;
    std::vector<double> micros;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        log.logEmailChange(from, to);
        micros.push_back(static_cast<double>(timer.nsecsElapsed()) / 1000.0);
    }
    std::sort(micros.begin(), micros.end());

    QElapsedTimer read;
    read.start();
    const qsizetype count = log.getAllLogs().size();
    const double readMicros = static_cast<double>(read.nsecsElapsed()) / 1000.0;

    const QByteArray blob = *store.value(SettingsTable::changeLog);
    QElapsedTimer codec;
    codec.start();
    const auto decoded = ChangeLogCodec::decode(blob);
    const double decodeMicros = static_cast<double>(codec.nsecsElapsed()) / 1000.0;
    codec.restart();
    const auto encoded = ChangeLogCodec::encode(*decoded);
    const double encodeMicros = static_cast<double>(codec.nsecsElapsed()) / 1000.0;

    QTextStream out(stdout);
    out << "records: " << count << "\n"
        << "fill to " << LogManager::maxLogs << " records: " << fillMs << " ms\n"
        << "add to a full log (" << rounds << " runs): median " << qRound(micros[rounds / 2])
        << " us, worst " << qRound(micros.back()) << " us\n"
        << "read of a full log: " << qRound(readMicros) << " us\n"
        << "of which decoding " << qRound(decodeMicros) << " us; encoding takes "
        << qRound(encodeMicros) << " us\n"
        << "blob: " << encoded->size() << " bytes\n"
        << "settings file: " << QFileInfo(store.filePath()).size() << " bytes\n";
    return 0;
}
