#pragma once

#include "core/settings/AppearanceMode.h"

#include <QPalette>

// The look of the whole application. Light and dark are the Fusion style with a light or a
// dark palette; system leaves the platform's own style and palette, or gives them back
// after a light or dark look.
class Appearance {
public:
    static void apply(AppearanceMode mode);
    // Applies `mode` at the next turn of the event loop.
    static void applyAtNextTurn(AppearanceMode mode);

    // The palette of the desktop, whatever look the application has put over it: for what
    // is drawn on the desktop's own surfaces, such as the tray.
    static QPalette platformPalette();
    static QPalette lightPalette();
    static QPalette darkPalette();
};
