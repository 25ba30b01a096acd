#pragma once

#include "platform/SystemEvents.h"

#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

// Wake and unlock on freedesktop systems.
// Wake: logind's PrepareForSleep(false) on the system bus.
// Unlock: one source, chosen at start so one unlock is one event: the desktop's
// ScreenSaver ActiveChanged(false) on the session bus when such a service owns its name
// (GNOME, KDE and most desktops), otherwise the logind session's LockedHint going from
// true to false. A bus or service that is missing leaves its event silent.
class FreedesktopSystemEvents final : public SystemEvents {
    Q_OBJECT
public:
    enum class UnlockSource { none, screenSaver, logindSession };

    explicit FreedesktopSystemEvents(QObject *parent = nullptr);

    UnlockSource unlockSource() const { return m_unlockSource; }

private Q_SLOTS:
    void prepareForSleep(bool starting);
    void screenSaverActiveChanged(bool active);
    void sessionPropertiesChanged(const QString &interface, const QVariantMap &changed,
                                  const QStringList &invalidated);

private:
    void watchSleep();
    bool watchScreenSaver();
    bool watchLogindSession();
    QString logindSessionPath() const;

    UnlockSource m_unlockSource = UnlockSource::none;
    QString m_sessionPath;
    bool m_locked = false;
};
