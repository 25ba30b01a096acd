#include "platform/freedesktop/FreedesktopKnownApplications.h"

const QStringList &FreedesktopKnownApplications::browsers()
{
    static const QStringList ids{
        // Firefox: Mozilla's and Fedora's packages, Debian's ESR, Flatpak, Snap.
        "firefox",
        "firefox-esr",
        "org.mozilla.firefox",
        "firefox_firefox",
        "firefox-beta",
        "firefox-devedition",
        "firefox-developer-edition",
        "firefox-nightly",
        // Chromium: Debian, Fedora and older Ubuntu, Flatpak, Snap.
        "chromium",
        "chromium-browser",
        "org.chromium.Chromium",
        "chromium_chromium",
        "io.github.ungoogled_software.ungoogled_chromium",
        "google-chrome",
        "google-chrome-beta",
        "google-chrome-unstable",
        "com.google.Chrome",
        "com.google.ChromeDev",
        "microsoft-edge",
        "microsoft-edge-beta",
        "microsoft-edge-dev",
        "com.microsoft.Edge",
        "brave-browser",
        "brave-browser-beta",
        "brave-browser-nightly",
        "com.brave.Browser",
        "brave_brave",
        "vivaldi-stable",
        "vivaldi-snapshot",
        "com.vivaldi.Vivaldi",
        "vivaldi_vivaldi-stable",
        "opera",
        "opera-beta",
        "opera-developer",
        "com.opera.Opera",
        "opera_opera",
        // GNOME Web.
        "org.gnome.Epiphany",
        "epiphany",
        "org.kde.falkon",
        // Konqueror ships six entries named "Konqueror"; this one opens links.
        "kfmclient_html",
        "org.kde.angelfish",
        "midori",
        "org.midori_browser.Midori",
        "org.qutebrowser.qutebrowser",
        "librewolf",
        "io.gitlab.librewolf-community",
        "waterfox",
        "net.waterfox.waterfox",
        "floorp",
        "one.ablaze.floorp",
        "app.zen_browser.zen",
        "seamonkey",
        "palemoon",
        "luakit",
        "nyxt",
        "dillo",
        "netsurf-gtk",
        "netsurf",
        "links2",
    };
    return ids;
}

const QStringList &FreedesktopKnownApplications::mailClients()
{
    static const QStringList ids{
        // Thunderbird: Debian and Ubuntu, Fedora, Flatpak, Snap.
        "thunderbird",
        "mozilla-thunderbird",
        "org.mozilla.thunderbird",
        "org.mozilla.Thunderbird",
        "net.thunderbird.Thunderbird",
        "thunderbird_thunderbird",
        "betterbird",
        "eu.betterbird.Betterbird",
        "org.gnome.Evolution",
        "evolution",
        "org.gnome.Geary",
        // KMail's other entries (its viewer, its settings refresher) take no mailto links.
        "org.kde.kmail2",
        "claws-mail",
        "org.claws_mail.Claws-Mail",
        "sylpheed",
        "Mailspring",
        "mailspring",
        "com.getmailspring.Mailspring",
        "mailspring_mailspring",
        // Balsa's main entry takes no mailto links; its handler entry does.
        "balsa-mailto-handler",
        "neomutt",
        "tutanota-desktop",
        "com.tutanota.Tutanota",
    };
    return ids;
}
