#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

// What one mimeapps.list (or defaults.list, or mimeinfo.cache) says about one MIME type:
// the entries of [Default Applications], [Added Associations], [Removed Associations] and
// [MIME Cache]. A missing, unreadable or malformed file says nothing, as in GLib. Where a
// key repeats, the last line wins.
class MimeAppsList {
public:
    static MimeAppsList read(const QString &path, const QString &mimeType);
    static MimeAppsList parse(QByteArrayView content, const QString &mimeType);

    const QStringList &defaults() const { return m_defaults; }
    const QStringList &added() const { return m_added; }
    const QStringList &removed() const { return m_removed; }
    const QStringList &cached() const { return m_cached; }

private:
    QStringList m_defaults;
    QStringList m_added;
    QStringList m_removed;
    QStringList m_cached;
};
