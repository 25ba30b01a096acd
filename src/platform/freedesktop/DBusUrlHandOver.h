#pragma once

#include "platform/UrlHandOver.h"

#include <QDBusConnection>
#include <QObject>

// URLs over the session bus: the running copy owns the application id as its bus name and
// answers OpenUrl(s url) -> b on /io/kestrane/vandorel (the id as a path) with whether it
// knew the URL. Anyone may call it, e.g. `gdbus call --session --dest io.kestrane.vandorel
// --object-path /io/kestrane/vandorel --method io.kestrane.vandorel.Application.OpenUrl
// vandorel://settings`.
class DBusUrlHandOver final : public QObject, public UrlHandOver {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "io.kestrane.vandorel.Application")
public:
    explicit DBusUrlHandOver(const QString &appId,
                             const QDBusConnection &bus = QDBusConnection::sessionBus());
    ~DBusUrlHandOver() override;

    bool listen(Opener open) override;
    Result handOver(const QString &url) override;

    QString objectPath() const { return m_path; }

public Q_SLOTS:
    Q_SCRIPTABLE bool OpenUrl(const QString &url);

private:
    QDBusConnection m_bus;
    QString m_service;
    QString m_path;
    Opener m_open;
    bool m_listening = false;
};
