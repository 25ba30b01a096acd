#include "core/feedback/UserPerceivedText.h"

#include <QTextBoundaryFinder>

namespace UserPerceivedText {

qsizetype characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() > 0)
        ++count;
    return count;
}

QString prefix(const QString &text, qsizetype count)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype taken = 0; taken < count; ++taken) {
        const qsizetype next = finder.toNextBoundary();
        if (next < 0)
            return text;
        end = next;
    }
    return text.left(end);
}

} // namespace UserPerceivedText
