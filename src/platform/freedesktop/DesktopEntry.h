#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

// The [Desktop Entry] group of a desktop file; other groups (actions have Name= too) and
// localised keys are ignored.
class DesktopEntry {
public:
    // Nothing when the file cannot be read.
    static std::optional<DesktopEntry> read(const QString &path);
    static DesktopEntry parse(QByteArrayView content);

    // Well formed, with [Desktop Entry] as its first group (GLib refuses anything else).
    bool isValid() const { return m_valid; }
    const std::optional<QString> &name() const { return m_name; }
    const QString &type() const { return m_type; }
    bool hidden() const { return m_hidden; }
    bool noDisplay() const { return m_noDisplay; }
    const QString &tryExec() const { return m_tryExec; }
    const QString &exec() const { return m_exec; }
    const QStringList &mimeTypes() const { return m_mimeTypes; }
    const QStringList &categories() const { return m_categories; }

    // The program of Exec= as a shell would split the line; nothing when it doesn't split.
    std::optional<QString> execProgram() const;

    // GLib's test for an application it will use: a valid Type=Application entry whose
    // TryExec and Exec program are found (absolute and executable, or on $PATH). Hidden and
    // NoDisplay do not count here.
    bool isLaunchable() const;

    // An executable file at an absolute or relative path, or found on $PATH.
    static bool programExists(const QString &program);
    // Where that file is, or an empty string.
    static QString programPath(const QString &program);
    // The folders a program named without a path is looked for in, in order.
    static QStringList searchPath();
    // The program of a command line, split as a shell would split it.
    static std::optional<QString> commandProgram(const QString &commandLine);
    // Whether two programs are one: the same name, or the same file once found.
    static bool isSameProgram(const QString &a, const QString &b);

private:
    bool m_valid = false;
    std::optional<QString> m_name;
    QString m_type;
    bool m_hidden = false;
    bool m_noDisplay = false;
    QString m_tryExec;
    QString m_exec;
    QStringList m_mimeTypes;
    QStringList m_categories;
};
