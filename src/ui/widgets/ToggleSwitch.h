#pragma once

#include <QAbstractButton>

// An on/off switch: a checkable button drawn as a track with a knob, as tall as the style's
// check boxes. Space toggles it when it has focus; screen readers see a check box with the
// accessible name given, since the switch shows no text of its own. Listen to toggled():
// a screen reader's "Toggle" action toggles without a click.
class ToggleSwitch : public QAbstractButton {
    Q_OBJECT
public:
    explicit ToggleSwitch(const QString &accessibleName = {}, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};
