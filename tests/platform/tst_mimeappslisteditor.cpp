#include "platform/freedesktop/MimeAppsListEditor.h"

#include <QTest>

class TestMimeAppsListEditor : public QObject {
    Q_OBJECT

private slots:
    void addsKeysAndGroups_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
            QTest::newRow(name) << before << after;
        };
        row("empty file", {}, "[Default Applications]\nk=v\n");
        row("other group", "[Added Associations]\na=b;\n",
            "[Added Associations]\na=b;\n\n[Default Applications]\nk=v\n");
        row("no final newline", "[Added Associations]\na=b;",
            "[Added Associations]\na=b;\n\n[Default Applications]\nk=v\n");
        row("CRLF", "[Added Associations]\r\na=b;\r\n",
            "[Added Associations]\r\na=b;\r\n\r\n[Default Applications]\r\nk=v\r\n");
        row("key after the group's last key",
            "[Default Applications]\na=b\n# note\n\n[Other]\nc=d\n",
            "[Default Applications]\na=b\nk=v\n# note\n\n[Other]\nc=d\n");
        row("group at end without newline", "# x\r\n[Default Applications]\r\na=b",
            "# x\r\n[Default Applications]\r\na=b\r\nk=v\r\n");
        row("repeated key: last rewritten, repeat dropped",
            "[Default Applications]\nk=a\nx=y\nk=b\n", "[Default Applications]\nx=y\nk=v\n");
        row("same key in another group untouched",
            "[Added Associations]\nk=a;\n[Default Applications]\nk=old\n",
            "[Added Associations]\nk=a;\n[Default Applications]\nk=v\n");
        row("unchanged value", "[Default Applications]\r\nk=v", "[Default Applications]\r\nk=v");
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
