#pragma once

#include "core/changelog/ChangeLogEntry.h"

#include <QByteArray>
#include <QList>

#include <optional>

// The stored form of the log: a compact UTF-8 JSON array of objects with the members
// id (upper-case UUID), type (raw value), message and timestamp (seconds since
// 2001-01-01 00:00:00 UTC). Members may come in any order; extra members are ignored.
namespace ChangeLogCodec {

// Nothing if a record cannot be written (a timestamp that is not a finite number).
std::optional<QByteArray> encode(const QList<ChangeLogEntry> &entries);

// All or nothing: one malformed record, or bytes that are not such an array, give nothing.
std::optional<QList<ChangeLogEntry>> decode(const QByteArray &bytes);

} // namespace ChangeLogCodec
