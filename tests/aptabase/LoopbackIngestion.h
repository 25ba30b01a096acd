#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

class QTcpSocket;

// A scripted ingestion server on 127.0.0.1. It records every request, answers with the next
// scripted status (200 once the script is used up), and checks each request the way the
// ingestion service does, collecting what it would reject in `problems`.
class LoopbackIngestion : public QObject {
    Q_OBJECT
public:
    struct Request {
        QByteArray method;
        QByteArray path;
        QMap<QByteArray, QByteArray> headers; // names in lower case
        QByteArray body;
        QJsonArray events() const;
        QStringList eventNames() const;
    };

    // Status 0 closes the connection without an answer; -1 answers with a line of no HTTP.
    struct Answer {
        int status = 200;
        QByteArray body;
    };

    explicit LoopbackIngestion(QObject *parent = nullptr);

    bool listen(quint16 port = 0);
    void close() { m_server.close(); }
    quint16 port() const { return m_port; }
    QString baseUrl() const;

    void script(const QList<Answer> &answers) { m_script.append(answers); }
    // While held, requests are recorded but not answered until release().
    void hold() { m_holding = true; }
    void release();

    QList<Request> requests;
    QStringList problems;
    int openRequests = 0;
    int mostOpenRequests = 0;
    bool validateTimestamps = true;

    static QStringList validateEvents(const QByteArray &body, bool checkTimestamps);

private:
    void readFrom(QTcpSocket *socket);
    void answer(QTcpSocket *socket);

    QTcpServer m_server;
    quint16 m_port = 0;
    QList<Answer> m_script;
    QMap<QTcpSocket *, QByteArray> m_buffers;
    QList<QTcpSocket *> m_held;
    bool m_holding = false;
};
