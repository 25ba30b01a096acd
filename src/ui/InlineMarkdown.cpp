#include "ui/InlineMarkdown.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

namespace {

bool isPlainParagraph(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    return !block.textList() && format.headingLevel() == 0
           && !format.hasProperty(QTextFormat::BlockQuoteLevel)
           && !format.hasProperty(QTextFormat::BlockCodeFence)
           && !format.hasProperty(QTextFormat::BlockCodeLanguage)
           && !format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)
           && !format.nonBreakableLines();
}

} // namespace

std::optional<QString> InlineMarkdown::toRichText(const QString &markdown, const QFont &font)
{
    if (markdown.contains(u'\n') || markdown.contains(u'\r'))
        return std::nullopt;
    QTextDocument document;
    document.setDefaultFont(font);
    document.setMarkdown(markdown, QTextDocument::MarkdownNoHTML);
    if (document.blockCount() != 1 || !document.rootFrame()->childFrames().isEmpty()
        || !isPlainParagraph(document.firstBlock()))
        return std::nullopt;
    return document.toHtml();
}
