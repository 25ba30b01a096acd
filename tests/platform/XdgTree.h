#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>

// A throw-away freedesktop tree: HOME and the XDG base directories point into a temporary
// directory for the lifetime of the object (and are restored after), XDG_CURRENT_DESKTOP is
// unset, and $PATH starts with the tree's bin directory, where stub programs go.
//   config/          $XDG_CONFIG_HOME        etc/xdg/      $XDG_CONFIG_DIRS
//   local/share/     $XDG_DATA_HOME          share1:share2 $XDG_DATA_DIRS
class XdgTree {
public:
    XdgTree();
    ~XdgTree();
    XdgTree(const XdgTree &) = delete;
    XdgTree &operator=(const XdgTree &) = delete;

    QString path(const QString &relative = {}) const;
    void write(const QString &relative, const QByteArray &content) const;
    QByteArray read(const QString &relative) const;
    // A mimeapps.list that makes `id` the default for links of `scheme`.
    static QByteArray defaults(const char *scheme, const char *id)
    {
        return "[Default Applications]\nx-scheme-handler/" + QByteArray(scheme) + '=' + id + '\n';
    }
    // An executable shell script in bin/; returns its absolute path.
    QString stub(const QString &name) const;
    // A launchable entry at <dir>/<file> whose Exec is a stub; `extra` lines are appended to
    // its [Desktop Entry] group. Named `name`, or after the file. Returns its absolute path.
    QString entry(const QString &dir, const QString &file, const QByteArray &mimeTypes,
                  const QByteArray &extra = {}, const QByteArray &name = {}) const;
    // A copy of a real desktop file (a fixture) at <dir>/<file name>, its Exec and TryExec
    // programs replaced by stubs, so that GIO counts it as installed; with `installed` false
    // they point at programs that do not exist. Returns the copy's absolute path.
    QString installFixture(const QString &fixture, const QString &dir, bool installed = true) const;
    // Runs update-desktop-database on every applications directory of the tree.
    void updateCaches() const;

    // What `gio mime <type>` answers: the default's desktop id (empty for none) and the
    // registered ids.
    struct GioAnswer {
        QString defaultId;
        QStringList registered;
    };
    static GioAnswer gioMime(const QString &mimeType);
    // What `xdg-mime query default <type>` answers (empty for none).
    static QString xdgMimeDefault(const QString &mimeType);
    // What other programs do: `xdg-mime default <id>.desktop` for the schemes' handler types,
    // or `gio mime` for one; true if the tool succeeded.
    static bool xdgMimeSet(const QString &id, const QStringList &schemes);
    static bool gioSet(const QString &scheme, const QString &id);

private:
    QTemporaryDir m_dir;
    QHash<QByteArray, std::optional<QByteArray>> m_saved;
};
