#pragma once

class QWidget;

// How long the interface's transitions take. A style that turns widget animations off (a
// duration of 0, as tests ask for) makes every transition land at once.
class Motion {
public:
    static int duration(const QWidget *widget, int milliseconds);
};
