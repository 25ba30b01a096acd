#pragma once

#include "core/guard/ProtectionStatus.h"

#include <QColor>
#include <QIcon>
#include <QList>
#include <QString>

// The tray icon's pictures: one shield per overall status, in one colour, at every size a
// tray host asks for.
class ShieldIcon {
public:
    // Sizes in logical pixels; each is also made at twice the pixels.
    static const QList<int> &sizes();

    // The symbol name and the colour of an overall status.
    static QString symbolFor(ProtectionStatus status);
    static QColor colourFor(ProtectionStatus status);
    // The key of the status's name ("status_protected", ...).
    static QString textKeyFor(ProtectionStatus status);

    // `colour` where the symbol's shape is opaque and nothing elsewhere, drawn afresh at
    // every size. A symbol that has no picture gives the plain "shield".
    static QIcon make(const QString &symbol, const QColor &colour);
};
