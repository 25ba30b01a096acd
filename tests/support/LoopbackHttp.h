#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

// An HTTP/1.1 server on 127.0.0.1, listening from its construction. It records every request
// and answers it with the next scripted answer, or the standing one once the script is used
// up; while held, it records requests but answers none until release().
class LoopbackHttp {
public:
    struct Request {
        QByteArray line; // as sent: "GET /path HTTP/1.1"
        QByteArray method;
        QByteArray path;
        QMap<QByteArray, QByteArray> headers; // names in lower case
        QByteArray body;
    };

    // Status 0 closes the connection without an answer; -1 answers with a line of no HTTP.
    // A location goes out as the Location header; a cut breaks the connection off after that
    // many bytes of the body.
    struct Answer {
        Answer(int status = 200, QByteArray body = {}, QByteArray location = {},
               qsizetype cutAt = -1)
            : status(status), body(std::move(body)), location(std::move(location)), cutAt(cutAt)
        {
        }
        int status;
        QByteArray body;
        QByteArray location;
        qsizetype cutAt;
    };

    LoopbackHttp();
    virtual ~LoopbackHttp() = default;
    LoopbackHttp(const LoopbackHttp &) = delete;
    LoopbackHttp &operator=(const LoopbackHttp &) = delete;

    // Listens again, after close(), on the port given (any free one for 0).
    bool listen(quint16 port = 0);
    void close() { m_server.close(); }
    quint16 port() const { return m_port; }
    QString baseUrl() const { return QStringLiteral("http://127.0.0.1:%1").arg(m_port); }

    void serve(const Answer &standing) { m_standing = standing; }
    void script(const QList<Answer> &answers) { m_script.append(answers); }
    void hold() { m_holding = true; }
    void release();

    QList<Request> requests;
    int openRequests = 0;
    int mostOpenRequests = 0;

protected:
    // Called for each whole request before it is answered.
    virtual void received(const Request &) {}

private:
    void readFrom(QTcpSocket *socket);
    void answer(QTcpSocket *socket);

    QTcpServer m_server;
    quint16 m_port = 0;
    Answer m_standing;
    QList<Answer> m_script;
    QMap<QTcpSocket *, QByteArray> m_buffers;
    QList<QPointer<QTcpSocket>> m_held;
    bool m_holding = false;
};
