#include "aptabase/Aptabase.h"

#include "aptabase/DebugPrint.h"

#include <QMetaType>
#include <QStringList>

namespace {

std::optional<AnyCodableValue> codableValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return AnyCodableValue::integer(value.toLongLong());
    case QMetaType::Double:
        return AnyCodableValue::doubleValue(value.toDouble());
    case QMetaType::QString:
        return AnyCodableValue::string(value.toString());
    case QMetaType::Float:
        return AnyCodableValue::floatValue(value.toFloat());
    case QMetaType::Bool:
        return AnyCodableValue::boolean(value.toBool());
    default:
        return std::nullopt;
    }
}

Aptabase *sharedInstance = nullptr;

} // namespace

Aptabase &Aptabase::shared()
{
    // Made on first touch and never destroyed: its client may still be flushing at exit.
    if (!sharedInstance)
        sharedInstance = new Aptabase();
    return *sharedInstance;
}

void Aptabase::setShared(Aptabase *instance)
{
    sharedInstance = instance;
}

Aptabase::Aptabase(EnvironmentInfo env, RegionHosts hosts)
    : m_env(std::move(env)), m_hosts{
                                 {QStringLiteral("US"), std::move(hosts.us)},
                                 {QStringLiteral("EU"), std::move(hosts.eu)},
                                 {QStringLiteral("DEV"), QStringLiteral("http://localhost:3000")},
                                 {QStringLiteral("SH"), QString()},
                             }
{
}

Aptabase::~Aptabase()
{
    delete m_client;
}

void Aptabase::initialize(const QString &appKey)
{
    initialize(appKey, std::optional<InitOptions>());
}

void Aptabase::initialize(const QString &appKey, const InitOptions &options)
{
    initialize(appKey, std::optional<InitOptions>(options));
}

void Aptabase::initialize(const QString &appKey, const std::optional<InitOptions> &with)
{
    const QStringList parts = appKey.split(QLatin1Char('-'));
    if (parts.size() != 3 || !m_hosts.contains(parts.at(1))) {
        DebugPrint::write(QStringLiteral("The Aptabase App Key ") + appKey
                          + QStringLiteral(" is invalid. Tracking will be disabled."));
        return;
    }
    const std::optional<QString> baseUrl =
        getBaseUrl(parts.at(1), with ? with->host() : std::nullopt);
    if (!baseUrl)
        return;
    if (with && !with->trackingMode().isReadFromEnvironment())
        m_env.isDebug = with->trackingMode().isDebug();

    // A client replaced by a second initialize may be inside a reply handler right now.
    if (m_client)
        m_client->deleteLater();
    m_client = new AptabaseClient(appKey, *baseUrl, m_env, with, m_session, m_clock, m_timers);
}

std::optional<QString> Aptabase::getBaseUrl(const QString &region,
                                            const std::optional<QString> &host) const
{
    const auto found = m_hosts.constFind(region);
    if (found == m_hosts.cend())
        return std::nullopt;
    if (region == QLatin1String("SH")) {
        if (!host) {
            DebugPrint::write(QStringLiteral(
                "Aptabase: Host parameter must be defined when using Self-Hosted App Key. "
                "Tracking will be disabled."));
            return std::nullopt;
        }
        return *host;
    }
    return found.value();
}

void Aptabase::trackEvent(const QString &eventName, const QVariantMap &with)
{
    if (const std::optional<CodableProps> props = toCodableProps(with))
        enqueueEvent(eventName, *props);
}

void Aptabase::enqueueEvent(const QString &eventName, const CodableProps &with)
{
    if (m_client)
        m_client->trackEvent(eventName, with);
}

void Aptabase::flush()
{
    if (m_client)
        m_client->flush();
}

void Aptabase::startPolling()
{
    if (m_client)
        m_client->startPolling();
}

void Aptabase::stopPolling()
{
    if (m_client)
        m_client->stopPolling();
}

std::optional<CodableProps> Aptabase::toCodableProps(const QVariantMap &from)
{
    CodableProps result;
    for (auto it = from.cbegin(); it != from.cend(); ++it) {
        std::optional<AnyCodableValue> value = codableValue(it.value());
        if (!value) {
            DebugPrint::write(QStringLiteral("Aptabase: Props with key ") + it.key()
                              + QStringLiteral(" has an unsupported value type. Supported types "
                                               "are: String, Int, Double, Float and Boolean. "
                                               "Event will be discarded"));
            return std::nullopt;
        }
        result.insert(it.key(), *value);
    }
    return result;
}
