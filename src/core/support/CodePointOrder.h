#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>

// Orders text by Unicode code points, case-sensitively and without locale: every
// upper-case initial before every lower-case one. (QString's operator< compares UTF-16
// code units, which puts characters beyond U+FFFF before U+E000..U+FFFF.)
inline bool codePointLess(QStringView a, QStringView b)
{
    const QList<uint> left = a.toUcs4();
    const QList<uint> right = b.toUcs4();
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end());
}
