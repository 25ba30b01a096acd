#pragma once

#include "platform/freedesktop/DesktopFileLocator.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

// The desktop's own setting of the program that opens links, on desktops that decide
// through one rather than through mimeapps.list alone (XFCE's preferred applications, KDE's
// browser). $XDG_CURRENT_DESKTOP tells which desktop runs; it is read at every call.
class DesktopLinkStore {
public:
    // Non-zero results of write() (errno values, as the handler database gives).
    enum Status {
        NoHelper = 3, // ESRCH: nothing of the desktop's runs the program
    };

    virtual ~DesktopLinkStore() = default;

    // The store of the running desktop, or nothing where mimeapps.list alone decides.
    static std::unique_ptr<DesktopLinkStore> current();

    // Whether the desktop opens links of this scheme by the store.
    virtual bool decides(const QString &scheme) const = 0;
    // What the store names for the scheme: the path of the installed entry, or, for a
    // program that no entry runs, "!" followed by the program. Nothing when the store names
    // nothing usable (the desktop then goes by mimeapps.list). Entries among
    // `handlingIds` are preferred when several run the same program.
    virtual std::optional<QString> choice(const QString &scheme, const DesktopFileLocator &locator,
                                          const QStringList &handlingIds) const = 0;
    // Makes the entry the store's choice for the scheme; 0 or a non-zero status. Every other
    // line of the store's files stays as it was.
    virtual int write(const QString &scheme, const QString &desktopId,
                      const DesktopEntry &entry) const = 0;
    // A line that tells why write() failed with `status`.
    virtual QString failureLine(int status, const DesktopEntry &entry) const = 0;
    // The files the setting lives in, and directories whose files it names.
    virtual QStringList files() const = 0;
};
