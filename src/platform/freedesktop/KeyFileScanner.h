#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

// Walks the lines of a freedesktop key file (desktop entries, mimeapps.list, mimeinfo.cache)
// the way GLib's key-file parser reads them: blank lines and '#' comments are skipped, a
// "[Group]" line opens a group, "Key=Value" lines belong to the open group, and any other
// line, or a key before the first group, makes the whole file malformed. GLib ignores a
// malformed file entirely, so callers throw away what they collected when valid() is false.
class KeyFileScanner {
public:
    explicit KeyFileScanner(QByteArrayView content);

    // Moves to the next key line; false at the end of the file or at a malformed line.
    bool next();
    bool valid() const { return m_valid; }
    // The first group of the file (empty until one is seen).
    const QByteArray &firstGroup() const { return m_firstGroup; }
    const QByteArray &group() const { return m_group; }
    QByteArrayView key() const { return m_key; }
    QByteArrayView rawValue() const { return m_value; }
    QString value() const { return unescape(m_value); }
    QStringList listValue() const { return splitList(m_value); }

    // GLib's string escapes: \s \n \t \r \\ .
    static QString unescape(QByteArrayView raw);
    // A ';'-separated list; empty items are dropped.
    static QStringList splitList(QByteArrayView raw);
    // The group name of a "[Group]" line, or nothing if the line is not a group header.
    static bool parseGroupLine(QByteArrayView trimmedLine, QByteArray *name);

private:
    QByteArrayView m_content;
    qsizetype m_pos = 0;
    bool m_valid = true;
    QByteArray m_firstGroup;
    QByteArray m_group;
    QByteArrayView m_key;
    QByteArrayView m_value;
};
