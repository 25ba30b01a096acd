#include "app/CommandLine.h"

#include <QTest>

using Mode = CommandLine::Mode;
Q_DECLARE_METATYPE(CommandLine::Mode)

class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatWasAsked_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<bool>("login");
        QTest::addColumn<QString>("url");

        QTest::newRow("nothing") << QStringList() << Mode::Run << false << QString();
        QTest::newRow("login and a URL") << QStringList{"vandorel://about", "--login"} << Mode::Run
                                         << true << QString("vandorel://about");
        // Whatever the URL says, it is handed on as given; the window routing judges it.
        QTest::newRow("another scheme") << QStringList{"https://example.org/x?y"} << Mode::Run
                                        << false << QString("https://example.org/x?y");
        QTest::newRow("help wins over the rest")
            << QStringList{"--status", "-h", "vandorel://about"} << Mode::Help << false
            << QString("vandorel://about");
        QTest::newRow("version") << QStringList{"--version"} << Mode::Version << false << QString();
        QTest::newRow("short version") << QStringList{"-v"} << Mode::Version << false << QString();
        QTest::newRow("status") << QStringList{"--status"} << Mode::Status << false << QString();
        QTest::newRow("unknown option")
            << QStringList{"--login", "--bogus"} << Mode::Invalid << false << QString();
        QTest::newRow("a Qt option is not ours")
            << QStringList{"-platform", "offscreen"} << Mode::Invalid << false << QString();
        QTest::newRow("two URLs") << QStringList{"vandorel://about", "vandorel://settings"}
                                  << Mode::Invalid << false << QString();
        QTest::newRow("a URL that looks like an option, after --")
            << QStringList{"--", "--status"} << Mode::Run << false << QString("--status");
    }

    void readsWhatWasAsked()
    {
        QFETCH(QStringList, arguments);
        QFETCH(Mode, mode);
        QFETCH(bool, login);
        QFETCH(QString, url);
        const CommandLine commandLine(QStringList{"vandorel"} + arguments);
        QCOMPARE(commandLine.mode(), mode);
        QCOMPARE(commandLine.launchedAtLogin(), login);
        QCOMPARE(commandLine.url(), url);
        QCOMPARE(commandLine.errorText().isEmpty(), mode != Mode::Invalid);
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
