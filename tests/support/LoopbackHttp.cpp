#include "LoopbackHttp.h"

#include <QTcpSocket>

LoopbackHttp::LoopbackHttp()
{
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [this, socket] { readFrom(socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    listen();
}

bool LoopbackHttp::listen(quint16 port)
{
    if (!m_server.listen(QHostAddress::LocalHost, port))
        return false;
    m_port = m_server.serverPort();
    return true;
}

void LoopbackHttp::readFrom(QTcpSocket *socket)
{
    QByteArray &buffer = m_buffers[socket];
    buffer += socket->readAll();
    const qsizetype headerEnd = buffer.indexOf("\r\n\r\n");
    if (headerEnd < 0)
        return;
    Request request;
    const QList<QByteArray> lines = buffer.left(headerEnd).split('\n');
    request.line = lines.value(0).trimmed();
    const QList<QByteArray> parts = request.line.split(' ');
    request.method = parts.value(0);
    request.path = parts.value(1);
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

    received(request);
    requests << request;
    mostOpenRequests = std::max(mostOpenRequests, ++openRequests);
    if (m_holding)
        m_held << socket;
    else
        answer(socket);
}

void LoopbackHttp::release()
{
    m_holding = false;
    for (const QPointer<QTcpSocket> &socket : std::exchange(m_held, {}))
        if (socket)
            answer(socket);
}

void LoopbackHttp::answer(QTcpSocket *socket)
{
    --openRequests;
    const Answer next = m_script.isEmpty() ? m_standing : m_script.takeFirst();
    if (next.status <= 0) {
        if (next.status < 0)
            socket->write("SSH-2.0-OpenSSH_9.2\r\n");
        socket->flush();
        socket->abort();
        return;
    }
    QByteArray head = "HTTP/1.1 " + QByteArray::number(next.status)
                      + " Scripted\r\nContent-Type: text/plain\r\nContent-Length: "
                      + QByteArray::number(next.body.size()) + "\r\n";
    if (!next.location.isEmpty())
        head += "Location: " + next.location + "\r\n";
    socket->write(head + "Connection: close\r\n\r\n");
    if (next.cutAt < 0) {
        socket->write(next.body);
        socket->disconnectFromHost();
        return;
    }
    socket->write(next.body.left(next.cutAt));
    socket->flush();
    socket->abort();
}
