// The handler database's factory, apart from the other factories: `vandorel --status` links
// this one alone, and so starts without the D-Bus library the others bring in.
#include "platform/PlatformBackend.h"

#include "platform/freedesktop/FreedesktopHandlerDatabase.h"

std::unique_ptr<HandlerDatabase> PlatformBackend::createHandlerDatabase()
{
    return std::make_unique<FreedesktopHandlerDatabase>();
}
