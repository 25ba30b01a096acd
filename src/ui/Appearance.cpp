#include "ui/Appearance.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

#include <memory>
#include <optional>

namespace {

const QColor systemBlue(0x00, 0x7A, 0xFF);
const QColor systemBlueOnDark(0x0A, 0x84, 0xFF);

// The platform's style and palette, kept when a light or dark look first replaces them.
struct PlatformLook {
    QString styleName;
    QPalette palette;
};

std::optional<PlatformLook> &platformLook()
{
    static std::optional<PlatformLook> look;
    return look;
}

void setColours(QPalette &palette, QPalette::ColorRole role, const QColor &active,
                const QColor &disabled)
{
    palette.setColor(QPalette::All, role, active);
    palette.setColor(QPalette::Disabled, role, disabled);
}

} // namespace

void Appearance::apply(AppearanceMode mode)
{
    std::optional<PlatformLook> &platform = platformLook();
    if (mode == AppearanceMode::system) {
        if (!platform)
            return;
        QApplication::setStyle(QStyleFactory::create(platform->styleName));
        QApplication::setPalette(platform->palette);
        platform.reset();
        return;
    }
    if (!platform)
        platform = PlatformLook{QApplication::style()->name(), QApplication::palette()};
    if (QApplication::style()->name() != QLatin1String("fusion"))
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(mode == AppearanceMode::dark ? darkPalette() : lightPalette());
}

void Appearance::applyAtNextTurn(AppearanceMode mode)
{
    QMetaObject::invokeMethod(
        qApp, [mode] { apply(mode); }, Qt::QueuedConnection);
}

QPalette Appearance::platformPalette()
{
    const std::optional<PlatformLook> &platform = platformLook();
    return platform ? platform->palette : QApplication::palette();
}

QPalette Appearance::lightPalette()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette = fusion->standardPalette();
    palette.setColor(QPalette::All, QPalette::Highlight, systemBlue);
    palette.setColor(QPalette::All, QPalette::Link, systemBlue);
    palette.setColor(QPalette::All, QPalette::PlaceholderText, QColor(0x6E, 0x6E, 0x73));
    return palette;
}

QPalette Appearance::darkPalette()
{
    QPalette palette;
    const QColor text(0xEB, 0xEB, 0xEB);
    const QColor disabledText(0x70, 0x70, 0x74);
    setColours(palette, QPalette::Window, QColor(0x26, 0x26, 0x28), QColor(0x26, 0x26, 0x28));
    setColours(palette, QPalette::WindowText, text, disabledText);
    setColours(palette, QPalette::Base, QColor(0x1C, 0x1C, 0x1E), QColor(0x22, 0x22, 0x24));
    setColours(palette, QPalette::AlternateBase, QColor(0x2C, 0x2C, 0x2E),
               QColor(0x2C, 0x2C, 0x2E));
    setColours(palette, QPalette::Text, text, disabledText);
    setColours(palette, QPalette::Button, QColor(0x3A, 0x3A, 0x3C), QColor(0x30, 0x30, 0x32));
    setColours(palette, QPalette::ButtonText, text, disabledText);
    setColours(palette, QPalette::BrightText, Qt::white, Qt::white);
    setColours(palette, QPalette::Light, QColor(0x55, 0x55, 0x58), QColor(0x55, 0x55, 0x58));
    setColours(palette, QPalette::Midlight, QColor(0x44, 0x44, 0x47), QColor(0x44, 0x44, 0x47));
    setColours(palette, QPalette::Mid, QColor(0x30, 0x30, 0x32), QColor(0x30, 0x30, 0x32));
    setColours(palette, QPalette::Dark, QColor(0x18, 0x18, 0x1A), QColor(0x18, 0x18, 0x1A));
    setColours(palette, QPalette::Shadow, Qt::black, Qt::black);
    setColours(palette, QPalette::Highlight, systemBlueOnDark, QColor(0x3A, 0x3A, 0x3C));
    setColours(palette, QPalette::HighlightedText, Qt::white, disabledText);
    setColours(palette, QPalette::Link, systemBlueOnDark, disabledText);
    setColours(palette, QPalette::LinkVisited, QColor(0xBF, 0x5A, 0xF2), disabledText);
    setColours(palette, QPalette::ToolTipBase, QColor(0x3A, 0x3A, 0x3C), QColor(0x3A, 0x3A, 0x3C));
    setColours(palette, QPalette::ToolTipText, text, text);
    setColours(palette, QPalette::PlaceholderText, QColor(0x98, 0x98, 0x9F), disabledText);
    return palette;
}
