#include "core/support/TextFormat.h"

#include <QTest>

class TextFormatTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fills_data();
    void fills();
};

void TextFormatTest::fills_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text in order")
        << "Made %@ the default; the target is %@." << QVariantList{"Firefox", "Chromium"}
        << "Made Firefox the default; the target is Chromium.";
    QTest::newRow("positional swaps the order")
        << "%2$@ vor %1$@" << QVariantList{"a", "b"} << "b vor a";
    QTest::newRow("positional repeated") << "%1$@/%1$@" << QVariantList{"x"} << "x/x";
    QTest::newRow("64-bit integer")
        << "Found: %lld" << QVariantList{qint64(9000000000)} << "Found: 9000000000";
    QTest::newRow("unsigned reads the bits as unsigned")
        << "%llu" << QVariantList{qint64(-1)} << "18446744073709551615";
    QTest::newRow("escaped percent, also before a specifier")
        << "100%% sure, %%%@" << QVariantList{"x"} << "100% sure, %x";
    QTest::newRow("lone percent at the end") << "50%" << QVariantList{} << "50%";
    QTest::newRow("unknown specifier kept, value not used")
        << "%f then %@" << QVariantList{"a"} << "%f then a";
    QTest::newRow("position zero names no value") << "%0$@|%@" << QVariantList{"a"} << "%0$@|a";
    QTest::newRow("value missing becomes empty") << "[%@][%@]" << QVariantList{"a"} << "[a][]";
}

void TextFormatTest::fills()
{
    QFETCH(QString, pattern);
    QFETCH(QVariantList, values);
    QFETCH(QString, expected);
    QCOMPARE(TextFormat::format(pattern, values), expected);
}

QTEST_GUILESS_MAIN(TextFormatTest)
#include "tst_text_format.moc"
