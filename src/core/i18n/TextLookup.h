#pragma once

#include <QString>

// Looks an interface text up by its key. A key without a text reads as the key itself.
class TextLookup {
public:
    virtual ~TextLookup() = default;

    virtual QString localizedString(const QString &key) const = 0;
};
