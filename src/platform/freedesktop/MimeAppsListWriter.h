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

    // What to store, and whether the file as it was must be kept beside it first, under its
    // name followed by `keepOriginalSuffix` (and "-2", "-3", ... where that name is taken).
    struct Edit {
        Edit(QByteArray content, QString keepOriginalSuffix = {})
            : content(std::move(content)), keepOriginalSuffix(std::move(keepOriginalSuffix))
        {
        }
        QByteArray content;
        QString keepOriginalSuffix;
    };
    struct Result {
        Result(int status = Written, QString keptCopy = {})
            : status(status), keptCopy(std::move(keptCopy))
        {
        }
        int status;
        QString keptCopy; // the path of the kept original, if one was made
    };

    // Reads the file (missing reads as empty), applies `edit` to its bytes and stores the
    // result if it differs. With `createIfMissing` false a missing file stays missing.
    static Result update(const QString &path, const std::function<Edit(const QByteArray &)> &edit,
                         bool createIfMissing = true);
};
