#pragma once

#include <QString>
#include <QVariant>

#include <initializer_list>

// printf-style filling of translated texts: %@ (any value as text), %lld / %ld / %d / %i
// and %llu / %u (integers), %% (a percent sign), and the positional forms such as %2$@.
// Unknown specifiers are copied unchanged; a specifier without a value becomes empty.
class TextFormat {
public:
    static QString format(const QString &pattern, const QVariantList &values);
    static QString format(const QString &pattern, std::initializer_list<QVariant> values)
    {
        return format(pattern, QVariantList(values));
    }
};
