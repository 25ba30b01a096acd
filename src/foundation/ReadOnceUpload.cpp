#include "foundation/ReadOnceUpload.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <algorithm>
#include <cstring>

ReadOnceUpload::ReadOnceUpload(QByteArray body) : m_body(std::move(body))
{
    open(QIODevice::ReadOnly);
}

QNetworkReply *ReadOnceUpload::post(QNetworkAccessManager &network, QNetworkRequest request,
                                    const QByteArray &body)
{
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    auto *upload = new ReadOnceUpload(body);
    QNetworkReply *reply = network.post(request, upload);
    upload->setParent(reply);
    return reply;
}

qint64 ReadOnceUpload::bytesAvailable() const
{
    return m_body.size() - m_offset + QIODevice::bytesAvailable();
}

qint64 ReadOnceUpload::readData(char *data, qint64 maxSize)
{
    const qint64 count = std::min(maxSize, qint64(m_body.size()) - m_offset);
    if (count <= 0)
        return m_offset >= m_body.size() ? -1 : 0;
    std::memcpy(data, m_body.constData() + m_offset, size_t(count));
    m_offset += count;
    return count;
}
