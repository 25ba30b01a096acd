#include "aptabase/DebugPrint.h"

#include <QList>
#include <QMutex>
#include <QMutexLocker>

#include <cstdio>

namespace {

QMutex sinkMutex;
DebugPrint::Sink currentSink;

QString escaped(char32_t scalar)
{
    switch (scalar) {
    case U'\0':
        return QStringLiteral("\\0");
    case U'\t':
        return QStringLiteral("\\t");
    case U'\n':
        return QStringLiteral("\\n");
    case U'\r':
        return QStringLiteral("\\r");
    case U'"':
        return QStringLiteral("\\\"");
    case U'\'':
        return QStringLiteral("\\'");
    case U'\\':
        return QStringLiteral("\\\\");
    default:
        break;
    }
    if (scalar < 0x20 || scalar == 0x7f)
        return QStringLiteral("\\u{") + QString::number(uint(scalar), 16) + QLatin1Char('}');
    return QString::fromUcs4(&scalar, 1);
}

} // namespace

QString DebugPrint::quoted(const QString &text)
{
    QString result = QStringLiteral("\"");
    for (char32_t scalar : text.toUcs4())
        result += escaped(scalar);
    result += QLatin1Char('"');
    return result;
}

void DebugPrint::write(const QString &text)
{
    const QString line = quoted(text);
    QMutexLocker lock(&sinkMutex);
    if (currentSink) {
        currentSink(line);
        return;
    }
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

DebugPrint::Sink DebugPrint::setSink(Sink sink)
{
    QMutexLocker lock(&sinkMutex);
    std::swap(sink, currentSink);
    return sink;
}
