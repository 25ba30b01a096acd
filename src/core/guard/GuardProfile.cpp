#include "core/guard/GuardProfile.h"

namespace {

GuardProfile makeBrowserProfile()
{
    GuardProfile p;
    p.role = GuardProfile::Role::browser;
    p.keys = SettingsTable::browserGuard;

    p.resolution = GuardProfile::Resolution::FirstOfSchemeLists;
    p.resolutionSchemes = {QStringLiteral("https"), QStringLiteral("http")};
    p.settingSchemes = {QStringLiteral("http"), QStringLiteral("https")};
    p.settingSchemeLabels = {QStringLiteral("HTTP"), QStringLiteral("HTTPS")};
    p.unknownName = QStringLiteral("Unknown Browser");

    p.registeredSchemes = {QStringLiteral("http"), QStringLiteral("https")};
    p.applicationKind = HandlerDatabase::Kind::browser;
    p.exclusionWords = {"automator", "script editor", "terminal", "xcode",      "mail",
                        "notes",     "textedit",      "preview",  "quicktime",  "pages",
                        "keynote",   "numbers",       "music",    "tv",         "books",
                        "news",      "stocks",        "weather",  "calculator", "calendar"};
    p.keywords = {"safari", "chrome",  "firefox",  "edge",  "brave", "opera", "vivaldi",
                  "arc",    "browser", "chromium", "orion", "sigma", "min",   "kagi"};

    p.telemetryType = QStringLiteral("browser");
    p.settingsPrefix = QStringLiteral("browser");
    p.alertType = QStringLiteral("browser_changed");
    p.alertTitleKey = QStringLiteral("alert_browser_changed_title");
    p.alertMessageKey = QStringLiteral("alert_browser_changed_message %@ %@");

    p.firstLaunchLine = QStringLiteral("✨ First launch - defaults set");
    p.launchedAtLoginLine = QStringLiteral("🚀 Launched at login");
    p.countersResetLine = QStringLiteral("🔄 Browser counters reset");
    p.checkingAfterPrefix = QStringLiteral("🔍 Checking after ");
    p.totalPrefix = QStringLiteral("📊 Total: ");
    p.setCalledPrefix = QStringLiteral("🔘 setDefaultBrowser called for: ");
    p.changingFlagLine = QStringLiteral("   ✅ isChangingBrowser = true");
    p.startingPollingLine = QStringLiteral("🔄 Starting polling");
    p.pollPrefix = QStringLiteral("📡 Poll ");
    p.matchLine = QStringLiteral("✅ Match!");
    p.setToPrefix = QStringLiteral("✅ Browser set to ");
    p.timeoutLine = QStringLiteral("⏱️ Timeout");
    p.cancelledLine = QStringLiteral("🛑 User cancelled browser change");
    return p;
}

GuardProfile makeEmailProfile()
{
    GuardProfile p;
    p.role = GuardProfile::Role::email;
    p.keys = SettingsTable::emailGuard;

    p.resolution = GuardProfile::Resolution::SchemeDefault;
    p.resolutionSchemes = {QStringLiteral("mailto")};
    p.settingSchemes = {QStringLiteral("mailto")};
    p.settingSchemeLabels = {QStringLiteral("mailto")};
    p.unknownName = QStringLiteral("Unknown Email Client");

    p.registeredSchemes = {QStringLiteral("mailto")};
    p.applicationKind = HandlerDatabase::Kind::mailClient;
    p.exclusionWords = {"automator", "script editor", "terminal", "xcode",   "notes", "textedit",
                        "preview",   "safari",        "chrome",   "firefox", "edge"};
    p.keywords = {"mail",       "outlook", "thunderbird", "airmail",   "spark",      "postbox",
                  "mailmate",   "canary",  "fastmail",    "gmail",     "betterbird", "mimestream",
                  "mailspring", "edison",  "kiwi",        "lettre",    "mailbird",   "polymail",
                  "nylas",      "unibox",  "bloop",       "mailplane", "mailbutler"};

    p.telemetryType = QStringLiteral("email");
    p.settingsPrefix = QStringLiteral("email");
    p.alertType = QStringLiteral("email_client_changed");
    p.alertTitleKey = QStringLiteral("alert_email_changed_title");
    p.alertMessageKey = QStringLiteral("alert_email_changed_message %@ %@");

    p.firstLaunchLine = QStringLiteral("✨ Email: First launch - defaults set");
    p.launchedAtLoginLine = QStringLiteral("🚀 Email: Launched at login");
    p.countersResetLine = QStringLiteral("🔄 Email counters reset");
    p.checkingAfterPrefix = QStringLiteral("🔍 Email: Checking after ");
    p.totalPrefix = QStringLiteral("📧 Email: Total: ");
    p.setCalledPrefix = QStringLiteral("📧 setDefaultEmailClient called for: ");
    p.changingFlagLine = QStringLiteral("   ✅ isChangingEmailClient = true");
    p.startingPollingLine = QStringLiteral("🔄 Starting email polling");
    p.pollPrefix = QStringLiteral("📡 Email Poll ");
    p.matchLine = QStringLiteral("✅ Email Match!");
    p.setToPrefix = QStringLiteral("✅ Email client set to ");
    p.timeoutLine = QStringLiteral("⏱️ Email Timeout");
    p.cancelledLine = QStringLiteral("🛑 User cancelled email client change");
    return p;
}

} // namespace

const GuardProfile &GuardProfile::browser()
{
    static const GuardProfile profile = makeBrowserProfile();
    return profile;
}

const GuardProfile &GuardProfile::email()
{
    static const GuardProfile profile = makeEmailProfile();
    return profile;
}
