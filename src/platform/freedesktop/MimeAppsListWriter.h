#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

// Rewrites one list file atomically. A symlinked file is written at its target, so the link
// stays. A file whose mode lacks the owner write bit is left alone even when the process
// could write it (as root), and so is one on a read-only file system.
class MimeAppsListWriter {
public:
    enum Status {
        Written = 0,
        Unchanged = 0,
        NotWritable = 13,        // EACCES
        ReadOnlyFileSystem = 30, // EROFS
        Failed = 5,              // EIO
    };

    // Reads the file (missing reads as empty), applies `edit` to its bytes and stores the
    // result if it differs. With `createIfMissing` false a missing file stays missing.
    static int update(const QString &path,
                      const std::function<QByteArray(const QByteArray &)> &edit,
                      bool createIfMissing = true);
};
