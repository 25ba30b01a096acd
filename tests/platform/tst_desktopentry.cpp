#include "platform/freedesktop/DesktopEntry.h"
#include "platform/freedesktop/MimeAppsList.h"

#include <QTest>

class TestDesktopEntry : public QObject {
    Q_OBJECT

private slots:
    void readsOnlyTheEntryGroup()
    {
        const auto entry = DesktopEntry::parse(
            "# comment\r\n[Desktop Entry]\r\nName[de]=Post\r\nName = Mail\\sClient \r\n"
            "Type=Application\r\nNoDisplay=true\r\nHidden=false\r\n"
            "Categories=Network;Email;\r\nMimeType=x-scheme-handler/mailto;;\r\n"
            "[Desktop Action compose]\r\nName=Write new message\r\nExec=other\r\n"
            "Type=Link\r\nHidden=true\r\n");
        QVERIFY(entry.isValid());
        QCOMPARE(entry.name(), "Mail Client "); // GLib keeps trailing blanks
        QCOMPARE(entry.type(), "Application");
        QVERIFY(entry.noDisplay());
        QVERIFY(!entry.hidden());
        QCOMPARE(entry.categories(), QStringList({"Network", "Email"}));
        QCOMPARE(entry.mimeTypes(), QStringList({"x-scheme-handler/mailto", ""})); // as GLib
        QCOMPARE(entry.exec(), QString());
    }

    void refusesWhatGLibRefuses()
    {
        for (const char *content :
             {"[Desktop Action a]\nName=x\n[Desktop Entry]\nName=y\n",
              "Name=x\n[Desktop Entry]\nName=y\n", "[Desktop Entry]\nName=y\nwhat\n",
              "[Desktop Entry\nName=y\n", ""})
            QVERIFY2(!DesktopEntry::parse(content).isValid(), content);
    }

    void execProgram_data()
    {
        QTest::addColumn<QString>("exec");
        QTest::addColumn<QString>("program");
        const auto row = [](const char *name, const QString &exec, const QString &program) {
            QTest::newRow(name) << exec << program;
        };
        row("leading blanks", "  prog --flag", "prog");
        row("double quotes", "\"/opt/My App/run\" %U", "/opt/My App/run");
        // The line is unescaped as a key-file value first (\\ is one backslash), then split.
        row("escapes in double quotes", "\"/opt/a\\\\\"b\\\\\\\\c\" x", "/opt/a\"b\\c");
        row("single quotes", "'/opt/it'\"'\"'s' -x", "/opt/it's");
        row("backslash", "/opt/My\\\\ App %f", "/opt/My App");
        row("key-file blank escape", "/opt/My\\sApp %f", "/opt/My");
        row("unterminated", "\"/opt/x", QString());
        row("blank", "   ", QString());
    }

    void execProgram()
    {
        QFETCH(QString, exec);
        QFETCH(QString, program);
        const QByteArray content = "[Desktop Entry]\nExec=" + exec.toUtf8() + "\n";
        const auto found = DesktopEntry::parse(content).execProgram();
        QCOMPARE(found.value_or(QString()), program);
    }

    void mimeAppsListLastLineWins()
    {
        const MimeAppsList list = MimeAppsList::parse(
            "[Default Applications]\nt=a.desktop\nt=b.desktop;c.desktop\nu=z.desktop\n"
            "[Added Associations]\nt=a.desktop;\n[Removed Associations]\nt= d.desktop; e\\;.desktop\\s;\n"
            "[MIME Cache]\nt=f.desktop;\n",
            "t");
        QCOMPARE(list.defaults(), QStringList({"b.desktop", "c.desktop"}));
        QCOMPARE(list.added(), QStringList({"a.desktop"}));
        QCOMPARE(list.removed(), QStringList({"d.desktop", " e;.desktop "}));
        QCOMPARE(list.cached(), QStringList({"f.desktop"}));
        // GLib throws away a malformed list as a whole.
        QVERIFY(MimeAppsList::parse("[Default Applications]\nt=a.desktop\nstray line\n", "t")
                    .defaults()
                    .isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDesktopEntry)
#include "tst_desktopentry.moc"
