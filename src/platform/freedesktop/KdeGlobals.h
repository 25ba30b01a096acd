#pragma once

#include "platform/freedesktop/DesktopLinkStore.h"

// KDE's browser: [General] BrowserApplication in kdeglobals under the config places holds
// a desktop file name, or "!" and a command. It decides web links only; mail stays with
// mimeapps.list. An empty or missing value, or a name without an installed entry, leaves
// web links to mimeapps.list too.
class KdeGlobals : public DesktopLinkStore {
public:
    bool decides(const QString &scheme) const override;
    std::optional<QString> choice(const QString &scheme, const DesktopFileLocator &locator,
                                  const QStringList &handlingIds) const override;
    int write(const QString &scheme, const QString &desktopId,
              const DesktopEntry &entry) const override;
    QString failureLine(int status, const DesktopEntry &entry) const override;
    QStringList files() const override;
};
