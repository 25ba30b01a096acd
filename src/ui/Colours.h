#pragma once

#include <QColor>

// The colour with its alpha replaced.
inline QColor withAlpha(QColor colour, double alpha)
{
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}
