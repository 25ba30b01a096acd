#pragma once

#include <QString>
#include <QStringList>

// One modal question: a title, a text, the buttons to answer it with and a symbol. The
// first button is the default (Return); Escape or closing the box answers the last.
struct ModalPrompt {
    enum class Style { informational, warning, critical };

    QString title;
    QString text;
    QStringList buttons;
    QString symbolName; // a symbol of the program's symbol table; empty: the style's own
    Style style = Style::informational;
    // What a screen reader says for the symbol; empty: nothing.
    QString symbolDescription = QString();
};
