#include "platform/freedesktop/MimeAppsListEditor.h"

#include <QTest>

class TestMimeAppsListEditor : public QObject {
    Q_OBJECT

private slots:
    void addsKeysAndGroups_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("empty file") << QByteArray() << QByteArray("[Default Applications]\nk=v\n");
        QTest::newRow("other group")
            << QByteArray("[Added Associations]\na=b;\n")
            << QByteArray("[Added Associations]\na=b;\n\n[Default Applications]\nk=v\n");
        QTest::newRow("no final newline")
            << QByteArray("[Added Associations]\na=b;")
            << QByteArray("[Added Associations]\na=b;\n\n[Default Applications]\nk=v\n");
        QTest::newRow("CRLF")
            << QByteArray("[Added Associations]\r\na=b;\r\n")
            << QByteArray("[Added Associations]\r\na=b;\r\n\r\n[Default Applications]\r\nk=v\r\n");
        QTest::newRow("key after the group's last key")
            << QByteArray("[Default Applications]\na=b\n# note\n\n[Other]\nc=d\n")
            << QByteArray("[Default Applications]\na=b\nk=v\n# note\n\n[Other]\nc=d\n");
        QTest::newRow("group at end without newline")
            << QByteArray("# x\r\n[Default Applications]\r\na=b")
            << QByteArray("# x\r\n[Default Applications]\r\na=b\r\nk=v\r\n");
        QTest::newRow("repeated key: last rewritten, repeat dropped")
            << QByteArray("[Default Applications]\nk=a\nx=y\nk=b\n")
            << QByteArray("[Default Applications]\nx=y\nk=v\n");
        QTest::newRow("same key in another group untouched")
            << QByteArray("[Added Associations]\nk=a;\n[Default Applications]\nk=old\n")
            << QByteArray("[Added Associations]\nk=a;\n[Default Applications]\nk=v\n");
        QTest::newRow("unchanged value") << QByteArray("[Default Applications]\r\nk=v")
                                         << QByteArray("[Default Applications]\r\nk=v");
    }

    void addsKeysAndGroups()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        MimeAppsListEditor editor(before);
        editor.setValue("Default Applications", "k", "v");
        QCOMPARE(editor.content(), after);
    }

    void removesKeys()
    {
        MimeAppsListEditor editor(
            "[Default Applications]\r\nk=a\r\nj=b\r\n[Added Associations]\r\nk=a;\r\n[Default Applications]\r\nk=c");
        editor.removeKey("Default Applications", "k");
        QCOMPARE(
            editor.content(),
            QByteArray(
                "[Default Applications]\r\nj=b\r\n[Added Associations]\r\nk=a;\r\n[Default Applications]\r\n"));
        QCOMPARE(editor.values("Default Applications", "k"), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestMimeAppsListEditor)
#include "tst_mimeappslisteditor.moc"
