#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// One key of the interface vocabulary and the format specifiers its text must hold, in
// the order the caller passes the arguments ("%@" for text, "%lld" for integers).
struct CatalogueEntry {
    QString key;
    QStringList specifiers;
};

// Every key the interface looks up, in one place: the string tables are checked against
// this list, key by key and specifier by specifier.
class StringCatalogue {
public:
    static const QList<CatalogueEntry> &entries();

    // The specifiers of a text in order of appearance, positional forms reduced to their
    // conversion ("%2$@" reads as "%@"); "%%" is no specifier.
    static QStringList specifiersIn(const QString &text);
};
