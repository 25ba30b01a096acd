#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Edits the text of a mimeapps.list (or of another key file of its form: XFCE's helpers.rc,
// KDE's kdeglobals) in place: only the lines of the keys it is told to change are touched;
// every other line, comment, blank line, order and line ending stays as it was. Lines are
// read as GLib reads them (see KeyFileScanner).
class MimeAppsListEditor {
public:
    // How lines are read: as GLib reads them (mimeapps.list), or leniently, as the desktops
    // read their own files: any "Key=Value" line is a key, also one GLib refuses
    // (kdeglobals' "Key[$e]") and one above the first group header (helpers.rc, group "").
    enum class Syntax { glib, lenient };

    struct RefusedLine {
        qsizetype number; // from 1
        QByteArray text;
    };

    explicit MimeAppsListEditor(const QByteArray &content, Syntax syntax = Syntax::glib);

    // The lines that make GLib refuse the whole file; empty when it reads the file.
    QList<RefusedLine> refusedLines() const;
    // Drops the refused lines, and the keys under a refused group header (they belong to no
    // group GLib could read), so that GLib reads what is left.
    void dropRefusedLines();

    // The entries of a key (of the group's last line for it) as GLib reads them: nothing
    // when the key is absent or its value unreadable.
    std::optional<QStringList> values(const QString &group, const QString &key) const;
    // The unescaped value of a key (of the group's last line for it), trimmed, if it has one.
    std::optional<QString> value(const QString &group, const QString &key) const;
    // The items of the same line as they are written.
    QList<QByteArray> rawItems(const QString &group, const QString &key) const;
    // Sets a key's value (written as given): rewrites its line in place (and drops earlier
    // repeats of it in the group), or adds the line at the end of the group, or adds the group
    // at the end.
    void setValue(const QString &group, const QString &key, const QByteArray &value);
    // Drops every line of the key in the group.
    void removeKey(const QString &group, const QString &key);

    QByteArray content() const;

private:
    enum class Kind { blank, group, key, refused, orphan };
    struct Line {
        QByteArray text;   // without its line ending
        QByteArray ending; // "\n", "\r\n", or empty for a last line without one
        QByteArray group;  // the group the line belongs to (a header belongs to its own group)
        Kind kind = Kind::blank;
        QByteArray key; // of a key line
        qsizetype valueStart = 0;
    };

    QList<qsizetype> keyLines(const QByteArray &group, const QByteArray &key) const;
    qsizetype lastGroupHeader(const QByteArray &group) const;
    qsizetype insertionPoint(const QByteArray &group) const;
    QByteArray newline() const;

    QList<Line> m_lines;
};
