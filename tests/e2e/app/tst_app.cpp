#include "ProgramRun.h"
#include "XdgTree.h"

#include "BuildConfig.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

// The real program over a temporary XDG tree with desktop entries from Debian's
// packages: what `--status` resolves must be what GIO resolves, after changes made by
// each of the desktop's own tools; and only one copy runs.
class AppTest : public QObject {
    Q_OBJECT

    // Firefox ESR as the browser target, as the settings file stores it.
    static inline const QByteArray firefoxTarget =
        "targetDefaultBrowser=\"@ByteArray({\\\"id\\\":\\\"6F1C1E3A-27D5-4B8E-9D0A-3C2B1A0F9E8D\\\","
        "\\\"name\\\":\\\"Firefox ESR\\\",\\\"bundleIdentifier\\\":\\\"firefox-esr\\\"})\"\n";

    std::unique_ptr<XdgTree> m_tree;

    static QStringList installedNames(const QJsonObject &report, const char *side)
    {
        QStringList names;
        for (const QJsonValue &record :
             report.value(QLatin1StringView(side)).toObject().value(u"installed").toArray())
            names << record.toObject().value(u"name").toString();
        return names;
    }

    static QString currentId(const QJsonObject &report, const char *side)
    {
        const QJsonValue current =
            report.value(QLatin1StringView(side)).toObject().value(u"current");
        return current.isObject() ? current.toObject().value(u"bundleIdentifier").toString()
                                  : QString();
    }

    static QString gioDefault(const char *scheme)
    {
        QString id =
            XdgTree::gioMime(QStringLiteral("x-scheme-handler/") + QLatin1StringView(scheme))
                .defaultId;
        return id.endsWith(u".desktop") ? id.chopped(8) : id;
    }

    static bool run(const QString &program, const QStringList &arguments)
    {
        return runProgram(program, arguments).succeeded();
    }

    static ProgramRun ask(const QStringList &arguments)
    {
        return runProgram(QStringLiteral(VANDOREL_BINARY), arguments, 30000);
    }

    static QJsonObject status()
    {
        const ProgramRun answer = ask({QStringLiteral("--status")});
        return answer.exitCode == 0 ? QJsonDocument::fromJson(answer.out).object() : QJsonObject();
    }

    // XFCE's helper that runs Chromium, as its package ships it.
    void installXfceHelper()
    {
        QFile helper(QStringLiteral(FIXTURES_DIR "/xfce4/helpers/chromium.desktop"));
        QVERIFY(helper.open(QIODevice::ReadOnly));
        m_tree->write(QStringLiteral("share2/xfce4/helpers/chromium.desktop"), helper.readAll());
    }

    static inline const QString settingsFile =
        QStringLiteral("config/io.kestrane.vandorel/settings.ini");
    QString settingsPath() const { return m_tree->path(settingsFile); }

    // Starts the program on the offscreen platform, behind `shell` if given (which ends in
    // `exec "$0"`), with its own runtime directory (where its lock lives) if given.
    static void launch(QProcess &program, const QStringList &arguments = {},
                       const QString &shell = {}, const QString &runtime = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        if (!runtime.isEmpty())
            env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        program.setProcessEnvironment(env);
        if (shell.isEmpty())
            program.start(QStringLiteral(VANDOREL_BINARY), arguments);
        else
            program.start(QStringLiteral("sh"), {"-c", shell, QStringLiteral(VANDOREL_BINARY)});
    }

    // Collects the program's output into `out` until it holds `text`.
    static bool printed(QProcess &program, QByteArray &out, const char *text)
    {
        return QTest::qWaitFor(
            [&] { return (out += program.readAllStandardOutput()).contains(text); }, 20000);
    }

    // Starts the program as launch() does and waits until it has started.
    static bool start(QProcess &program, const QString &runtime = {}, const QString &shell = {})
    {
        launch(program, {}, shell, runtime);
        QByteArray out;
        return printed(program, out, "🚀 App launched");
    }

