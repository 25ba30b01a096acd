#pragma once

#include "platform/HandlerChangeWatcher.h"

class QFileSystemWatcher;

// Watches, through inotify, the mimeapps.list places (with defaults.list and mimeinfo.cache),
// the desktop's own setting where it decides the schemes, and the named entries in every
// applications directory. Directories are watched as well as files: tools replace a file by
// renaming another over it, which a watch on the file alone does not survive.
class FreedesktopHandlerChangeWatcher : public HandlerChangeWatcher {
    Q_OBJECT
public:
    using HandlerChangeWatcher::HandlerChangeWatcher;
    ~FreedesktopHandlerChangeWatcher() override;

    void watch(const QStringList &schemes, const QStringList &identifiers) override;
    void stop() override;
    bool isWatching() const override { return m_watcher != nullptr; }
    QByteArray contentsDigest() const override;

    // The files that decide the schemes' default and hold the identifiers' entries; some may
    // not exist.
    static QStringList decidingFiles(const QStringList &schemes, const QStringList &identifiers);

private:
    QFileSystemWatcher *m_watcher = nullptr;
    QStringList m_files;
};
