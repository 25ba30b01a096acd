#pragma once

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

// The Fusion style with widget animations turned off: every transition lands at once, so a
// test never waits for one.
class InstantAnimations final : public QProxyStyle {
public:
    InstantAnimations() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_Widget_Animation_Duration)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    // For the whole application; call before any widget is made.
    static void install() { QApplication::setStyle(new InstantAnimations); }
};
