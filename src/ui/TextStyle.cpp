#include "ui/TextStyle.h"

#include <QLabel>

namespace {

struct Metrics {
    double points;
    QFont::Weight weight;
};

Metrics metricsOf(TextStyle::Style style)
{
    switch (style) {
    case TextStyle::largeTitle:
        return {26, QFont::Bold};
    case TextStyle::title:
        return {22, QFont::Bold};
    case TextStyle::title2:
        return {17, QFont::Bold};
    case TextStyle::headline:
        return {13, QFont::DemiBold};
    case TextStyle::body:
        return {13, QFont::Normal};
    case TextStyle::subheadline:
        return {11, QFont::Normal};
    case TextStyle::caption:
        return {10, QFont::Normal};
    case TextStyle::caption2:
        return {9, QFont::Normal};
    }
    Q_UNREACHABLE();
}

} // namespace

QFont TextStyle::font(const QFont &body, Style style)
{
    const Metrics metrics = metricsOf(style);
    QFont font = body;
    font.setPointSizeF(body.pointSizeF() * metrics.points / 13.0);
    font.setWeight(metrics.weight);
    return font;
}

void TextStyle::apply(QLabel *label, Style style)
{
    label->setFont(font(QFont(), style));
}

void TextStyle::makeSecondary(QLabel *label)
{
    label->setForegroundRole(QPalette::PlaceholderText);
}
