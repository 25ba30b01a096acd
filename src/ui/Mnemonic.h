#pragma once

#include <QString>

// `text` for a menu entry or button that must show every "&" as it is, not take the
// letter after one as its keyboard mnemonic.
inline QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}
