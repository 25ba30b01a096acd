#include "platform/freedesktop/DBusUrlHandOver.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace {
// The running copy answers at once; this only bounds a copy that hangs.
constexpr int replyTimeoutMs = 5000;
} // namespace

DBusUrlHandOver::DBusUrlHandOver(const QString &appId, const QDBusConnection &bus)
    : m_bus(bus), m_service(appId), m_path(u'/' + QString(appId).replace(u'.', u'/'))
{
}

DBusUrlHandOver::~DBusUrlHandOver()
{
    if (!m_listening)
        return;
    m_bus.unregisterService(m_service);
    m_bus.unregisterObject(m_path);
}

bool DBusUrlHandOver::listen(Opener open)
{
    m_open = std::move(open);
    if (!m_bus.isConnected()
        || !m_bus.registerObject(m_path, this, QDBusConnection::ExportScriptableSlots))
        return false;
    m_listening = m_bus.registerService(m_service);
    if (!m_listening)
        m_bus.unregisterObject(m_path);
    return m_listening;
}

UrlHandOver::Result DBusUrlHandOver::handOver(const QString &url)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        m_service, m_path, QStringLiteral("io.kestrane.vandorel.Application"),
        QStringLiteral("OpenUrl"));
    call << url;
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, replyTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().size() != 1)
        return Result::unreachable;
    return reply.arguments().constFirst().toBool() ? Result::opened : Result::refused;
}

bool DBusUrlHandOver::OpenUrl(const QString &url)
{
    return m_open && m_open(url);
}
