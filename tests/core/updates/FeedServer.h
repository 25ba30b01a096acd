#pragma once

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

// An HTTP/1.1 server on 127.0.0.1 that answers every GET with one scripted page. It records
// the request lines; while held, it reads requests but answers none until release().
class FeedServer {
public:
    struct Page {
        int status = 200;
        QByteArray body;
    };

    FeedServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
    }

    quint16 port() const { return m_server.serverPort(); }
    QString url(const QString &path = QStringLiteral("/app/Vandorel/appcast.xml")) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(port()).arg(path);
    }

    void serve(Page page) { m_page = std::move(page); }
    // Pages answered once each, in order, before the served one.
    QList<Page> script;
    // Every answer sends this Location header.
    void redirectTo(const QByteArray &location) { m_location = location; }
    // Every answer is broken off after this many bytes of its body.
    void cutOffAfter(qsizetype bytes) { m_cutAt = bytes; }
    void hold() { m_holding = true; }
    void release()
    {
        m_holding = false;
        const QList<QPointer<QTcpSocket>> held = std::exchange(m_held, {});
        for (const QPointer<QTcpSocket> &socket : held) {
            if (socket)
                answer(socket);
        }
    }

    QList<QByteArray> requestLines;

private:
    void accept()
    {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [this, socket] { read(socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    }

    void read(QTcpSocket *socket)
    {
        QByteArray &buffer = m_buffers[socket];
        buffer += socket->readAll();
        const qsizetype end = buffer.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        requestLines.append(buffer.left(buffer.indexOf("\r\n")));
        buffer.remove(0, end + 4);
        if (m_holding)
            m_held.append(socket);
        else
            answer(socket);
    }

    void answer(QTcpSocket *socket)
    {
        const Page page = script.isEmpty() ? m_page : script.takeFirst();
        QByteArray head = "HTTP/1.1 " + QByteArray::number(page.status)
                          + " Status\r\nContent-Type: text/xml\r\nContent-Length: "
                          + QByteArray::number(page.body.size()) + "\r\n";
        if (!m_location.isEmpty())
            head += "Location: " + m_location + "\r\n";
        socket->write(head + "Connection: close\r\n\r\n");
        if (m_cutAt < 0) {
            socket->write(page.body);
            socket->disconnectFromHost();
            return;
        }
        socket->write(page.body.left(m_cutAt));
        socket->flush();
        socket->abort();
    }

    QTcpServer m_server;
    Page m_page;
    bool m_holding = false;
    QByteArray m_location;
    qsizetype m_cutAt = -1;
    QList<QPointer<QTcpSocket>> m_held;
    QHash<QTcpSocket *, QByteArray> m_buffers;
};
