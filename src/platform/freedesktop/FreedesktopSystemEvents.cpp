#include "platform/freedesktop/FreedesktopSystemEvents.h"

#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>

#include <unistd.h>

namespace {

const QString login1Service = QStringLiteral("org.freedesktop.login1");
const QString login1Path = QStringLiteral("/org/freedesktop/login1");
const QString login1Manager = QStringLiteral("org.freedesktop.login1.Manager");
const QString login1Session = QStringLiteral("org.freedesktop.login1.Session");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QStringList screenSavers = {QStringLiteral("org.gnome.ScreenSaver"),
                                  QStringLiteral("org.freedesktop.ScreenSaver")};

} // namespace

FreedesktopSystemEvents::FreedesktopSystemEvents(QObject *parent) : SystemEvents(parent)
{
    watchSleep();
    if (watchScreenSaver())
        m_unlockSource = UnlockSource::screenSaver;
    else if (watchLogindSession())
        m_unlockSource = UnlockSource::logindSession;
}

void FreedesktopSystemEvents::watchSleep()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    if (bus.isConnected())
        bus.connect(login1Service, login1Path, login1Manager, QStringLiteral("PrepareForSleep"),
                    this, SLOT(prepareForSleep(bool)));
}

bool FreedesktopSystemEvents::watchScreenSaver()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface())
        return false;
    for (const QString &service : screenSavers) {
        if (!bus.interface()->isServiceRegistered(service))
            continue;
        // The service's own path only: KDE's locker publishes the same object at /ScreenSaver
        // too, and sends each signal from both paths.
        const QString path = u'/' + QString(service).replace(u'.', u'/');
        return bus.connect(service, path, service, QStringLiteral("ActiveChanged"), this,
                           SLOT(screenSaverActiveChanged(bool)));
    }
    return false;
}

bool FreedesktopSystemEvents::watchLogindSession()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected())
        return false;
    m_sessionPath = logindSessionPath();
    if (m_sessionPath.isEmpty())
        return false;
    QDBusInterface properties(login1Service, m_sessionPath, propertiesInterface, bus);
    const QDBusReply<QDBusVariant> locked =
        properties.call(QStringLiteral("Get"), login1Session, QStringLiteral("LockedHint"));
    m_locked = locked.isValid() && locked.value().variant().toBool();
    return bus.connect(login1Service, m_sessionPath, propertiesInterface,
                       QStringLiteral("PropertiesChanged"), this,
                       SLOT(sessionPropertiesChanged(QString, QVariantMap, QStringList)));
}

QString FreedesktopSystemEvents::logindSessionPath() const
{
    QDBusInterface manager(login1Service, login1Path, login1Manager, QDBusConnection::systemBus());
    const QDBusReply<QDBusObjectPath> byPid =
        manager.call(QStringLiteral("GetSessionByPID"), static_cast<uint>(::getpid()));
    if (byPid.isValid())
        return byPid.value().path();
    const QString sessionId = qEnvironmentVariable("XDG_SESSION_ID");
    if (sessionId.isEmpty())
        return {};
    const QDBusReply<QDBusObjectPath> byId = manager.call(QStringLiteral("GetSession"), sessionId);
    return byId.isValid() ? byId.value().path() : QString();
}

void FreedesktopSystemEvents::prepareForSleep(bool starting)
{
    if (!starting)
        Q_EMIT didWake();
}

void FreedesktopSystemEvents::screenSaverActiveChanged(bool active)
{
    if (!active)
        Q_EMIT screenUnlocked();
}

void FreedesktopSystemEvents::sessionPropertiesChanged(const QString &interface,
                                                       const QVariantMap &changed,
                                                       const QStringList &)
{
    if (interface != login1Session || !changed.contains(QStringLiteral("LockedHint")))
        return;
    const bool locked = changed.value(QStringLiteral("LockedHint")).toBool();
    const bool unlocked = m_locked && !locked;
    m_locked = locked;
    if (unlocked)
        Q_EMIT screenUnlocked();
}
