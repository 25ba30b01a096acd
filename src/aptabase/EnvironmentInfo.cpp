#include "aptabase/EnvironmentInfo.h"

#include "BuildConfig.h"

#include <QFile>
#include <QLocale>
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

QString languageCode(const QLocale &locale)
{
    const QLocale::Language language = locale.language();
    if (language == QLocale::C || language == QLocale::AnyLanguage)
        return {};
    return QLocale::languageToCode(language);
}

} // namespace

EnvironmentInfo EnvironmentInfo::current()
{
    EnvironmentInfo info;
    info.isDebug = BuildConfig::debugBuild;
    info.osName = QStringLiteral("Linux");
    info.osVersion = paddedVersion(QSysInfo::productVersion());
    info.locale = languageCode(QLocale::system());
    info.appVersion = QString::fromUtf8(BuildConfig::appVersion);
    info.appBuildNumber = QString::fromUtf8(BuildConfig::buildNumber);
    info.deviceModel = deviceModelOfThisMachine();
    return info;
}

QString EnvironmentInfo::paddedVersion(const QString &productVersion)
{
    const QStringList parts = productVersion.split(QLatin1Char('.'));
    QStringList numbers;
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        const qulonglong number = i < parts.size() ? parts.at(i).toULongLong(&ok) : 0;
        numbers << QString::number(ok ? number : 0);
    }
    return numbers.join(QLatin1Char('.'));
}

QString EnvironmentInfo::deviceModelFrom(const QString &dmiProductNamePath,
                                         const QString &deviceTreeModelPath)
{
    for (const QString &path : {dmiProductNamePath, deviceTreeModelPath}) {
        const QString model = firstLineOf(path);
        if (!model.isEmpty())
            return model;
    }
    const QString simulated = qEnvironmentVariable("SIMULATOR_MODEL_IDENTIFIER");
    if (!simulated.isEmpty())
        return simulated;
    return unameMachine();
}

QString EnvironmentInfo::deviceModelOfThisMachine()
{
    return deviceModelFrom(QStringLiteral("/sys/class/dmi/id/product_name"),
                           QStringLiteral("/proc/device-tree/model"));
}
