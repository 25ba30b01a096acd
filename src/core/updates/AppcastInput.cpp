#include "core/updates/AppcastInput.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace {

// The encoding named by an XML declaration at the very start, if any.
QByteArray declaredEncoding(const QByteArray &data)
{
    if (!data.startsWith("<?xml"))
        return {};
    const qsizetype end = data.indexOf("?>");
    if (end < 0)
        return {};
    static const QRegularExpression encoding(
        QStringLiteral(R"re(\sencoding\s*=\s*(["'])([A-Za-z][A-Za-z0-9._-]*)\1)re"));
    const QRegularExpressionMatch match =
        encoding.match(QString::fromLatin1(data.constData(), end));
    return match.hasMatch() ? match.captured(2).toLatin1() : QByteArray();
}

QStringDecoder decoderFor(const QByteArray &data)
{
    if (const auto detected = QStringDecoder::encodingForData(data, u'<'))
        return QStringDecoder(*detected);
    const QByteArray declared = declaredEncoding(data);
    if (declared.isEmpty())
        return QStringDecoder(QStringDecoder::Utf8);
    return QStringDecoder(declared.constData()); // invalid when unknown: the input is refused
}

// Position just past `terminator` at or after `from`, or -1.
qsizetype skipPast(QStringView text, qsizetype from, QStringView terminator)
{
    const qsizetype at = text.indexOf(terminator, from);
    return at < 0 ? -1 : at + terminator.size();
}

// Counts the attribute assignments and the '[' of the tag or declaration opening at `start`
// (outside quoted values) and returns the position after it, or -1 when it is unterminated.
qsizetype scanTag(QStringView text, qsizetype start, int *assignments, int *brackets)
{
    char16_t quote = 0;
    for (qsizetype i = start + 1; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (quote) {
            if (c == quote)
                quote = 0;
        } else if (c == u'"' || c == u'\'') {
            quote = c;
        } else if (c == u'=') {
            ++*assignments;
        } else if (c == u'[') {
            ++*brackets;
        } else if (c == u'>') {
            return i + 1;
        }
    }
    return -1;
}

} // namespace

std::optional<QString> AppcastInput::decode(const QByteArray &data)
{
    if (data.size() > kMaxBytes)
        return std::nullopt;
    QStringDecoder decoder = decoderFor(data);
    if (!decoder.isValid())
        return std::nullopt;
    QString text = decoder.decode(data);
    if (decoder.hasError() || !markupWithinLimits(text))
        return std::nullopt;
    return text;
}

bool AppcastInput::markupWithinLimits(QStringView text)
{
    qsizetype i = 0;
    while (i >= 0 && (i = text.indexOf(u'<', i)) >= 0) {
        const QStringView rest = text.sliced(i);
        if (rest.startsWith(u"<!--")) {
            i = skipPast(text, i + 4, u"-->");
        } else if (rest.startsWith(u"<![CDATA[")) {
            i = skipPast(text, i + 9, u"]]>");
        } else if (rest.startsWith(u"<?")) {
            i = skipPast(text, i + 2, u"?>");
        } else {
            // A document type declaration may name an external DTD, which the reader never
            // loads; its internal subset, where entities and attribute lists are declared,
            // starts with '['. Nothing else in XML starts with "<!".
            const bool declaration = rest.startsWith(u"<!");
            if (declaration && !rest.startsWith(u"<!DOCTYPE"))
                return false;
            int assignments = 0;
            int brackets = 0;
            i = scanTag(text, i, &assignments, &brackets);
            if (assignments > kMaxAttributesPerTag || (declaration && brackets > 0))
                return false;
        }
    }
    return true;
}
