#include "../../core/guard/GuardWorld.h"
#include "FakeLogind.h"
#include "PrivateBuses.h"
#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "platform/freedesktop/FreedesktopSystemEvents.h"

#include <QDBusConnectionInterface>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

// Counts the markers that close a round of signals.
class Marker : public QObject {
    Q_OBJECT
public:
    int count = 0;
public Q_SLOTS:
    void arrived() { ++count; }
};

// Wake and unlock reach the guards over real (private) buses: a system-like bus where a
// fake logind lives, and a session bus where a screen saver may or may not own its name.
class SystemEventsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PrivateBuses> m_buses;

    static void
    screenSaverActive(QDBusConnection &bus, bool active,
                      const QString &path = QStringLiteral("/org/freedesktop/ScreenSaver"))
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("ActiveChanged"));
        signal << active;
        bus.send(signal);
    }

    // Waits until what `sender` has sent so far has reached this process on `receiver` and
    // has been handled: the bus keeps one sender's messages in order, so a marker sent after
    // them arrives after them.
    static bool delivered(const QDBusConnection &sender, QDBusConnection receiver)
    {
        const QString path = QStringLiteral("/vandorel/test");
        const QString interface = QStringLiteral("org.vandorel.Test");
        Marker marker;
        if (!receiver.connect({}, path, interface, QStringLiteral("Marker"), &marker,
                              SLOT(arrived())))
            return false;
        receiver.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.DBus"));
        QDBusConnection(sender).send(
            QDBusMessage::createSignal(path, interface, QStringLiteral("Marker")));
        const bool arrived = QTest::qWaitFor([&marker] { return marker.count > 0; });
        receiver.disconnect({}, path, interface, QStringLiteral("Marker"), &marker,
                            SLOT(arrived()));
        return arrived;
    }
    static bool delivered(const FakeLogind &logind)
    {
        return delivered(logind.bus(), QDBusConnection::systemBus());
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_buses = std::make_unique<PrivateBuses>();
        QVERIFY(m_buses->isRunning());
        QVERIFY(QDBusConnection::systemBus().isConnected());
        QVERIFY(QDBusConnection::sessionBus().isConnected());
    }

    void cleanupTestCase() { m_buses.reset(); }

    void wakeIsTheEndOfSleep()
    {
        FakeLogind logind(m_buses->systemAddress());
        FreedesktopSystemEvents events;
        QSignalSpy wakes(&events, &SystemEvents::didWake);
        logind.sleep(true);
        QVERIFY(delivered(logind));
        QCOMPARE(wakes.count(), 0);
        logind.sleep(false);
        QTRY_COMPARE(wakes.count(), 1);
    }

    void aScreenSaverOnTheSessionBusIsTheUnlockSource()
    {
        FakeLogind logind(m_buses->systemAddress());
        QDBusConnection saver =
            QDBusConnection::connectToBus(m_buses->sessionAddress(), QStringLiteral("screensaver"));
        QVERIFY(saver.registerService(QStringLiteral("org.freedesktop.ScreenSaver")));
        const auto cleanup = qScopeGuard([&] {
            saver.unregisterService(QStringLiteral("org.freedesktop.ScreenSaver"));
            QDBusConnection::disconnectFromBus(QStringLiteral("screensaver"));
        });
        logind.setLocked(true);
        FreedesktopSystemEvents events;
        QCOMPARE(events.unlockSource(), FreedesktopSystemEvents::UnlockSource::screenSaver);
        QSignalSpy unlocks(&events, &SystemEvents::screenUnlocked);

        screenSaverActive(saver, true);
        QVERIFY(delivered(saver, QDBusConnection::sessionBus()));
        QCOMPARE(unlocks.count(), 0);
        // KDE's locker sends each signal from /ScreenSaver as well as from the service's own
        // path; and logind's hint is not listened to besides: one unlock is one event.
        screenSaverActive(saver, false);
        screenSaverActive(saver, false, QStringLiteral("/ScreenSaver"));
        logind.lockedHintChanged(false);
        QVERIFY(delivered(saver, QDBusConnection::sessionBus()));
        QVERIFY(delivered(logind));
        QCOMPARE(unlocks.count(), 1);
    }

    void withoutAScreenSaverTheSessionLockHintIsWatched()
    {
        FakeLogind logind(m_buses->systemAddress());
        logind.setLocked(true);
        FreedesktopSystemEvents events;
        QCOMPARE(events.unlockSource(), FreedesktopSystemEvents::UnlockSource::logindSession);
        QSignalSpy unlocks(&events, &SystemEvents::screenUnlocked);
        logind.lockedHintChanged(false);
        QTRY_COMPARE(unlocks.count(), 1);
        logind.lockedHintChanged(false); // no lock in between: no unlock
        QVERIFY(delivered(logind));
        QCOMPARE(unlocks.count(), 1);
        logind.lockedHintChanged(true);
        logind.lockedHintChanged(false);
        QTRY_COMPARE(unlocks.count(), 2);
    }

    void withNeitherSourceNothingFires()
    {
        FreedesktopSystemEvents events; // no logind, no screen saver on the buses
        QCOMPARE(events.unlockSource(), FreedesktopSystemEvents::UnlockSource::none);
    }

    void eventsRunTheCheckOnlyWhenTheirSwitchIsOn()
    {
        FakeLogind logind(m_buses->systemAddress());
        FreedesktopSystemEvents events;
        GuardWorld world;
        GuardEnvironment env = world.environment();
        env.events = &events;
        BrowserManager browser(env);
        EmailClientManager email(env);
        world.browsersDefault("chromium");

        ConsoleCapture console;
        logind.sleep(false);
        QTRY_COMPARE(console.startingWith("🔍").size(), 2);
        // The check resolves the default afresh.
        QCOMPARE(browser.currentDefaultBrowser()->bundleIdentifier, QString("chromium"));

        browser.setCheckOnWake(false);
        logind.sleep(false);
        QVERIFY(delivered(logind));
        QCOMPARE(console.startingWith("🔍 Email: Checking after wake").size(), 2);
        QCOMPARE(console.startingWith("🔍").size(), 3);
    }
};

QTEST_GUILESS_MAIN(SystemEventsTest)
#include "tst_systemevents.moc"
