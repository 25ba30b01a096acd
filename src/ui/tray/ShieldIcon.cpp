#include "ui/tray/ShieldIcon.h"

#include "ui/Colours.h"
#include "ui/SymbolTable.h"

#include <set>

const QList<int> &ShieldIcon::sizes()
{
    static const QList<int> sizes{16, 22, 24, 32, 48};
    return sizes;
}

QString ShieldIcon::symbolFor(ProtectionStatus status)
{
    switch (status) {
    case ProtectionStatus::protected_:
        return QStringLiteral("checkmark.shield.fill");
    case ProtectionStatus::notProtected:
        return QStringLiteral("xmark.shield.fill");
    case ProtectionStatus::mismatch:
        return QStringLiteral("exclamationmark.shield.fill");
    }
    return QStringLiteral("shield");
}

QColor ShieldIcon::colourFor(ProtectionStatus status)
{
    switch (status) {
    case ProtectionStatus::protected_:
        return StateColour::green;
    case ProtectionStatus::notProtected:
        return StateColour::red;
    case ProtectionStatus::mismatch:
        return StateColour::orange;
    }
    return StateColour::red;
}

QIcon ShieldIcon::make(const QString &symbol, const QColor &colour)
{
    const QString drawn = SymbolTable::contains(symbol) ? symbol : QStringLiteral("shield");
    if (!SymbolTable::contains(drawn))
        qFatal("The plain shield symbol is missing from the resources");
    std::set<int> pixelSizes;
    for (int size : sizes()) {
        pixelSizes.insert(size);
        pixelSizes.insert(size * 2);
    }
    QIcon icon;
    for (int pixels : pixelSizes)
        icon.addPixmap(SymbolTable::tinted(drawn, colour, pixels));
    return icon;
}
