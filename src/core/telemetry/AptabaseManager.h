#pragma once

#include <QString>
#include <QVariantMap>

class DeviceFacts;

// The application's whole vocabulary of usage analytics, in front of the analytics client.
// shared() starts the client once; the track* operations go straight to the client, so they
// work (or fall silent, when the client refused its key) whether or not shared() was touched.
// There is no opt-out.
class AptabaseManager {
public:
    static AptabaseManager &shared();
    // The machine that the system properties describe; the application hands in its
    // platform's facts at start. Without any, the version and model read as empty.
    static void setDeviceFacts(const DeviceFacts *facts);

    static void trackEvent(const QString &eventName, const QVariantMap &with = {});
    static void trackAppLaunched();
    static void trackAppTerminated();
    static void trackScreenView(const QString &screenName);
    static void trackBrowserChanged(const QString &from, const QString &to, bool autoFix);
    static void trackBrowserSet(const QString &browser);
    static void trackEmailClientChanged(const QString &from, const QString &to, bool autoFix);
    static void trackEmailClientSet(const QString &client);
    static void trackSettingsChanged(const QString &setting, const QString &value);
    static void trackMonitoringToggled(const QString &type, bool enabled);
    static void trackAlertShown(const QString &type);
    static void trackAlertAction(const QString &type, const QString &action);
    static void trackSnoozeActivated(const QString &type, const QString &duration);

    // Starts the analytics client with `appKey`; shared() uses the product's own key.
    // A key the client refuses leaves every track* operation silent.
    explicit AptabaseManager(const QString &appKey);
    AptabaseManager(const AptabaseManager &) = delete;
    AptabaseManager &operator=(const AptabaseManager &) = delete;

private:
    // The seven string properties that describe this system; a fresh map on every call.
    static QVariantMap systemProperties();
    // The call's properties win over the system's on an equal key.
    static void trackWithSystem(const QString &eventName, const QVariantMap &with);
    static QString getDeviceModel();

    // Written, never read: tracking does not depend on it.
    bool m_isInitialized = false;
};
