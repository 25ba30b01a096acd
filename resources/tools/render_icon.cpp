// Renders the program's SVG icon into the PNG sizes that icon themes look for:
//   render_icon <icon.svg> <output folder> <size>...
// writes <output folder>/<size>x<size>/<icon name>.png for each size.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool render(QSvgRenderer &svg, int size, const QString &file)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    svg.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    return QDir().mkpath(QFileInfo(file).absolutePath())
           && image.convertToFormat(QImage::Format_ARGB32).save(file, "PNG");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s <icon.svg> <output folder> <size>...\n", argv[0]);
        return 2;
    }
    const QString input = QString::fromLocal8Bit(argv[1]);
    QSvgRenderer svg(input);
    if (!svg.isValid()) {
        std::fprintf(stderr, "%s: not a valid SVG\n", argv[1]);
        return 1;
    }
    const QString name = QFileInfo(input).completeBaseName() + u".png";
    const QString folder = QString::fromLocal8Bit(argv[2]);
    for (int i = 3; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        const QString file =
            folder + u'/' + QString::number(size) + u'x' + QString::number(size) + u'/' + name;
        if (size <= 0 || !render(svg, size, file)) {
            std::fprintf(stderr, "could not write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
