#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <chrono>

// A moment told relative to now in the words of a locale, "2 hours ago", "in 3 days",
// in the largest calendar unit that is at least one whole step away (seconds up to years).
namespace RelativeDateTime {

QString format(const QDateTime &date, const QDateTime &now, const QLocale &locale);

// How long from `now` until format() gives another text for `date`; at least one second.
std::chrono::milliseconds untilNextChange(const QDateTime &date, const QDateTime &now);

} // namespace RelativeDateTime
