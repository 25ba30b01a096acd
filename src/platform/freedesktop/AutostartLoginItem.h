#pragma once

#include "platform/LoginItem.h"

// Launch at login through the freedesktop autostart folder: an entry
// $XDG_CONFIG_HOME/autostart/<app id>.desktop that starts the program by its absolute path
// with --login. It counts as enabled while it exists and is not marked Hidden=true.
class AutostartLoginItem final : public LoginItem {
public:
    // `executable`: the absolute path the entry starts.
    AutostartLoginItem(const QString &appId, const QString &executable);

    // Read from the environment at every call.
    QString entryPath() const;
    // The entry's whole text.
    QByteArray entryContent() const;

    bool isEnabled() const override;
    std::optional<QString> registerItem() override;
    std::optional<QString> unregisterItem() override;

    // One argument of an Exec line, quoted where the desktop entry rules ask for it, with
    // the key file's own escapes applied.
    static QString execArgument(const QString &argument);

private:
    QString m_appId;
    QString m_executable;
};
