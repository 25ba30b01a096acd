#pragma once

#include "core/updates/AppcastResult.h"

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QXmlStreamAttributes>

#include <optional>

// Reads an appcast as a stream of element and text events and keeps the release of the last
// "item". The three event handlers hold all the rules; parseAppcast() feeds them from
// QXmlStreamReader. Names are compared as written, prefix included ("sparkle:version"):
// namespaces are not processed, so a feed binding these names to another prefix is not
// understood.
class AppcastParser {
public:
    // Runs a fresh parser over the feed. None when the XML is malformed (even if fields were
    // filled before the error) or when the input is refused by AppcastInput; well-formed XML
    // without any version gives an empty version.
    static std::optional<AppcastResult> parseAppcast(const QByteArray &data);

    // Elements nested deeper than this make the feed fail. A feed is four levels deep; the
    // reader keeps a frame per open element, so unbounded nesting would cost memory in
    // proportion to the input.
    static constexpr int kMaxDepth = 256;

    void didStartElement(QStringView qualifiedName, const QXmlStreamAttributes &attributes);
    // One text chunk, as the reader delivers it; a text split by a comment or a processing
    // instruction arrives as several chunks. CDATA sections are never passed here.
    void foundCharacters(QStringView chunk);
    void didEndElement(QStringView qualifiedName);

    const QString &latestVersion() const { return m_latestVersion; }
    const std::optional<QString> &releaseNotesURL() const { return m_releaseNotesURL; }
    const QString &currentElement() const { return m_currentElement; }
    bool isInItem() const { return m_isInItem; }

private:
    QString m_latestVersion;
    std::optional<QString> m_releaseNotesURL;
    QString m_currentElement;
    bool m_isInItem = false;
};
