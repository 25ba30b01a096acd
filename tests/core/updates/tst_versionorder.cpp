#include "core/updates/VersionOrder.h"

#include <QTest>

class TestVersionOrder : public QObject {
    Q_OBJECT
private slots:
    void isVersion_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("aNewer");
        QTest::addColumn<bool>("bNewer");
        const auto row = [](const char *name, const QString &a, const QString &b, bool aNewer,
                            bool bNewer) { QTest::newRow(name) << a << b << aNewer << bNewer; };

        row("numeric, not textual", "1.10", "1.9", true, false);
        row("missing parts are zeros", "1.2", "1.2.0", false, false);
        row("a missing part beats a negative one", "1.2", "1.2.-1", true, false);
        row("shorter can be newer", "2", "1.9.9", true, false);
        row("junk part moves the rest up", "1.2.3", "1.2.x.4", false, true);
        row("part too large is dropped", "1.99999999999999999999", "1.0", false, false);
        row("sign counts", "-1", "0", false, true);
        row("empty parts left out", "1..2", "1.2", false, false);
        row("pre-release suffix ignored", "1.2.3-beta", "1.2", false, false);
        row("largest value", "9223372036854775807", "9223372036854775806", true, false);
        row("smallest value", "-9223372036854775808", "-9223372036854775807", false, true);
        row("just past the range", "9223372036854775808", "0", false, false);
        row("just below the range", "-9223372036854775809", "0", false, false);
        row("only ASCII digits", QStringLiteral("1.\uff12"), "1", false, false);
    }

    void isVersion()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, aNewer);
        QFETCH(bool, bNewer);
        QCOMPARE(VersionOrder::isVersion(a, b), aNewer);
        QCOMPARE(VersionOrder::isVersion(b, a), bNewer);
    }

    void numbers()
    {
        QCOMPARE(VersionOrder::numbers(u"2.0b1.5"), QList<qint64>({2, 5}));
        QCOMPARE(VersionOrder::numbers(u"+1.-2.+.-.++3.4+"), QList<qint64>({1, -2}));
        QCOMPARE(VersionOrder::numbers(u"0x10.010"), QList<qint64>{10});
    }
};

QTEST_GUILESS_MAIN(TestVersionOrder)
#include "tst_versionorder.moc"
