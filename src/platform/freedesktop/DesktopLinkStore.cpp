#include "platform/freedesktop/DesktopLinkStore.h"

#include "platform/freedesktop/KdeGlobals.h"
#include "platform/freedesktop/XdgDirectories.h"
#include "platform/freedesktop/XfceHelpers.h"

// The first part of $XDG_CURRENT_DESKTOP names the desktop that runs; the others are
// desktops it is compatible with.
std::unique_ptr<DesktopLinkStore> DesktopLinkStore::current()
{
    const QStringList desktops = XdgDirectories::currentDesktops();
    if (desktops.isEmpty())
        return nullptr;
    if (desktops.first() == u"xfce")
        return std::make_unique<XfceHelpers>();
    if (desktops.first() == u"kde")
        return std::make_unique<KdeGlobals>();
    return nullptr;
}
