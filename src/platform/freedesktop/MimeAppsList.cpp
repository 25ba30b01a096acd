#include "platform/freedesktop/MimeAppsList.h"

#include "platform/freedesktop/KeyFileScanner.h"
#include "platform/freedesktop/WholeFile.h"

MimeAppsList MimeAppsList::read(const QString &path, const QString &mimeType)
{
    const auto content = WholeFile::read(path);
    if (!content)
        return {};
    return parse(*content, mimeType);
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
        // A value GLib cannot read counts as no value; it still hides an earlier line's.
        const QStringList ids = scanner.listValue().value_or(QStringList());
        if (group == "Default Applications")
            list.m_defaults = ids;
        else if (group == "Added Associations")
            list.m_added = ids;
        else if (group == "Removed Associations")
            list.m_removed = ids;
        else if (group == "MIME Cache")
            list.m_cached = ids;
    }
    if (!scanner.valid())
        return {};
    return list;
}