    // A started program's settings: the browser guarded, Firefox ESR its target.
    void writeFirefoxTarget() const
    {
        m_tree->write(settingsFile, "[General]\nhasLaunchedBefore=true\nmonitoringEnabled=true\n"
                                    "checkInterval=10min\ncheckOnLogin=true\n"
                                        + firefoxTarget);
    }

private Q_SLOTS:
    void init()
    {
        qunsetenv("XDG_CURRENT_DESKTOP");
        m_tree = std::make_unique<XdgTree>();
        // Real entries, their programs replaced by stubs so GIO counts them as installed.
        for (const char *file : {"firefox-esr.desktop", "chromium.desktop", "thunderbird.desktop"})
            QVERIFY(!m_tree
                         ->installFixture(QStringLiteral(FIXTURES_DIR "/") + QLatin1String(file),
                                          QStringLiteral("share1/applications"))
                         .isEmpty());
        m_tree->entry(QStringLiteral("share2/applications"), QStringLiteral("claws-mail.desktop"),
                      "x-scheme-handler/mailto;");
        m_tree->updateCaches();
    }

    void cleanup() { m_tree.reset(); }

    void statusFollowsWhatGioResolves()
    {
        QVERIFY(XdgTree::xdgMimeSet("firefox-esr", {"https", "http"}));
        QVERIFY(XdgTree::xdgMimeSet("thunderbird", {"mailto"}));
        QJsonObject report = status();
        QCOMPARE(currentId(report, "browser"), QString("firefox-esr"));
        QCOMPARE(currentId(report, "browser"), gioDefault("https"));
        QCOMPARE(currentId(report, "email"), gioDefault("mailto"));

        QVERIFY(XdgTree::gioSet("https", "chromium"));
        QVERIFY(XdgTree::gioSet("mailto", "claws-mail"));
        report = status();
        QCOMPARE(currentId(report, "browser"), QString("chromium"));
        QCOMPARE(currentId(report, "browser"), gioDefault("https"));
        QCOMPARE(currentId(report, "email"), QString("claws-mail"));
        QCOMPARE(currentId(report, "email"), gioDefault("mailto"));

        // Nothing was written: no settings file, no first-launch defaults.
        QVERIFY(!QFile::exists(settingsPath()));

        // Targets and switches come from the store, which is only read.
        m_tree->write(
            settingsFile,
            "[General]\nmonitoringEnabled=true\ncheckInterval=5min\n" + firefoxTarget
                + "emailMonitoringEnabled=maybe\ntargetDefaultEmailClient=@ByteArray(garbage)\n");
        const QByteArray before = m_tree->read(settingsFile);
        report = status();
        const QJsonObject browser = report.value(u"browser").toObject();
        QCOMPARE(browser.value(u"target").toObject().value(u"bundleIdentifier").toString(),
                 QString("firefox-esr"));
        QCOMPARE(browser.value(u"isProtected").toBool(), true);
        QCOMPARE(browser.value(u"status").toString(), QString("mismatch"));
        const QJsonObject email = report.value(u"email").toObject();
        QVERIFY(email.value(u"target").isNull());
        QCOMPARE(email.value(u"isProtected").toBool(), false);
        QCOMPARE(email.value(u"status").toString(), QString("notProtected"));
        QCOMPARE(m_tree->read(settingsFile), before);
    }

    // On XFCE and KDE the desktop's own setting decides which browser opens links, whatever
    // mimeapps.list says.
    void statusReportsTheDesktopsOwnSetting()
    {
        QVERIFY(XdgTree::xdgMimeSet("firefox-esr", {"https"}));
        installXfceHelper();
        qputenv("XDG_CURRENT_DESKTOP", "XFCE");
        QCOMPARE(currentId(status(), "browser"), QString("firefox-esr"));
        QVERIFY(run("xdg-settings", {"set", "default-web-browser", "chromium.desktop"}));
        QCOMPARE(currentId(status(), "browser"), QString("chromium"));
        QCOMPARE(gioDefault("https"), QString("firefox-esr"));

        qputenv("XDG_CURRENT_DESKTOP", "KDE");
        m_tree->write(QStringLiteral("config/kdeglobals"),
                      "[General]\nBrowserApplication=!" + m_tree->path("bin/chromium").toUtf8()
                          + " --incognito\n");
        QCOMPARE(currentId(status(), "browser"), QString("chromium"));
        m_tree->write(QStringLiteral("config/kdeglobals"),
                      "[General]\nBrowserApplication=!elsewhere\n");
        const QJsonObject current =
            status().value(u"browser").toObject().value(u"current").toObject();
        QCOMPARE(current.value(u"name").toString(), QString("Unknown Browser"));
        QCOMPARE(current.value(u"bundleIdentifier").toString(), QString("!elsewhere"));
    }

    void aTakeoverIsSeenAtOnceWithATenMinuteInterval_data()
    {
        QTest::addColumn<QByteArray>("desktop");
        QTest::newRow("mimeapps.list by xdg-mime") << QByteArray();
        QTest::newRow("helpers.rc by xdg-settings") << QByteArray("XFCE");
        QTest::newRow("kdeglobals by hand") << QByteArray("KDE");
    }

