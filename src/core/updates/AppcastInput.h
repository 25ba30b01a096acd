#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <optional>

// Turns the feed's bytes into the text the XML reader parses, and refuses input that would let
// the reader run away in memory or time. What QXmlStreamReader does with hostile input:
// - internal entities: capped per expansion, but a thousand references to one large entity
//   still grow a few kilobytes into gigabytes of text or millions of elements;
// - attribute-list declarations and attributes of one tag: checked for duplicates pairwise, so
//   a few hundred kilobytes of them take seconds and a few megabytes take hours, and default
//   attributes are copied into every matching element;
// - everything else is linear in the input.
// A feed is a few kilobytes of plain RSS, so the limits below never touch one: no internal
// subset in a document type declaration (which rules out every entity and declared default;
// a declaration naming only an external DTD, as RSS 0.91 feeds carry, is fine, as the reader
// never loads it), a bounded number of attributes per tag, and a bounded size.
// The bytes are decoded here, as the reader would (byte order mark or UTF-16/32 layout, else
// the encoding named by the XML declaration, else UTF-8), and the reader then parses this very
// text, so the check and the parse cannot read different markup (UTF-7 can spell "<" as
// "+ADw-").
class AppcastInput {
public:
    // About a thousand times the feed we publish; room for a feed with a long history of
    // releases and inline notes.
    static constexpr qsizetype kMaxBytes = 4 * 1024 * 1024;
    // The richest tag of a feed, the enclosure, has about eight.
    static constexpr int kMaxAttributesPerTag = 64;

    // The text to parse, or none when the input is too large, not decodable in its encoding,
    // or holds markup beyond the limits above.
    static std::optional<QString> decode(const QByteArray &data);

    // False when the text holds a document type declaration with an internal subset, any
    // other "<!" declaration, or a tag with more attributes than allowed. Comments, CDATA sections
    // and processing instructions are skipped as the reader skips them; unterminated ones are left
    // for the reader to reject.
    static bool markupWithinLimits(QStringView text);
};
