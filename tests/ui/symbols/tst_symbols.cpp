#include "ui/SymbolTable.h"

#include <QApplication>
#include <QImage>
#include <QTest>

// Every symbol name the interface uses has a picture, and a tinted symbol is the colour
// masked by the symbol's shape.
class SymbolsTest : public QObject {
    Q_OBJECT

    static int opaquePixels(const QImage &image)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        return count;
    }

private Q_SLOTS:
    void everyNameRenders_data()
    {
        QTest::addColumn<QString>("symbol");
        const QString names = QStringLiteral(
            "arrow.clockwise arrow.counterclockwise arrow.down.circle arrow.down.circle.fill "
            "arrow.up.right bell.fill bell.slash bolt bubble.left.and.bubble.right chart.bar "
            "chart.bar.fill chart.bar.xaxis checkmark.circle.fill checkmark.shield.fill "
            "clock.fill cup.and.saucer.fill doc.on.doc doc.text.magnifyingglass envelope eye gear "
            "exclamationmark.shield exclamationmark.shield.fill globe info.circle "
            "list.bullet.rectangle moon.zzz moon.zzz.fill mug.fill shield shield.checkered "
            "shield.fill square.and.arrow.up trash xmark.shield.fill");
        for (const QString &name : names.split(u' '))
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyNameRenders()
    {
        QFETCH(QString, symbol);
        QVERIFY(SymbolTable::contains(symbol));
        const QImage image = SymbolTable::icon(symbol).pixmap(32, 32).toImage();
        QVERIFY(!image.isNull());
        QVERIFY(opaquePixels(image) > 20);
    }

    void unknownNamesGiveNothing()
    {
        QVERIFY(!SymbolTable::contains("no.such.symbol"));
        QVERIFY(SymbolTable::icon("no.such.symbol").isNull());
    }

    void tintShowsOnlyWhereTheShapeIs()
    {
        const QImage filled =
            SymbolTable::tinted("checkmark.shield.fill", QColor(52, 199, 89), 64).toImage();
        const QImage outline = SymbolTable::tinted("shield", QColor(52, 199, 89), 64).toImage();
        // Corners lie outside the shield; its middle is inside; the check mark is a hole.
        QCOMPARE(qAlpha(filled.pixel(1, 1)), 0);
        QCOMPARE(filled.pixelColor(20, 20).rgb(), QColor(52, 199, 89).rgb());
        QVERIFY(opaquePixels(filled) > opaquePixels(outline));
        const int checkX = 28, checkY = 34; // on the check mark's stroke
        QVERIFY(qAlpha(filled.pixel(checkX, checkY)) < 128);
    }
};

QTEST_MAIN(SymbolsTest)
#include "tst_symbols.moc"
