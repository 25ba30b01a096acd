// Detection against GIO, every figure measured in this run on one tree of 2,000 desktop
// entries: resolving both defaults in-process; `vandorel --status` as a whole process against
// `gio mime`; listing the installed browsers; the time from a takeover by `xdg-mime default`
// to the program's change line, over as many takeovers as the first argument says (20 unless
// given). The idle program's wake-ups and memory are bench_tray's.
#include "ProcessFigures.h"
#include "XdgTree.h"
#include "core/guard/DefaultResolver.h"
#include "core/guard/GuardProfile.h"
#include "core/guard/HandlerDetector.h"
#include "foundation/Console.h"
#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTextStream>

#include <gio/gio.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int entries = 2000;
const QByteArray webTypes = "text/html;x-scheme-handler/http;x-scheme-handler/https;";
const QByteArray mailTypes = "x-scheme-handler/mailto;";

// A full desktop: about one entry in a hundred a browser, fewer mail clients, the rest other
// programs with MIME types and forty translations each. firefox-esr is the default browser
// and thunderbird the default mail client; the program guards firefox-esr every ten minutes.
void fill(const XdgTree &tree)
{
    QByteArray extra = "Categories=Utility;\n";
    for (int i = 0; i < 40; ++i) {
        const QByteArray language = "l" + QByteArray::number(i);
        extra += "Name[" + language + "]=A name in another language\nComment[" + language
                 + "]=What the program does, said in another language\n";
    }
    const QStringList browsers{"firefox-esr", "chromium", "org.gnome.Epiphany", "org.kde.falkon",
                               "org.qutebrowser.qutebrowser"};
    const QStringList mail{"thunderbird", "org.gnome.Evolution", "claws-mail"};
    const QString applications = QStringLiteral("share2/applications");
    for (const QString &id : browsers)
        tree.entry(applications, id + u".desktop", webTypes, extra, id.toUtf8() + " Browser");
    for (const QString &id : mail)
        tree.entry(applications, id + u".desktop", mailTypes, extra, id.toUtf8() + " Mail");
    for (int i = 0; i < entries - browsers.size() - mail.size(); ++i) {
        const bool web = i % 100 == 0;
        const QByteArray types = web            ? webTypes
                                 : i % 250 == 1 ? mailTypes
                                                : "text/plain;image/png;application/x-type"
                                                      + QByteArray::number(i % 300) + ";";
        tree.entry(i % 2 ? QStringLiteral("share1/applications") : applications,
                   (web ? u"web" : u"app") + QString::number(i) + u".desktop", types, extra,
                   (web ? "Web Browser " : "Program ") + QByteArray::number(i));
    }
    tree.updateCaches();
    tree.write(QStringLiteral("config/mimeapps.list"),
               "[Default Applications]\nx-scheme-handler/https=firefox-esr.desktop\n"
               "x-scheme-handler/http=firefox-esr.desktop\n"
               "x-scheme-handler/mailto=thunderbird.desktop\n");
    tree.write(QStringLiteral("config/io.kestrane.vandorel/settings.ini"),
               "[General]\nhasLaunchedBefore=true\nhasLaunchedBeforeEmail=true\n"
               "monitoringEnabled=true\ncheckInterval=10min\nemailMonitoringEnabled=true\n"
               "emailCheckInterval=10min\ntargetDefaultBrowser=\"@ByteArray({\\\"id\\\":"
               "\\\"6F1C1E3A-27D5-4B8E-9D0A-3C2B1A0F9E8D\\\",\\\"name\\\":"
               "\\\"firefox-esr Browser\\\",\\\"bundleIdentifier\\\":\\\"firefox-esr\\\"})\"\n");
}
constexpr int takeoverTimeoutMs = 5000;

template <typename Call>
double microsecondsPerCall(int rounds, Call call)
{
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < rounds; ++i)
        call();
    return double(timer.nsecsElapsed()) / 1000.0 / rounds;
}

QString ratio(double ours, double theirs)
{
    return theirs > 0 ? QString::number(ours / theirs, 'f', 2) : QStringLiteral("-");
}

void gioDefault(const char *scheme)
{
    if (GAppInfo *info = g_app_info_get_default_for_uri_scheme(scheme))
        g_object_unref(info);
}

void gioHandlers(const char *mimeType)
{
    g_list_free_full(g_app_info_get_all_for_type(mimeType), g_object_unref);
}

bool xdgMimeDefault(const QString &id)
{
    return QProcess::execute(QStringLiteral("xdg-mime"),
                             {QStringLiteral("default"), id + QStringLiteral(".desktop"),
                              QStringLiteral("x-scheme-handler/https"),
                              QStringLiteral("x-scheme-handler/http")})
           == 0;
}