    // Only the watched files can tell the program of the takeover before its next tick.
    void aTakeoverIsSeenAtOnceWithATenMinuteInterval()
    {
        QFETCH(QByteArray, desktop);
        QVERIFY(XdgTree::xdgMimeSet("firefox-esr", {"https", "http"}));
        installXfceHelper();
        m_tree->write(QStringLiteral("config/kdeglobals"),
                      "[General]\nBrowserApplication=firefox-esr.desktop\n");
        writeFirefoxTarget();
        if (!desktop.isEmpty())
            qputenv("XDG_CURRENT_DESKTOP", desktop);
        QProcess program;
        launch(program);
        QByteArray out;
        QVERIFY(printed(program, out, "🚀 App launched"));
        if (desktop == "KDE")
            m_tree->write(QStringLiteral("config/kdeglobals"),
                          "[General]\nBrowserApplication=chromium.desktop\n");
        else if (desktop == "XFCE")
            QVERIFY(run("xdg-settings", {"set", "default-web-browser", "chromium.desktop"}));
        else
            QVERIFY(XdgTree::xdgMimeSet("chromium", {"https", "http"}));
        QVERIFY(printed(program, out,
                        "📝 Log: Browser changed from Firefox ESR to Chromium Web Browser"));
        program.kill();
        program.waitForFinished(5000);
    }

    void installedListsAreWhatTheNameRulesGiveOnWhatGioSees()
    {
        // A known identifier, whatever its name; a registered handler whose name the rules
        // reject; one they accept through "min"; one GIO refuses (its TryExec is missing).
        const QString share1 = QStringLiteral("share1/applications");
        const QString share2 = QStringLiteral("share2/applications");
        m_tree->entry(share1, "org.mozilla.firefox.desktop", "x-scheme-handler/https;", {},
                      "Nightly");
        m_tree->entry(share2, "terminal-web.desktop", "x-scheme-handler/http;", {},
                      "Terminal Web Browser");
        m_tree->entry(share2, "admin.desktop", "x-scheme-handler/http;", {}, "Admin Panel");
        m_tree->entry(share2, "ghost.desktop", "x-scheme-handler/https;x-scheme-handler/mailto;",
                      "TryExec=/nonexistent/ghost\n", "Ghost Browser Mail");
        m_tree->updateCaches();
        const QStringList registered =
            XdgTree::gioMime(QStringLiteral("x-scheme-handler/https")).registered;
        QVERIFY(!registered.contains(QStringLiteral("ghost.desktop")));

        const QJsonObject report = status();
        // The entries' own names (not their actions'), by code point: capitals first.
        QCOMPARE(installedNames(report, "browser"),
                 QStringList({"Admin Panel", "Chromium Web Browser", "Firefox ESR", "Nightly"}));
        QCOMPARE(installedNames(report, "email"), QStringList({"Thunderbird", "claws-mail"}));
    }

    // Help, version and a mistaken option answer without starting anything: no settings
    // file appears, and a running copy does not keep them from answering.
    void helpVersionAndMistakesStartNothing()
    {
        const ProgramRun help = ask({QStringLiteral("--help")});
        QCOMPARE(help.exitCode, 0);
        const QByteArray usage = help.out.left(help.out.indexOf('\n') + 1);
        QCOMPARE(usage, QByteArray("Usage: " VANDOREL_BINARY " [options] [url]\n"));
        QVERIFY(help.out.contains("--status"));
        const QByteArray version = "Vandorel " + QByteArray(BuildConfig::appVersion) + " ("
                                   + QByteArray(BuildConfig::buildNumber) + ")\n";
        QCOMPARE(ask({QStringLiteral("--version")}).out, version);
        const ProgramRun wrong =
            ask({QStringLiteral("--bogus"), QStringLiteral("vandorel://about")});
        QCOMPARE(wrong.exitCode, 2);
        QCOMPARE(wrong.out, QByteArray());
        QCOMPARE(wrong.err, "Unknown option 'bogus'.\n" + usage);
        QVERIFY(!QFile::exists(settingsPath()));
        QVERIFY(QDir(m_tree->path(QStringLiteral("runtime"))).isEmpty());

        QProcess first;
        QVERIFY(start(first));
        QCOMPARE(ask({QStringLiteral("--bogus")}).exitCode, 2);
        QCOMPARE(ask({QStringLiteral("-v")}).out, version);
        QCOMPARE(first.state(), QProcess::Running);
        first.kill();
        first.waitForFinished(5000);
    }

