#pragma once

#include <QString>
#include <QUuid>

// A UUID as stored and sent: 36 characters, upper case, no braces.
inline QString canonicalUuid(const QUuid &uuid)
{
    return uuid.toString(QUuid::WithoutBraces).toUpper();
}
