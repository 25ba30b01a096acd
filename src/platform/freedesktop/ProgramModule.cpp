#include "platform/ProgramModule.h"

#include <dlfcn.h>

ProgramModule::Run ProgramModule::load(QString *error)
{
    // $ORIGIN is the executable's folder: the module sits beside it in the build tree and in
    // the package's private library folder once installed.
    for (const char *path :
         {"$ORIGIN/vandorel-program.so", "$ORIGIN/../lib/vandorel/vandorel-program.so"}) {
        void *module = dlopen(path, RTLD_NOW | RTLD_LOCAL);
        // dlsym hands back an object pointer; POSIX guarantees it converts to a function.
        if (const auto run = module ? reinterpret_cast<Run>(dlsym(module, entryName)) : nullptr)
            return run;
        *error = QString::fromLocal8Bit(dlerror());
    }
    return nullptr;
}
