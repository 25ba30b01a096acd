#pragma once

#include <QByteArray>
#include <QIODevice>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

// A request body that can be read only once. The network stack sends a request again,
// POSTs included, when its connection drops before an answer, and has no switch against it;
// a body it can neither buffer nor rewind makes every post one request.
class ReadOnceUpload final : public QIODevice {
    Q_OBJECT
public:
    // Posts `body` once; the body goes with the reply.
    static QNetworkReply *post(QNetworkAccessManager &network, QNetworkRequest request,
                               const QByteArray &body);

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    explicit ReadOnceUpload(QByteArray body);

    QByteArray m_body;
    qint64 m_offset = 0;
};
