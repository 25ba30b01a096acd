#include "platform/freedesktop/FreedesktopDeviceFacts.h"

#include <QFile>
#include <QSysInfo>

#include <sys/utsname.h>

namespace {

QString firstLineOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.read(4096);
    // Device-tree strings end with a zero byte, sysfs values with a newline.
    const qsizetype end = bytes.indexOf('\0');
    if (end >= 0)
        bytes.truncate(end);
    return QString::fromUtf8(bytes).section(QLatin1Char('\n'), 0, 0).trimmed();
}

QString unameMachine()
{
    utsname names{};
    if (uname(&names) != 0)
        return {};
    return QString::fromUtf8(names.machine);
}

} // namespace

QString FreedesktopDeviceFacts::osVersion() const
{
    return paddedVersion(QSysInfo::productVersion());
}

QString FreedesktopDeviceFacts::deviceModel() const
{
    for (const QString &path : {m_sources.dmiProductName, m_sources.deviceTreeModel}) {
        const QString model = firstLineOf(path);
        if (!model.isEmpty())
            return model;
    }
    const QString simulated = qEnvironmentVariable("SIMULATOR_MODEL_IDENTIFIER");
    if (!simulated.isEmpty())
        return simulated;
    return unameMachine();
}
