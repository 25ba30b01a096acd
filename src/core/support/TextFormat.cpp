#include "core/support/TextFormat.h"

#include <array>

namespace {

constexpr std::array<QLatin1StringView, 7> integerSpecifiers = {
    QLatin1StringView("lld"), QLatin1StringView("llu"), QLatin1StringView("ld"),
    QLatin1StringView("lu"),  QLatin1StringView("d"),   QLatin1StringView("i"),
    QLatin1StringView("u")};

// Length of the conversion at `pos` ("@" or one of the integer forms), 0 if none.
qsizetype conversionLength(const QString &pattern, qsizetype pos, bool *isText)
{
    if (pos < pattern.size() && pattern.at(pos) == u'@') {
        *isText = true;
        return 1;
    }
    *isText = false;
    const QStringView rest = QStringView(pattern).mid(pos);
    for (QLatin1StringView spec : integerSpecifiers) {
        if (rest.startsWith(spec))
            return spec.size();
    }
    return 0;
}

QString render(const QVariant &value, bool asText)
{
    if (!value.isValid())
        return {};
    if (asText)
        return value.toString();
    return QString::number(value.toLongLong());
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
        if (digitsEnd > pos && digitsEnd < pattern.size() && pattern.at(digitsEnd) == u'$') {
            index = pattern.mid(pos, digitsEnd - pos).toLongLong() - 1;
            pos = digitsEnd + 1;
        }
        bool asText = false;
        const qsizetype length = conversionLength(pattern, pos, &asText);
        if (length == 0) {
            out += c;
            continue;
        }
        if (index < 0)
            index = next++;
        out += render(values.value(index), asText);
        i = pos + length - 1;
    }
    return out;
}
