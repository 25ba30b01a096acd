#include "core/updates/VersionOrder.h"

#include <QTest>

class TestVersionOrder : public QObject {
    Q_OBJECT
private slots:
    void isVersion_data();
    void isVersion();
    void numbers_data();
    void numbers();
};

void TestVersionOrder::isVersion_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("aNewer");
    QTest::addColumn<bool>("bNewer");

    QTest::newRow("numeric, not textual") << "1.10" << "1.9" << true << false;
    QTest::newRow("missing parts are zeros") << "1.2" << "1.2.0" << false << false;
    QTest::newRow("shorter can be newer") << "2" << "1.9.9" << true << false;
    QTest::newRow("empty is zero") << "" << "0" << false << false;
    QTest::newRow("empty against a real one") << "0.0.1" << "" << true << false;
    QTest::newRow("junk part moves the rest up") << "1.2.3" << "1.2.x.4" << false << true;
    QTest::newRow("part too large is dropped") << "1.99999999999999999999" << "1.0" << false << false;
    QTest::newRow("sign counts") << "-1" << "0" << false << true;
    QTest::newRow("plus sign") << "+5" << "4" << true << false;
    QTest::newRow("minus zero") << "-0" << "0" << false << false;
    QTest::newRow("empty parts left out") << "1..2" << "1.2" << false << false;
    QTest::newRow("leading dot adds nothing") << ".1" << "0.1" << true << false;
    QTest::newRow("letters drop the part") << "v1.2" << "1.9" << true << false;
    QTest::newRow("pre-release suffix ignored") << "1.2.3-beta" << "1.2" << false << false;
    QTest::newRow("no numbers at all") << "abc" << "def" << false << false;
    QTest::newRow("largest value") << "9223372036854775807" << "9223372036854775806" << true << false;
    QTest::newRow("smallest value") << "-9223372036854775808" << "-9223372036854775807" << false
                                    << true;
    QTest::newRow("just past the range") << "9223372036854775808" << "0" << false << false;
    QTest::newRow("just below the range") << "-9223372036854775809" << "0" << false << false;
    QTest::newRow("white space is not a number") << "1. 2" << "1" << false << false;
    QTest::newRow("only ASCII digits") << QStringLiteral("1.\uff12") << "1" << false << false;
}

void TestVersionOrder::isVersion()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, aNewer);
    QFETCH(bool, bNewer);
    QCOMPARE(VersionOrder::isVersion(a, b), aNewer);
    QCOMPARE(VersionOrder::isVersion(b, a), bNewer);
}

void TestVersionOrder::numbers_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QList<qint64>>("expected");
    QTest::newRow("beta suffix") << "1.2.3-beta" << QList<qint64>{1, 2};
    QTest::newRow("letter inside") << "2.0b1.5" << QList<qint64>{2, 5};
    QTest::newRow("signs") << "+1.-2.+.-.++3.4+" << QList<qint64>{1, -2};
    QTest::newRow("hex is not decimal") << "0x10.010" << QList<qint64>{10};
    QTest::newRow("word") << "latest" << QList<qint64>{};
}

void TestVersionOrder::numbers()
{
    QFETCH(QString, version);
    QFETCH(QList<qint64>, expected);
    QCOMPARE(VersionOrder::numbers(version), expected);
}

QTEST_GUILESS_MAIN(TestVersionOrder)
#include "tst_versionorder.moc"
