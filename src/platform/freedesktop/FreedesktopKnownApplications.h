#pragma once

#include <QStringList>

// The desktop file ids (without ".desktop") under which browsers and mail clients are
// shipped by Debian, Ubuntu, Fedora, Flatpak and Snap, each program under every id it is
// shipped as. Where a package ships several entries under one name, only the entry that
// handles links (or mailto) is listed: that is the id the handler database records as the
// default, so a target and a default of the same program never differ by id.
class FreedesktopKnownApplications {
public:
    static const QStringList &browsers();
    static const QStringList &mailClients();
};
