#include "core/i18n/UserCalendar.h"

#include "core/changelog/MediumDateTime.h"

#include <QLocale>

#include <unicode/calendar.h>
#include <unicode/locid.h>

#include <memory>

QByteArray UserCalendar::systemLocale()
{
    return MediumDateTime::icuLocaleName(QLocale::system());
}

int UserCalendar::year(const QDateTime &moment, const QByteArray &icuLocale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::Locale(icuLocale.constData()), status));
    if (U_SUCCESS(status) && calendar) {
        calendar->setTime(static_cast<UDate>(moment.toMSecsSinceEpoch()), status);
        const int32_t year = calendar->get(UCAL_YEAR, status);
        if (U_SUCCESS(status))
            return year;
    }
    return moment.toLocalTime().date().year();
}
