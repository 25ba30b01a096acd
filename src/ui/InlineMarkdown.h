#pragma once

#include <QFont>
#include <QString>

#include <optional>

// Reads a short text as inline Markdown only (emphasis, strong, code spans, links) and gives
// it as rich text for a label. Fails, rather than guessing, when the text is not a single
// line of inline elements: a line break, a heading, a list, a quote, a code block, a rule
// or a table. Raw HTML is not interpreted.
class InlineMarkdown {
public:
    static std::optional<QString> toRichText(const QString &markdown, const QFont &font);
};
