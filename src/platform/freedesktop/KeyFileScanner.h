#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

// Reads the lines of a freedesktop key file (desktop entries, mimeapps.list, mimeinfo.cache)
// the way GLib's key-file parser reads them: blank lines and '#' comments are skipped, a
// "[Group]" line opens a group, "Key=Value" lines belong to the open group. GLib refuses the
// whole file at the first line that is none of these, or a key before the first group, a group
// or key name it does not allow, or an Encoding other than UTF-8 in the first group; callers
// throw away what they collected when valid() is false.
// Values keep what follows the '=' after leading white space, trailing white space included:
// GLib does not trim it, so "a.desktop " names no entry.
class KeyFileScanner {
public:
    enum class LineKind { blank, group, key, refused };

    explicit KeyFileScanner(QByteArrayView content = {});

    // Moves to the next key line of the content; false at the end or at a refused line.
    bool next();
    // Reads one line (without its "\n", and without the '\r' before it) after the lines fed
    // so far. key() and rawValue() then point into `line`.
    LineKind feed(QByteArrayView line);

    // No line refused so far.
    bool valid() const { return m_valid; }
    // The first group of the file (empty until one is seen).
    const QByteArray &firstGroup() const { return m_firstGroup; }
    const QByteArray &group() const { return m_group; }
    QByteArrayView key() const { return m_key; }
    QByteArrayView rawValue() const { return m_value; }
    // The value as GLib's string and string-list getters give it; nothing where they fail
    // (text that is not UTF-8, an unknown escape).
    std::optional<QString> value() const { return unescape(m_value); }
    std::optional<QStringList> listValue() const { return splitList(m_value); }

    // GLib's string escapes: \s \n \t \r \\ .
    static std::optional<QString> unescape(QByteArrayView raw);
    // A ';'-separated list with "\;" for a ';' inside an item; an empty last item is dropped.
    static std::optional<QStringList> splitList(QByteArrayView raw);
    // The items of a list as they are written, split where splitList splits.
    static QList<QByteArrayView> rawListItems(QByteArrayView raw);
    // An item written so that splitList gives it back.
    static QByteArray escapeListItem(const QString &item);
    // Leading blanks and the other ASCII white space GLib skips.
    static QByteArrayView trimmedStart(QByteArrayView text);

private:
    QByteArrayView m_content;
    qsizetype m_pos = 0;
    bool m_valid = true;
    QByteArray m_firstGroup;
    QByteArray m_group;
    QByteArrayView m_key;
    QByteArrayView m_value;
};
