#pragma once

#include "platform/HandlerDatabase.h"

#include <memory>

// The handler database of freedesktop desktops, read and written the way GLib (GIO) reads
// and writes it: desktop entries in the XDG applications directories, mimeapps.list files
// and mimeinfo.cache, with x-scheme-handler/<scheme> as the MIME type of a URL scheme.
// Identifiers are desktop file ids without ".desktop"; locations are desktop entry paths.
// What it reads is kept while the files and folders it came from stay as they were, which
// each question checks first. Safe to use from several threads.
class FreedesktopHandlerDatabase : public HandlerDatabase {
public:
    // Non-zero results of setDefaultHandler (errno values, so they read well in a log).
    enum Status {
        Success = 0,
        NotInstalled = 2,        // ENOENT: no launchable entry with that id
        NotWritable = 13,        // EACCES: the list's mode has no owner write bit
        WriteFailed = 5,         // EIO
        InvalidArgument = 22,    // EINVAL: not a URL scheme, or not a desktop file id
        ReadOnlyFileSystem = 30, // EROFS
    };

    FreedesktopHandlerDatabase();
    ~FreedesktopHandlerDatabase() override;

    QStringList knownIdentifiers(Kind kind) const override;
    QStringList applicationsForScheme(const QString &scheme) const override;
    std::optional<QString> defaultApplicationForScheme(const QString &scheme) const override;
    std::optional<QString> locationForIdentifier(const QString &identifier) const override;
    std::optional<Application> applicationAt(const QString &location) const override;
    QString displayNameAtPath(const QString &path) const override;
    int setDefaultHandler(const QString &scheme, const QString &identifier) override;
    std::shared_ptr<void> holdReading() const override;

    // "x-scheme-handler/<scheme>" for a valid scheme (lower-cased), else an empty string.
    static QString mimeTypeForScheme(const QString &scheme);

private:
    class Reading;
    std::optional<QString> findDefault(const QString &scheme, const QString &mimeType) const;

    const std::unique_ptr<Reading> m_reading;
};
