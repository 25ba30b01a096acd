#include "core/changelog/ChangeLogEntry.h"

#include "core/changelog/MediumDateTime.h"
#include "core/changelog/ReferenceDate.h"

#include <limits>

QString rawValue(ChangeLogType type)
{
    switch (type) {
    case ChangeLogType::browser:
        return QStringLiteral("browser");
    case ChangeLogType::email:
        return QStringLiteral("email");
    }
    Q_UNREACHABLE();
}

std::optional<ChangeLogType> changeLogTypeFromRawValue(const QString &raw)
{
    for (ChangeLogType type : {ChangeLogType::browser, ChangeLogType::email}) {
        if (raw == rawValue(type))
            return type;
    }
    return std::nullopt;
}

double ChangeLogEntry::secondsSinceReferenceDate() const
{
    if (storedSeconds && ReferenceDate::momentFrom(*storedSeconds) == timestamp)
        return *storedSeconds;
    if (!timestamp.isValid())
        return std::numeric_limits<double>::quiet_NaN();
    return ReferenceDate::secondsFrom(timestamp);
}

QString ChangeLogEntry::description() const
{
    return description(QLocale::system());
}

QString ChangeLogEntry::description(const QLocale &locale) const
{
    const double unixMSecs = ReferenceDate::unixMSecsFrom(secondsSinceReferenceDate());
    return u'[' + MediumDateTime::format(unixMSecs, locale) + u"] " + rawValue(type).toUpper()
           + u": " + message;
}
