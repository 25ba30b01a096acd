#include "InstalledCopy.h"
#include "PrivateBuses.h"
#include "ProgramRun.h"
#include "XdgTree.h"
#include "XvfbDisplay.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

// The installed program under Xvfb with a private session bus and a temporary XDG tree:
// URLs given to a later copy, or opened with xdg-open through the installed desktop
// entry, open their window in the copy that runs.
class UrlsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<XdgTree> m_tree;
    std::unique_ptr<PrivateBuses> m_buses;
    std::unique_ptr<XvfbDisplay> m_display;
    std::unique_ptr<InstalledCopy> m_copy;
    std::unique_ptr<QProcess> m_first;
    QByteArray m_firstOut;

    static ProgramRun run(const QString &program, const QStringList &arguments)
    {
        return runProgram(program, arguments, 30000);
    }

    struct Window {
        QString id;
        QSize size;
    };

    // The first copy's windows on screen, the front-most first. Titles tell nothing (the
    // title updater may give the about window the settings title); sizes do.
    QList<Window> shown() const
    {
        QSet<QString> visible;
        const ProgramRun search =
            run(QStringLiteral("xdotool"),
                {"search", "--onlyvisible", "--pid", QString::number(m_first->processId())});
        for (const QString &id : QString::fromUtf8(search.out).split(u'\n', Qt::SkipEmptyParts))
            visible << QString::number(id.toULongLong(), 16);
        // xwininfo lists the root's children from the top of the stack down.
        static const QRegularExpression line(
            QStringLiteral("^\\s+0x([0-9a-f]+) .* (\\d+)x(\\d+)\\+-?\\d+\\+-?\\d+ .*$"));
        QList<Window> windows;
        const ProgramRun tree = run(QStringLiteral("xwininfo"), {"-root", "-children"});
        for (const QString &text : QString::fromUtf8(tree.out).split(u'\n')) {
            const QRegularExpressionMatch match = line.match(text);
            if (match.hasMatch() && visible.contains(match.captured(1)))
                windows.append({match.captured(1),
                                QSize(match.captured(2).toInt(), match.captured(3).toInt())});
        }
        return windows;
    }

    static bool isSettings(const Window &window) { return window.size == QSize(700, 550); }

    // The windows in front-to-back order, as settings or about.
    QString stack() const
    {
        QStringList names;
        for (const Window &window : shown())
            names << (isSettings(window) ? QStringLiteral("settings") : QStringLiteral("about"));
        return names.join(u' ');
    }

    void startFirstCopy(const QStringList &arguments)
    {
        endFirstCopy(); // one a failed case left behind
        m_first = std::make_unique<QProcess>();
        m_firstOut.clear();
        m_first->start(QStringLiteral("vandorel"), arguments);
        QTRY_VERIFY_WITH_TIMEOUT(
            (m_firstOut += m_first->readAllStandardOutput(), m_firstOut.contains("🚀 App launched")),
            30000);
    }

    void endFirstCopy()
    {
        if (m_first && m_first->state() != QProcess::NotRunning) {
            m_first->kill();
            m_first->waitForFinished(5000);
        }
    }

    void stopFirstCopy()
    {
        m_first->terminate();
        QVERIFY(m_first->waitForFinished(10000));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_tree = std::make_unique<XdgTree>();
        m_buses = std::make_unique<PrivateBuses>();
        QVERIFY(m_buses->isRunning());
        m_display = std::make_unique<XvfbDisplay>();
        QVERIFY(m_display->isRunning());
        m_copy = std::make_unique<InstalledCopy>(QStringLiteral(VANDOREL_BUILD_DIR));
        QVERIFY2(m_copy->isInstalled(), m_copy->log().constData());
        qputenv("PATH", QFile::encodeName(m_copy->path(QStringLiteral("bin:"))) + qgetenv("PATH"));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(m_copy->path(QStringLiteral("share:")))
                                     + qgetenv("XDG_DATA_DIRS"));
        qputenv("QT_QPA_PLATFORM", "xcb");
        // What a package's trigger does after installing.
        QCOMPARE(run(QStringLiteral("update-desktop-database"),
                     {m_copy->path(QStringLiteral("share/applications"))})
                     .exitCode,
                 0);
    }

    void cleanupTestCase() { endFirstCopy(); }

    // With no copy running, a URL starts the program, which opens that window.
    void aUrlStartsTheProgramWithItsWindow()
    {
        startFirstCopy({QStringLiteral("vandorel://about")});
        QTRY_COMPARE_WITH_TIMEOUT(stack(), QString("about"), 10000);
        stopFirstCopy();
    }

    void aLaterCopyHandsItsUrlOver()
    {
        startFirstCopy({});
        QCOMPARE(stack(), QString());
        const ProgramRun later = run(QStringLiteral("vandorel"), {"vandorel://settings"});
        QCOMPARE(later.exitCode, 0);
        QCOMPARE(later.out, QByteArray());
        QTRY_COMPARE_WITH_TIMEOUT(stack(), QString("settings"), 10000);
    }

    void xdgOpenFindsTheInstalledEntry()
    {
        QCOMPARE(XdgTree::xdgMimeDefault(QStringLiteral("x-scheme-handler/vandorel")),
                 QString("io.kestrane.vandorel.desktop"));
        QCOMPARE(run(QStringLiteral("xdg-open"), {"vandorel://about"}).exitCode, 0);
        QTRY_COMPARE_WITH_TIMEOUT(stack(), QString("about settings"), 10000);
        // A window that is open comes to the front.
        QCOMPARE(run(QStringLiteral("vandorel"), {"vandorel://settings"}).exitCode, 0);
        QTRY_COMPARE_WITH_TIMEOUT(stack(), QString("settings about"), 10000);
    }

    // A plain second start, or one with a URL the program does not know, changes nothing.
    void aPlainSecondStartOrAnUnknownUrlChangesNothing()
    {
        const QString before = stack();
        const QString settingsFile = QStringLiteral("config/io.kestrane.vandorel/settings.ini");
        const QByteArray settings = m_tree->read(settingsFile);
        QCOMPARE(run(QStringLiteral("vandorel"), {}).exitCode, 0);
        const ProgramRun other = run(QStringLiteral("vandorel"), {"https://example.org/settings"});
        QCOMPARE(other.exitCode, 0);
        QVERIFY(other.out.startsWith("⚠️ Unknown URL: https://example.org/settings\n"));
        QCOMPARE(stack(), before);
        QCOMPARE(m_tree->read(settingsFile), settings);
        QCOMPARE(m_first->state(), QProcess::Running);

        stopFirstCopy();
        startFirstCopy({QStringLiteral("vandorel://nowhere")});
        QTRY_VERIFY_WITH_TIMEOUT((m_firstOut += m_first->readAllStandardOutput(),
                                  m_firstOut.contains("⚠️ Unknown URL: vandorel://nowhere\n")),
                                 10000);
        QCOMPARE(m_first->state(), QProcess::Running);
        stopFirstCopy();
    }
};

QTEST_GUILESS_MAIN(UrlsTest)
#include "tst_urls.moc"
