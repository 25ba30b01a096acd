#include "core/updates/VersionOrder.h"

#include <QStringTokenizer>

#include <algorithm>
#include <limits>

bool VersionOrder::isVersion(QStringView version, QStringView newerThan)
{
    const QList<qint64> a = numbers(version);
    const QList<qint64> b = numbers(newerThan);
    const qsizetype length = std::max(a.size(), b.size());
    for (qsizetype i = 0; i < length; ++i) {
        const qint64 x = a.value(i, 0);
        const qint64 y = b.value(i, 0);
        if (x != y)
            return x > y;
    }
    return false;
}

QList<qint64> VersionOrder::numbers(QStringView version)
{
    QList<qint64> result;
    for (const QStringView part : qTokenize(version, u'.', Qt::SkipEmptyParts)) {
        if (const std::optional<qint64> number = toInt64(part))
            result.append(*number);
    }
    return result;
}

std::optional<qint64> VersionOrder::toInt64(QStringView part)
{
    qsizetype i = 0;
    bool negative = false;
    if (!part.isEmpty() && (part[0] == u'+' || part[0] == u'-')) {
        negative = part[0] == u'-';
        i = 1;
    }
    if (i == part.size())
        return std::nullopt;
    constexpr quint64 maxPositive = std::numeric_limits<qint64>::max();
    const quint64 limit = negative ? maxPositive + 1 : maxPositive;
    quint64 value = 0;
    for (; i < part.size(); ++i) {
        const char16_t c = part[i].unicode();
        if (c < u'0' || c > u'9')
            return std::nullopt;
        const unsigned digit = c - u'0';
        if (value > (limit - digit) / 10)
            return std::nullopt;
        value = value * 10 + digit;
    }
    // Wraps modulo 2^64, so the magnitude 2^63 becomes the smallest qint64.
    return negative ? static_cast<qint64>(0 - value) : static_cast<qint64>(value);
}
