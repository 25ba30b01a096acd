#include "core/updates/AppcastParser.h"

#include "core/updates/AppcastInput.h"

#include <QXmlStreamReader>

namespace {
constexpr QStringView kItem = u"item";
constexpr QStringView kEnclosure = u"enclosure";
constexpr QLatin1StringView kVersionAttribute("sparkle:version");
constexpr QStringView kShortVersionString = u"sparkle:shortVersionString";
constexpr QStringView kReleaseNotesLink = u"sparkle:releaseNotesLink";
} // namespace

std::optional<AppcastResult> AppcastParser::parseAppcast(const QByteArray &data)
{
    const std::optional<QString> text = AppcastInput::decode(data);
    if (!text)
        return std::nullopt;

    QXmlStreamReader reader(*text);
    reader.setNamespaceProcessing(false);
    AppcastParser parser;
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > kMaxDepth) {
                reader.raiseError(QStringLiteral("Elements nested too deeply"));
                break;
            }
            parser.didStartElement(reader.qualifiedName(), reader.attributes());
            break;
        case QXmlStreamReader::Characters:
            if (!reader.isCDATA())
                parser.foundCharacters(reader.text());
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            parser.didEndElement(reader.qualifiedName());
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        return std::nullopt;
    return AppcastResult{parser.latestVersion(), parser.releaseNotesURL()};
}

void AppcastParser::didStartElement(QStringView qualifiedName,
                                    const QXmlStreamAttributes &attributes)
{
    m_currentElement = qualifiedName.toString();
    if (qualifiedName == kItem) {
        m_isInItem = true;
        m_latestVersion.clear();
        m_releaseNotesURL.reset();
    }
    if (qualifiedName == kEnclosure) {
        // Taken inside an item or not, untrimmed, over whatever the element gave.
        const QStringView version = attributes.value(kVersionAttribute);
        if (!version.isNull())
            m_latestVersion = version.toString();
    }
}

void AppcastParser::foundCharacters(QStringView chunk)
{
    if (!m_isInItem)
        return;
    // The element name outlives its closing tag, so text after it (the line break before the
    // next tag) still lands here: a link followed by whitespace ends up empty. Trimming uses
    // Unicode white space and line breaks (QChar::isSpace).
    if (m_currentElement == kShortVersionString && m_latestVersion.isEmpty())
        m_latestVersion = chunk.trimmed().toString();
    if (m_currentElement == kReleaseNotesLink)
        m_releaseNotesURL = chunk.trimmed().toString();
}

void AppcastParser::didEndElement(QStringView qualifiedName)
{
    if (qualifiedName == kItem)
        m_isInItem = false;
}
