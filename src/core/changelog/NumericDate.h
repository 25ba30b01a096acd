#pragma once

#include <QLocale>
#include <QString>

// A day as the platform writes it in the numeric style of a locale, with no time: "11/15/2026"
// in American English, "15.11.2026" in German. In the process's time zone.
namespace NumericDate {

// unixMSecs: milliseconds since 1970-01-01 00:00:00 UTC.
QString format(double unixMSecs, const QLocale &locale);

} // namespace NumericDate
