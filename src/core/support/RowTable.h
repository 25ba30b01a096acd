#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <optional>

// Lookups over the constant table behind a raw-value enumeration: rows with a `value`
// and a raw text member that the caller names.
namespace RowTable {

template <class Type, class Rows>
QList<Type> allCases(const Rows &rows)
{
    QList<Type> cases;
    for (const auto &row : rows)
        cases.append(Type(row.value));
    return cases;
}

template <class Type, class Rows, class Row>
std::optional<Type> fromRaw(const Rows &rows, const char *const Row::*rawMember, const QString &raw)
{
    for (const auto &row : rows) {
        if (raw == QLatin1StringView(row.*rawMember))
            return Type(row.value);
    }
    return std::nullopt;
}

} // namespace RowTable
