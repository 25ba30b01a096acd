#include "platform/DeviceFacts.h"

#include <QStringList>

QString DeviceFacts::paddedVersion(const QString &productVersion)
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
