#include "platform/freedesktop/AppStreamVersion.h"

#include <QFile>
#include <QXmlStreamReader>

std::optional<QString> AppStreamVersion::find(const QString &identifier,
                                              const QStringList &dataDirs)
{
    if (identifier.isEmpty() || identifier.contains(u'/'))
        return std::nullopt;
    for (const QString &dir : dataDirs) {
        for (const char *name : {"/metainfo/%1.metainfo.xml", "/metainfo/%1.appdata.xml",
                                 "/metainfo/%1.desktop.metainfo.xml", "/appdata/%1.appdata.xml"}) {
            const QString path = dir + QString::fromLatin1(name).arg(identifier);
            if (QFile::exists(path))
                return readFile(path);
        }
    }
    return std::nullopt;
}

std::optional<QString> AppStreamVersion::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"release")
            continue;
        const QString version = xml.attributes().value(QStringLiteral("version")).toString();
        if (!version.isEmpty())
            return version;
    }
    return std::nullopt;
}
