#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QThread>
#include <QVariantMap>

// logind as far as the program asks it: the manager's GetSessionByPID and one session
// with a LockedHint property. It serves from a thread of its own, since the program's
// blocking calls would otherwise wait on the thread that has to answer them.
class FakeLoginSession : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint READ lockedHint)
public:
    bool locked = false;
    bool lockedHint() const { return locked; }
};

class FakeLoginManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public Q_SLOTS:
    QDBusObjectPath GetSessionByPID(uint)
    {
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/login1/session/_31"));
    }
};

class FakeLogind {
public:
    explicit FakeLogind(const QString &systemAddress)
        : m_bus(QDBusConnection::connectToBus(systemAddress, QStringLiteral("fake-logind")))
    {
        m_thread.start();
        m_manager.moveToThread(&m_thread);
        m_session.moveToThread(&m_thread);
        m_bus.registerService(QStringLiteral("org.freedesktop.login1"));
        m_bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &m_manager,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerObject(QStringLiteral("/org/freedesktop/login1/session/_31"), &m_session,
                             QDBusConnection::ExportAllProperties);
    }
    ~FakeLogind()
    {
        m_bus.unregisterService(QStringLiteral("org.freedesktop.login1"));
        m_thread.quit();
        m_thread.wait();
        QDBusConnection::disconnectFromBus(QStringLiteral("fake-logind"));
    }

    void setLocked(bool locked) { m_session.locked = locked; }
    QDBusConnection bus() const { return m_bus; }

    void sleep(bool starting)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << starting;
        m_bus.send(signal);
    }

    void lockedHintChanged(bool locked)
    {
        m_session.locked = locked;
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1/session/_31"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.freedesktop.login1.Session")
               << QVariantMap{{QStringLiteral("LockedHint"), locked}} << QStringList();
        m_bus.send(signal);
    }

private:
    QDBusConnection m_bus;
    QThread m_thread;
    FakeLoginManager m_manager;
    FakeLoginSession m_session;
};
