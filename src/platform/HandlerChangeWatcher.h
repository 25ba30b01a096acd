#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

// Tells when the files that decide a default may have changed: where the system keeps its
// handler settings, and the entries of the applications named. Events arrive on the main
// thread; between them nothing runs.
class HandlerChangeWatcher : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Watches what decides the default of the schemes, and the entries of the identifiers,
    // in place of what was watched before.
    virtual void watch(const QStringList &schemes, const QStringList &identifiers) = 0;
    // Watches nothing.
    virtual void stop() = 0;
    virtual bool isWatching() const = 0;
    // The contents of the watched files as they are now, digested: while it stays the same,
    // nothing that decides the default has changed.
    virtual QByteArray contentsDigest() const = 0;

Q_SIGNALS:
    // A watched file or directory was written, replaced, added or removed.
    void touched();
};
