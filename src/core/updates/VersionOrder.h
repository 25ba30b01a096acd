#pragma once

#include <QList>
#include <QStringView>

#include <optional>

// Numeric order of dotted version strings: 1.10 is newer than 1.9, missing parts count as 0
// (1.2 equals 1.2.0), and there are no pre-releases. Never fails: junk reads as fewer numbers.
class VersionOrder {
public:
    // True if `version` is strictly newer than `newerThan`.
    static bool isVersion(QStringView version, QStringView newerThan);

    // The numbers of a version: split at every ".", empty parts left out, each part read as a
    // signed 64-bit decimal; a part that does not read (letters, too large) is dropped and the
    // parts behind it move up. "2.0b1.5" gives 2, 5.
    static QList<qint64> numbers(QStringView version);

    // An optional sign, then ASCII decimal digits only, within the 64-bit range.
    static std::optional<qint64> toInt64(QStringView part);
};
