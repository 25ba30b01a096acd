#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

// Pictures for the symbol names the interface uses ("globe", "checkmark.shield.fill").
class SymbolTable {
public:
    static bool contains(const QString &symbol);
    static QString resourcePath(const QString &symbol);
    // The symbol as an icon; a null icon for an unknown name.
    static QIcon icon(const QString &symbol);
    // The symbol drawn at `size` pixels in one colour: the colour shows only where the
    // symbol is opaque.
    static QPixmap tinted(const QString &symbol, const QColor &color, int size);
};
