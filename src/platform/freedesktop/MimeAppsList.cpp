#include "platform/freedesktop/MimeAppsList.h"

#include "platform/freedesktop/KeyFileScanner.h"

#include <QFile>

MimeAppsList MimeAppsList::read(const QString &path, const QString &mimeType)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parse(file.readAll(), mimeType);
}

MimeAppsList MimeAppsList::parse(QByteArrayView content, const QString &mimeType)
{
    const QByteArray key = mimeType.toUtf8();
    MimeAppsList list;
    KeyFileScanner scanner(content);
    while (scanner.next()) {
        if (scanner.key() != key)
            continue;
        const QByteArray &group = scanner.group();
        if (group == "Default Applications")
            list.m_defaults = scanner.listValue();
        else if (group == "Added Associations")
            list.m_added = scanner.listValue();
        else if (group == "Removed Associations")
            list.m_removed = scanner.listValue();
        else if (group == "MIME Cache")
            list.m_cached = scanner.listValue();
    }
    if (!scanner.valid())
        return {};
    return list;
}
