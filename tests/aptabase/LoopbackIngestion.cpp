#include "LoopbackIngestion.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTcpSocket>

LoopbackIngestion::LoopbackIngestion(QObject *parent) : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readFrom(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

bool LoopbackIngestion::listen(quint16 port)
{
    if (!m_server.listen(QHostAddress::LocalHost, port))
        return false;
    m_port = m_server.serverPort();
    return true;
}

QString LoopbackIngestion::baseUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_port);
}

void LoopbackIngestion::readFrom(QTcpSocket *socket)
{
    QByteArray &buffer = m_buffers[socket];
    buffer += socket->readAll();
    const qsizetype headerEnd = buffer.indexOf("\r\n\r\n");
    if (headerEnd < 0)
        return;
    Request request;
    const QList<QByteArray> lines = buffer.left(headerEnd).split('\n');
    const QList<QByteArray> requestLine = lines.value(0).trimmed().split(' ');
    request.method = requestLine.value(0);
    request.path = requestLine.value(1);
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines.at(i).indexOf(':');
        if (colon > 0)
            request.headers.insert(lines.at(i).left(colon).trimmed().toLower(),
                                   lines.at(i).mid(colon + 1).trimmed());
    }
    const qsizetype length = request.headers.value("content-length").toLongLong();
    if (buffer.size() < headerEnd + 4 + length)
        return;
    request.body = buffer.mid(headerEnd + 4, length);
    m_buffers.remove(socket);

    if (request.headers.value("content-type") != "application/json")
        problems << QStringLiteral("Content-Type is not application/json");
    const QList<QByteArray> keyParts = request.headers.value("app-key").split('-');
    if (keyParts.size() < 3 || keyParts.first() != "A")
        problems << QStringLiteral("App-Key is malformed");
    problems << validateEvents(request.body, validateTimestamps);
    requests << request;

    mostOpenRequests = std::max(mostOpenRequests, ++openRequests);
    if (m_holding)
        m_held << socket;
    else
        answer(socket);
}

void LoopbackIngestion::release()
{
    m_holding = false;
    for (QTcpSocket *socket : std::exchange(m_held, {}))
        answer(socket);
}

void LoopbackIngestion::answer(QTcpSocket *socket)
{
    --openRequests;
    const Answer next = m_script.isEmpty() ? Answer() : m_script.takeFirst();
    if (next.status <= 0) {
        if (next.status < 0)
            socket->write("SSH-2.0-OpenSSH_9.2\r\n");
        socket->flush();
        socket->abort();
        return;
    }
    socket->write("HTTP/1.1 " + QByteArray::number(next.status) + " Scripted\r\n"
                  + "Content-Type: text/plain\r\nContent-Length: "
                  + QByteArray::number(next.body.size()) + "\r\nConnection: close\r\n\r\n"
                  + next.body);
    socket->disconnectFromHost();
}

QJsonArray LoopbackIngestion::Request::events() const
{
    return QJsonDocument::fromJson(body).array();
}

QStringList LoopbackIngestion::Request::eventNames() const
{
    QStringList names;
    for (const QJsonValue &event : events())
        names << event[QLatin1String("eventName")].toString();
    return names;
}

namespace {

void checkText(QStringList &problems, const QJsonObject &object, const char *key, int maximum,
               bool required)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isUndefined() || value.isNull()) {
        if (required)
            problems << QStringLiteral("%1 is missing").arg(QLatin1String(key));
        return;
    }
    if (!value.isString())
        problems << QStringLiteral("%1 is not a string").arg(QLatin1String(key));
    else if (required && value.toString().isEmpty())
        problems << QStringLiteral("%1 is empty").arg(QLatin1String(key));
    else if (value.toString().size() > maximum)
        problems << QStringLiteral("%1 is longer than %2").arg(QLatin1String(key)).arg(maximum);
}

void checkTimestamp(QStringList &problems, const QJsonValue &value)
{
    static const QRegularExpression form(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ$"));
    const QString text = value.toString();
    if (!form.match(text).hasMatch()) {
        problems << QStringLiteral("timestamp %1 is not in the expected form").arg(text);
        return;
    }
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (moment > now.addSecs(60))
        problems << QStringLiteral("timestamp %1 is in the future").arg(text);
    if (moment < now.addDays(-1))
        problems << QStringLiteral("timestamp %1 is older than a day").arg(text);
}

void checkProps(QStringList &problems, const QJsonValue &value)
{
    if (value.isUndefined())
        return;
    if (!value.isObject()) {
        problems << QStringLiteral("props is not an object");
        return;
    }
    const QJsonObject props = value.toObject();
    for (auto it = props.begin(); it != props.end(); ++it) {
        if (it.key().isEmpty() || it.key().size() > 40)
            problems << QStringLiteral("property key '%1' is empty or too long").arg(it.key());
        const QJsonValue v = it.value();
        if (!v.isDouble() && !v.isString() && !v.isBool())
            problems
                << QStringLiteral("property %1 is not a number, string or Boolean").arg(it.key());
        if (v.isString() && v.toString().size() > 200)
            problems << QStringLiteral("property %1 is longer than 200").arg(it.key());
    }
}

} // namespace

QStringList LoopbackIngestion::validateEvents(const QByteArray &body, bool checkTimestamps)
{
    QStringList problems;
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isArray() || document.array().isEmpty() || document.array().size() > 25)
        return {QStringLiteral("body is not an array of 1 to 25 events")};
    for (const QJsonValue &value : document.array()) {
        const QJsonObject event = value.toObject();
        checkText(problems, event, "eventName", 60, true);
        checkText(problems, event, "sessionId", 36, true);
        if (checkTimestamps)
            checkTimestamp(problems, event.value(QLatin1String("timestamp")));
        const QJsonObject system = event.value(QLatin1String("systemProps")).toObject();
        checkText(problems, system, "osName", 30, false);
        checkText(problems, system, "osVersion", 30, false);
        checkText(problems, system, "locale", 10, false);
        checkText(problems, system, "appVersion", 20, false);
        checkText(problems, system, "appBuildNumber", 20, false);
        checkText(problems, system, "sdkVersion", 40, true);
        checkProps(problems, event.value(QLatin1String("props")));
    }
    return problems;
}
