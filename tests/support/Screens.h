#pragma once

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>

// What screenshot tests share: a dark palette, and whether a real font draws the text.
namespace Screens {

inline QPalette darkPalette()
{
    QPalette dark(QColor(0x3a, 0x3a, 0x3a), QColor(0x1e, 0x1e, 0x1e));
    dark.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2a));
    dark.setColor(QPalette::Highlight, QColor(0x0a, 0x84, 0xff));
    dark.setColor(QPalette::PlaceholderText, QColor(0x98, 0x98, 0x9d));
    return dark;
}

// Without fonts every letter is the same box: "iiii" is then as wide as "WWWW".
inline bool hasRealFont()
{
    const QFontMetrics metrics(QApplication::font());
    return metrics.horizontalAdvance(QStringLiteral("iiii"))
           < metrics.horizontalAdvance(QStringLiteral("WWWW"));
}

} // namespace Screens