    void firstLaunchOnceAndOneCopyOnly()
    {
        QProcess first;
        launch(first);
        QByteArray out;
        QVERIFY(printed(first, out, "🚀 App launched -> configure update scheduler"));
        // The language is set up at start with the other process-wide services, before the
        // guards, not on the first text looked up.
        const qsizetype language = out.indexOf("🌍 Language initialized: ");
        QVERIFY2(language >= 0 && language < out.indexOf("✨ First launch - defaults set\n"),
                 out.constData());
        QVERIFY(out.contains("✨ Email: First launch - defaults set\n"));

        QProcess second;
        launch(second);
        QVERIFY(second.waitForFinished(20000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(second.readAllStandardOutput(),
                 QByteArray("⚠️ Another instance is already running. Exiting...\n"));
        QCOMPARE(first.state(), QProcess::Running);

        first.terminate();
        QVERIFY(first.waitForFinished(10000));
        // A copy killed while taking the place leaves a lock file that names no one.
        QFile abandoned(m_tree->path(QStringLiteral("runtime/")) + BuildConfig::appId + u".lock");
        QVERIFY(abandoned.open(QIODevice::WriteOnly));
        abandoned.close();

        QProcess again;
        launch(again);
        out.clear();
        QVERIFY(printed(again, out, "🚀 App launched"));
        QVERIFY(!out.contains("First launch"));
        again.kill();
        again.waitForFinished(5000);
    }

    // The signals a process ignores and catches, from the kernel.
    static QSet<int> signalsOf(qint64 pid, const char *field)
    {
        QFile status(QStringLiteral("/proc/%1/status").arg(pid));
        if (!status.open(QIODevice::ReadOnly))
            return {};
        const QByteArray prefix = QByteArray(field) + ':';
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (!line.startsWith(prefix))
                continue;
            const quint64 mask = line.mid(prefix.size()).trimmed().toULongLong(nullptr, 16);
            QSet<int> numbers;
            for (int number = 1; number <= 64; ++number)
                if (mask & (quint64(1) << (number - 1)))
                    numbers.insert(number);
            return numbers;
        }
        return {};
    }

    // Logout (SIGTERM), Ctrl+C and a closed terminal are caught, and end the program as a
    // quit does: the event loop ends and the program gives its place up. A hang-up ignored
    // at start, as under nohup, stays ignored.
    void signalsFromOutsideEndTheProgramInOrder()
    {
        QTemporaryDir runtime;
        QProcess program;
        QVERIFY(start(program, runtime.path()));
        const QSet<int> quits{SIGTERM, SIGINT, SIGHUP};
        QCOMPARE(signalsOf(program.processId(), "SigCgt") & quits, quits);
        const QString lock = runtime.filePath(QString::fromUtf8(BuildConfig::appId) + u".lock");
        QVERIFY(QFile::exists(lock));
        ::kill(static_cast<pid_t>(program.processId()), SIGINT);
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(!QFile::exists(lock));

        QVERIFY(start(program, runtime.path(), QStringLiteral("trap '' HUP; exec \"$0\"")));
        QVERIFY(signalsOf(program.processId(), "SigIgn").contains(SIGHUP));
        QCOMPARE(signalsOf(program.processId(), "SigCgt") & quits, (QSet<int>{SIGTERM, SIGINT}));
        program.terminate();
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    }

    // The check at start counts the change away from the target; a launch at login
    // checks once more a little later (when, the guard's own tests say).
    void aLaunchAtLoginChecksAgain()
    {
        QVERIFY(XdgTree::gioSet("https", "chromium"));
        QVERIFY(XdgTree::gioSet("http", "chromium"));
        writeFirefoxTarget();
        for (const bool atLogin : {true, false}) {
            QProcess program;
            launch(program, atLogin ? QStringList{"--login"} : QStringList{});
            QByteArray out;
            const int checks = atLogin ? 2 : 1;
            QVERIFY(QTest::qWaitFor(
                [&] { return (out += program.readAllStandardOutput()).count("📝 Log: ") == checks; },
                20000));
            QCOMPARE(out.contains("🚀 Launched at login\n"), atLogin);
            program.kill();
            program.waitForFinished(5000);
        }
    }
};

QTEST_GUILESS_MAIN(AppTest)
#include "tst_app.moc"
