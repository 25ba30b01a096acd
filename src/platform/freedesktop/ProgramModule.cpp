#include "platform/ProgramModule.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

ProgramModule::Run ProgramModule::load(QString *error)
{
    // The module sits beside the executable in the build tree and in the package's private
    // library folder once installed. The folder comes from /proc rather than from "$ORIGIN"
    // in the path: dlopen expands that against its caller, which is the sanitizer's runtime
    // when one intercepts the call.
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    QStringList reasons;
    const QStringList paths = {folder + u"/vandorel-program.so",
                               folder + u"/../lib/vandorel/vandorel-program.so"};
    for (const QString &path : paths) {
        void *module = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
        // dlsym hands back an object pointer; POSIX guarantees it converts to a function.
        if (const auto run = module ? reinterpret_cast<Run>(dlsym(module, entryName)) : nullptr)
            return run;
        reasons << QString::fromLocal8Bit(dlerror());
    }
    *error = reasons.join(u"; ");
    return nullptr;
}
