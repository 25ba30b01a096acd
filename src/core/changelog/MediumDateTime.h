#pragma once

#include <QLocale>
#include <QString>

// A moment as the platform writes it with the medium date style and the medium time
// style of a locale, in the process's time zone (ICU's default zone, taken from TZ and
// the system, as local time is).
namespace MediumDateTime {

// unixMSecs: milliseconds since 1970-01-01 00:00:00 UTC, fractions allowed.
QString format(double unixMSecs, const QLocale &locale);

// ICU's name of a Qt locale: "de_DE", "sr_Latn_RS"; the C locale is "en_US_POSIX",
// as ICU itself names a POSIX environment.
QByteArray icuLocaleName(const QLocale &locale);

} // namespace MediumDateTime
