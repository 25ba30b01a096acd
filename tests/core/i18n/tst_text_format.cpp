#include "core/support/TextFormat.h"

#include <QTest>

class TextFormatTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fills_data();
    void fills();
    void missingTranslationKeepsTheKeyWordsAndTheValue();
};

void TextFormatTest::fills_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text in order")
        << "Another program made %@ the default; the target is %@."
        << QVariantList{"Firefox", "Chromium"}
        << "Another program made Firefox the default; the target is Chromium.";
    QTest::newRow("positional swaps the order")
        << "%2$@ vor %1$@" << QVariantList{"a", "b"} << "b vor a";
    QTest::newRow("positional repeated") << "%1$@/%1$@" << QVariantList{"x"} << "x/x";
    QTest::newRow("64-bit integer") << "Found: %lld" << QVariantList{qint64(9000000000)}
                                    << "Found: 9000000000";
    QTest::newRow("negative integer") << "%d" << QVariantList{-3} << "-3";
    QTest::newRow("unsigned reads the bits as unsigned") << "%llu" << QVariantList{qint64(-1)}
                                                         << "18446744073709551615";
    QTest::newRow("integer as text") << "%@ items" << QVariantList{42} << "42 items";
    QTest::newRow("positional integer") << "%2$lld of %1$lld" << QVariantList{10, 3} << "3 of 10";
    QTest::newRow("percent sign") << "100%% sure, %@" << QVariantList{"ok"} << "100% sure, ok";
    QTest::newRow("percent before a specifier") << "%%%@" << QVariantList{"x"} << "%x";
    QTest::newRow("lone percent at the end") << "50%" << QVariantList{} << "50%";
    QTest::newRow("percent before a blank") << "50 % off" << QVariantList{"unused"} << "50 % off";
    QTest::newRow("unknown specifier kept, value not used") << "%f then %@" << QVariantList{"a"}
                                                            << "%f then a";
    QTest::newRow("width is not understood") << "%5d" << QVariantList{1} << "%5d";
    QTest::newRow("position zero names no value") << "%0$@|%@" << QVariantList{"a"} << "%0$@|a";
    QTest::newRow("value missing becomes empty") << "[%@][%@]" << QVariantList{"a"} << "[a][]";
    QTest::newRow("extra values ignored") << "Version %@" << QVariantList{"1.2.0", "42"}
                                          << "Version 1.2.0";
    QTest::newRow("markdown untouched") << "Vandorel **%@** is available." << QVariantList{"2.0"}
                                        << "Vandorel **2.0** is available.";
    QTest::newRow("non-latin text around")
        << "%@を既定にしました" << QVariantList{"Firefox"} << "Firefoxを既定にしました";
}

void TextFormatTest::fills()
{
    QFETCH(QString, pattern);
    QFETCH(QVariantList, values);
    QFETCH(QString, expected);
    QCOMPARE(TextFormat::format(pattern, values), expected);
}

void TextFormatTest::missingTranslationKeepsTheKeyWordsAndTheValue()
{
    QCOMPARE(TextFormat::format(QStringLiteral("browser_bundle_id %@"), {QStringLiteral("x")}),
             QStringLiteral("browser_bundle_id x"));
    QCOMPARE(TextFormat::format(QStringLiteral("about_copyright %lld"), {qint64(2026)}),
             QStringLiteral("about_copyright 2026"));
    QCOMPARE(TextFormat::format(QStringLiteral("alert_button_keep %@"), {QStringLiteral("Mail")}),
             QStringLiteral("alert_button_keep Mail"));
}

QTEST_GUILESS_MAIN(TextFormatTest)
#include "tst_text_format.moc"
