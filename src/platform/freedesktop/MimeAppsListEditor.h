#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// Edits the text of a mimeapps.list in place: only the lines of the keys it is told to change
// are touched; every other line, comment, blank line, order and line ending stays as it was.
class MimeAppsListEditor {
public:
    explicit MimeAppsListEditor(const QByteArray &content);

    // The entries of a key (of the group's last line for it), or an empty list.
    QStringList values(const QString &group, const QString &key) const;
    // Sets a key's value: rewrites its line in place (and drops earlier repeats of it in the
    // group), or adds the line at the end of the group, or adds the group at the end.
    void setValue(const QString &group, const QString &key, const QString &value);
    // Drops every line of the key in the group.
    void removeKey(const QString &group, const QString &key);

    QByteArray content() const;

private:
    struct Line {
        QByteArray text;   // without its line ending
        QByteArray ending; // "\n", "\r\n", or empty for a last line without one
        QByteArray group;  // the group the line belongs to (a header belongs to its own group)
    };

    QList<qsizetype> keyLines(const QByteArray &group, const QByteArray &key) const;
    qsizetype lastGroupHeader(const QByteArray &group) const;
    QByteArray newline() const;

    QList<Line> m_lines;
};
