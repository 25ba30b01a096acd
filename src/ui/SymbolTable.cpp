#include "ui/SymbolTable.h"

#include <QFile>
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
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(resourcePath(symbol));
    if (!renderer.isValid())
        return pixmap;
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, size, size));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}
