#pragma once

#include <QString>

// Counting and cutting text by user-perceived characters (extended grapheme clusters), so
// that an emoji sequence or a letter with combining marks counts as one.
namespace UserPerceivedText {
qsizetype characterCount(const QString &text);
// The first `count` characters of `text`; all of it if it has no more.
QString prefix(const QString &text, qsizetype count);
} // namespace UserPerceivedText
