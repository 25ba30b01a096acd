#pragma once

#include "aptabase/AnyCodableValue.h"
#include "aptabase/AptabaseClient.h"
#include "aptabase/EnvironmentInfo.h"
#include "aptabase/InitOptions.h"
#include "aptabase/Value.h"

#include <QMap>
#include <QString>
#include <QVariantMap>

#include <optional>

class QNetworkAccessManager;
class TimerFactory;

// The public face of the analytics client. It places an app key in its region, refuses a key
// it cannot place (every later call then falls silent), and checks the properties of events.
// The application calls startPolling() when it becomes active and stopPolling() when it is
// about to quit; until the first startPolling() events only wait in the queue.
class Aptabase {
public:
    // Base addresses of the ingestion servers of the regions that app keys name.
    struct RegionHosts {
        QString us;
        QString eu;
    };

    // The instance the host application has put in place, or else one made on the first
    // touch that knows neither the system nor the regions' servers.
    static Aptabase &shared();
    // Puts an instance (kept by the caller) behind shared(); none goes back to a default one
    // made on the next touch.
    static void setShared(Aptabase *instance);

    explicit Aptabase(EnvironmentInfo env = {}, RegionHosts hosts = {});
    ~Aptabase();
    Aptabase(const Aptabase &) = delete;
    Aptabase &operator=(const Aptabase &) = delete;

    void initialize(const QString &appKey);
    void initialize(const QString &appKey, const std::optional<InitOptions> &with);
    void initialize(const QString &appKey, const InitOptions &options);

    // A template only so that a braced list of properties picks the QVariantMap form below.
    template <class = void>
    void trackEvent(const QString &eventName, const ValueProps &with)
    {
        QVariantMap widened;
        for (auto it = with.cbegin(); it != with.cend(); ++it)
            widened.insert(it.key(), it.value().toVariant());
        trackEvent(eventName, widened);
    }
    void trackEvent(const QString &eventName, const QVariantMap &with = {});
    // Starts a flush and returns at once.
    void flush();

    void startPolling();
    void stopPolling();

    // Values are matched by their exact type, in this order: integer, double, string, float,
    // Boolean. None (and a line) when a value is of any other kind: the event is dropped.
    static std::optional<CodableProps> toCodableProps(const QVariantMap &from);

    // Used by the next initialize(); each defaults to the client's own. The transport and the
    // timers must outlive the client.
    void setTransport(QNetworkAccessManager *session) { m_session = session; }
    void setClock(AptabaseClient::Clock clock) { m_clock = std::move(clock); }
    void setTimers(TimerFactory *timers) { m_timers = timers; }

    // The core, or none while tracking is off.
    AptabaseClient *client() const { return m_client; }
    const EnvironmentInfo &env() const { return m_env; }

private:
    void enqueueEvent(const QString &eventName, const CodableProps &with);
    std::optional<QString> getBaseUrl(const QString &region,
                                      const std::optional<QString> &host) const;

    EnvironmentInfo m_env;
    AptabaseClient *m_client = nullptr;
    QMap<QString, QString> m_hosts;
    QNetworkAccessManager *m_session = nullptr;
    AptabaseClient::Clock m_clock;
    TimerFactory *m_timers = nullptr;
};
