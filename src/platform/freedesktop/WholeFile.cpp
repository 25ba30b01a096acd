#include "platform/freedesktop/WholeFile.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

std::optional<QByteArray> WholeFile::read(const QString &path)
{
    const int fd = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    QByteArray content;
    qsizetype size = 0;
    for (;;) {
        if (content.size() - size < 4096)
            content.resize(size + 16384);
        const ssize_t got = ::read(fd, content.data() + size, size_t(content.size() - size));
        if (got < 0) {
            close(fd);
            return std::nullopt;
        }
        if (got == 0)
            break;
        size += got;
    }
    close(fd);
    content.truncate(size);
    return content;
}
