#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// A whole file read with one open and no look at its size: what the key files need, at the
// cost of the few system calls that reading hundreds of them comes to.
class WholeFile {
public:
    // Nothing when the file cannot be opened or read.
    static std::optional<QByteArray> read(const QString &path);
};
