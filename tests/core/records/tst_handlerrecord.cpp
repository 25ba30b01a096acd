#include "core/guard/HandlerRecord.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTest>

class HandlerRecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void identityIsTheExactIdentifier()
    {
        const HandlerRecord a("Firefox", "firefox-esr", "/a", "115");
        const HandlerRecord b("Other name", "firefox-esr", std::nullopt, std::nullopt);
        const HandlerRecord upper("Firefox", "Firefox-esr");
        QVERIFY(a == b);
        QVERIFY(a.id != b.id);
        QVERIFY(!(a == upper));
        QCOMPARE(QSet<HandlerRecord>({a, b, upper}).size(), 2);
    }

    void displayNameShowsAPresentVersionEvenWhenEmpty()
    {
        QCOMPARE(HandlerRecord("Mail", "m").displayName(), QString("Mail"));
        QCOMPARE(HandlerRecord("Mail", "m", {}, QString("2.1")).displayName(),
                 QString("Mail (2.1)"));
        QCOMPARE(HandlerRecord("Mail", "m", {}, QString("")).displayName(), QString("Mail ()"));
    }

    void jsonKeepsItsKeyOrderAndLeavesOutAbsentFields()
    {
        const QUuid id =
            QUuid::fromString(QStringLiteral("{6f1c1e3a-27d5-4b8e-9d0a-3c2b1a0f9e8d}"));
        const HandlerRecord bare("Thunderbird", "thunderbird", std::nullopt, std::nullopt, id);
        QCOMPARE(bare.toJson(),
                 QByteArray("{\"id\":\"6F1C1E3A-27D5-4B8E-9D0A-3C2B1A0F9E8D\","
                            "\"name\":\"Thunderbird\",\"bundleIdentifier\":\"thunderbird\"}"));

        const HandlerRecord full("Fire \"fox\"", "org.mozilla.firefox",
                                 QString("/usr/share/applications/firefox.desktop"), QString("1.0"),
                                 id);
        const QByteArray json = full.toJson();
        QVERIFY(json.indexOf("\"bundleIdentifier\"") < json.indexOf("\"path\""));
        QVERIFY(json.indexOf("\"path\"") < json.indexOf("\"version\""));
        const auto back = HandlerRecord::fromJson(json);
        QVERIFY(back);
        QCOMPARE(back->id, id);
        QCOMPARE(back->name, full.name);
        QCOMPARE(back->path, full.path);
        QCOMPARE(back->version, full.version);
    }

    void decodingNeedsIdNameAndIdentifier_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("decodes");
        const QByteArray id = "\"id\":\"6F1C1E3A-27D5-4B8E-9D0A-3C2B1A0F9E8D\"";
        QTest::newRow("any order")
            << "{\"bundleIdentifier\":\"a\",\"name\":\"A\"," + id + "}" << true;
        QTest::newRow("lower-case id, null version") << QByteArray(
            "{\"id\":\"6f1c1e3a-27d5-4b8e-9d0a-3c2b1a0f9e8d\",\"name\":\"A\",\"bundleIdentifier\":\"a\",\"version\":null}")
                                                     << true;
        QTest::newRow("no id") << QByteArray("{\"name\":\"A\",\"bundleIdentifier\":\"a\"}")
                               << false;
        QTest::newRow("braced id") << QByteArray(
            "{\"id\":\"{6F1C1E3A-27D5-4B8E-9D0A-3C2B1A0F9E8D}\",\"name\":\"A\",\"bundleIdentifier\":\"a\"}")
                                   << false;
        QTest::newRow("numeric path")
            << "{" + id + ",\"name\":\"A\",\"bundleIdentifier\":\"a\",\"path\":1}" << false;
        QTest::newRow("garbage") << QByteArray("\x89PNG\r\n") << false;
    }

    void decodingNeedsIdNameAndIdentifier()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, decodes);
        QCOMPARE(HandlerRecord::fromJson(json).has_value(), decodes);
    }
};

QTEST_GUILESS_MAIN(HandlerRecordTest)
#include "tst_handlerrecord.moc"
