#pragma once

#include <QColor>

// The colour with its alpha replaced.
inline QColor withAlpha(QColor colour, double alpha)
{
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

// The colours of states: a default in place, a warning or a pause, a stop.
namespace StateColour {
inline const QColor green(0x34, 0xC7, 0x59);
inline const QColor orange(0xFF, 0x95, 0x00);
inline const QColor red(0xFF, 0x3B, 0x30);
} // namespace StateColour
