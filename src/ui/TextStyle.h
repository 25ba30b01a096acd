#pragma once

#include <QFont>

class QLabel;

// The pages' text styles, scaled from the body font as the platform the sizes come from
// scales them from its 13-point body text.
class TextStyle {
public:
    enum Style { largeTitle, title, title2, headline, body, subheadline, caption, caption2 };

    static QFont font(const QFont &body, Style style);
    // Sets the label's font to `style` of the application's body font.
    static void apply(QLabel *label, Style style);
    // Draws the label's text in the palette's secondary colour, following palette changes.
    static void makeSecondary(QLabel *label);
};
