#include "core/support/TextFormat.h"

#include <array>

namespace {

enum class Kind { text, signedInteger, unsignedInteger };

struct Conversion {
    QLatin1StringView spelling;
    Kind kind;
};

// Longer spellings first, so "lld" is not read as "l" followed by text.
constexpr std::array<Conversion, 8> conversions = {{
    {QLatin1StringView("@"), Kind::text},
    {QLatin1StringView("lld"), Kind::signedInteger},
    {QLatin1StringView("llu"), Kind::unsignedInteger},
    {QLatin1StringView("ld"), Kind::signedInteger},
    {QLatin1StringView("lu"), Kind::unsignedInteger},
    {QLatin1StringView("d"), Kind::signedInteger},
    {QLatin1StringView("i"), Kind::signedInteger},
    {QLatin1StringView("u"), Kind::unsignedInteger},
}};

const Conversion *conversionAt(const QString &pattern, qsizetype pos)
{
    const QStringView rest = QStringView(pattern).mid(pos);
    for (const Conversion &conversion : conversions) {
        if (rest.startsWith(conversion.spelling))
            return &conversion;
    }
    return nullptr;
}

QString render(const QVariant &value, Kind kind)
{
    if (!value.isValid())
        return {};
    switch (kind) {
    case Kind::text:
        return value.toString();
    case Kind::signedInteger:
        return QString::number(value.toLongLong());
    case Kind::unsignedInteger:
        return QString::number(value.toULongLong());
    }
    return {};
}

} // namespace

QString TextFormat::format(const QString &pattern, const QVariantList &values)
{
    QString out;
    out.reserve(pattern.size() + 16);
    qsizetype next = 0; // the value the next non-positional specifier takes
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c != u'%' || i + 1 >= pattern.size()) {
            out += c;
            continue;
        }
        if (pattern.at(i + 1) == u'%') {
            out += u'%';
            ++i;
            continue;
        }
        qsizetype pos = i + 1;
        qsizetype index = -1;
        qsizetype digitsEnd = pos;
        while (digitsEnd < pattern.size() && pattern.at(digitsEnd).isDigit())
            ++digitsEnd;
        bool positional = false;
        if (digitsEnd > pos && digitsEnd < pattern.size() && pattern.at(digitsEnd) == u'$') {
            positional = true;
            index = pattern.mid(pos, digitsEnd - pos).toLongLong() - 1;
            pos = digitsEnd + 1;
        }
        const Conversion *conversion = conversionAt(pattern, pos);
        if (!conversion || (positional && index < 0)) { // "%0$@" names no value
            out += c;
            continue;
        }
        if (!positional)
            index = next++;
        out += render(values.value(index), conversion->kind);
        i = pos + conversion->spelling.size() - 1;
    }
    return out;
}
