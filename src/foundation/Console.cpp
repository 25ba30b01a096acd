#include "foundation/Console.h"

#include <QMutex>
#include <QMutexLocker>

#include <cstdio>

namespace {

QMutex &sinkMutex()
{
    static QMutex mutex;
    return mutex;
}

Console::Sink &currentSink()
{
    static Console::Sink sink;
    return sink;
}

void writeTo(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void Console::line(const QString &text)
{
    // Lines can come from worker threads (the default change's system calls).
    QMutexLocker lock(&sinkMutex());
    if (currentSink())
        currentSink()(text);
    else
        writeTo(stdout, text);
}

void Console::setSink(Sink sink)
{
    QMutexLocker lock(&sinkMutex());
    currentSink() = std::move(sink);
}

void Console::toStandardError()
{
    setSink([](const QString &text) { writeTo(stderr, text); });
}