// Milliseconds from the start of `xdg-mime default` to the program's change line, or -1 when
// none came within the time-out.
double takeoverMilliseconds()
{
    xdgMimeDefault(QStringLiteral("firefox-esr"));
    QProcess program;
    program.start(QStringLiteral(VANDOREL_BINARY));
    QByteArray out;
    while (!out.contains("🚀 App launched") && program.waitForReadyRead(30000))
        out += program.readAllStandardOutput();
    QElapsedTimer clock;
    clock.start();
    xdgMimeDefault(QStringLiteral("chromium"));
    while (!out.contains("📝 Log: ") && clock.elapsed() < takeoverTimeoutMs) {
        program.waitForReadyRead(20);
        out += program.readAllStandardOutput();
    }
    const double ms = out.contains("📝 Log: ") ? double(clock.elapsed()) : -1;
    // Killed outright, maybe in the middle of a write, as a crash would end it: the next
    // start on the same tree must not suffer for it.
    program.kill();
    program.waitForFinished(5000);
    return ms;
}

QString processLine(const char *name, const ProcessFigures::Run &run)
{
    return QStringLiteral("%1: %2 ms CPU, %3 MiB peak\n")
        .arg(QLatin1StringView(name))
        .arg(run.cpuMilliseconds, 0, 'f', 2)
        .arg(run.peakMebibytes, 0, 'f', 1);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int takeoverRounds = QCoreApplication::arguments().value(1, QStringLiteral("20")).toInt();
    Console::setSink([](const QString &) {}); // the detector's lines are not figures
    QTextStream out(stdout);
    const XdgTree tree;
    fill(tree);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    out << "tree: " << entries << " desktop entries, " << entries / 100 + 5
        << " of them browsers; ratios are ours over GIO's\n";

    FreedesktopHandlerDatabase db;
    const DefaultResolver browser(GuardProfile::browser(), db);
    const DefaultResolver mail(GuardProfile::email(), db);
    const auto bothDefaults = [&] {
        browser.currentDefaultIdentifier();
        mail.currentDefaultIdentifier();
    };
    const auto gioBothDefaults = [] {
        gioDefault("https");
        gioDefault("mailto");
    };
    // GIO reads the whole tree on its first call and answers later ones from memory until a
    // file monitor tells it of a change; the first call is its cost for a program that asks
    // once, as `--status` does.
    const double oursFirst = microsecondsPerCall(1, bothDefaults);
    const double gioFirst = microsecondsPerCall(1, gioBothDefaults);
    const double ours = microsecondsPerCall(200, bothDefaults);
    const double gio = microsecondsPerCall(200, gioBothDefaults);
    out << "both defaults in-process, first call: " << oursFirst << " us, GIO " << gioFirst
        << " us, ratio " << ratio(oursFirst, gioFirst) << "\n";
    out << "both defaults in-process, later calls: " << ours << " us, GIO (cached) " << gio
        << " us, ratio " << ratio(ours, gio) << "\n";

    const double detect =
        microsecondsPerCall(20, [&] { HandlerDetector(GuardProfile::browser(), db).detect(); });
    const double gioAll = microsecondsPerCall(20, [] { gioHandlers("x-scheme-handler/https"); });
    out << "installed browsers: " << detect << " us, GIO's handlers of https (cached) " << gioAll
        << " us, ratio " << ratio(detect, gioAll) << "\n";

    const auto status =
        ProcessFigures::median({QStringLiteral(VANDOREL_BINARY), QStringLiteral("--status")}, 21);
    const auto gioMime = ProcessFigures::median(
        {QStringLiteral("gio"), QStringLiteral("mime"), QStringLiteral("x-scheme-handler/https")},
        21);
    out << processLine("vandorel --status", status)
        << processLine("gio mime x-scheme-handler/https", gioMime)
        << "whole process ratios: " << ratio(status.cpuMilliseconds, gioMime.cpuMilliseconds)
        << " CPU, " << ratio(status.peakMebibytes, gioMime.peakMebibytes)
        << " peak memory (medians of 21)\n";

    std::vector<double> takeovers;
    for (int i = 0; i < takeoverRounds; ++i)
        takeovers.push_back(takeoverMilliseconds());
    std::sort(takeovers.begin(), takeovers.end());
    const auto missed = std::count(takeovers.begin(), takeovers.end(), -1.0);
    out << "takeover by xdg-mime to the change line (interval ten minutes): " << takeoverRounds
        << " tried, " << missed << " not seen within " << takeoverTimeoutMs << " ms";
    if (missed < takeoverRounds) {
        const std::vector<double> seen(takeovers.begin() + missed, takeovers.end());
        out << "; median " << seen[seen.size() / 2] << " ms, worst " << seen.back() << " ms";
    }
    out << "\n";
    return 0;
}
