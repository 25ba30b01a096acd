#include "ui/SymbolTable.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

QString SymbolTable::resourcePath(const QString &symbol)
{
    return u":/symbols/" + symbol + u".svg";
}

bool SymbolTable::contains(const QString &symbol)
{
    return QFile::exists(resourcePath(symbol));
}

QIcon SymbolTable::icon(const QString &symbol)
{
    return contains(symbol) ? QIcon(resourcePath(symbol)) : QIcon();
}

QPixmap SymbolTable::tinted(const QString &symbol, const QColor &color, int size)
{
    QImage shape(size, size, QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QSvgRenderer renderer(resourcePath(symbol));
    if (!renderer.isValid())
        return QPixmap::fromImage(shape);
    {
        QPainter painter(&shape);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(0, 0, size, size));
    }
    // Fill, then keep the fill only where the shape is opaque. The shape goes in as one
    // picture so that its transparent pixels clear the fill too.
    QImage tinted(size, size, QImage::Format_ARGB32_Premultiplied);
    tinted.fill(color);
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, shape);
    painter.end();
    return QPixmap::fromImage(tinted);
}
