#include "ui/tray/ShieldIcon.h"

#include "ui/Colours.h"
#include "ui/SymbolTable.h"

#include <set>

const QList<int> &ShieldIcon::sizes()
{
    static const QList<int> sizes{16, 22, 24, 32, 48};
    return sizes;
}

namespace {

struct Look {
    const char *symbol;
    QColor colour;
    const char *textKey;
};

const Look &lookOf(ProtectionStatus status)
{
    static const Look protectedLook{"checkmark.shield.fill", StateColour::green,
                                    "status_protected"};
    static const Look notProtectedLook{"xmark.shield.fill", StateColour::red,
                                       "status_not_protected"};
    static const Look mismatchLook{"exclamationmark.shield.fill", StateColour::orange,
                                   "status_mismatch"};
    return status == ProtectionStatus::protected_ ? protectedLook
           : status == ProtectionStatus::mismatch ? mismatchLook
                                                  : notProtectedLook;
}

} // namespace

QString ShieldIcon::symbolFor(ProtectionStatus status)
{
    return QLatin1StringView(lookOf(status).symbol);
}

QColor ShieldIcon::colourFor(ProtectionStatus status)
{
    return lookOf(status).colour;
}

QString ShieldIcon::textKeyFor(ProtectionStatus status)
{
    return QLatin1StringView(lookOf(status).textKey);
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
