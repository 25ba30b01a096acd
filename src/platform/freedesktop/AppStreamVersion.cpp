#include "platform/freedesktop/AppStreamVersion.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

std::optional<QString> AppStreamVersion::find(const QString &identifier,
                                              const QStringList &dataDirs)
{
    if (identifier.isEmpty() || identifier.contains(u'/'))
        return std::nullopt;
    for (const QString &dir : dataDirs) {
        // Most data directories have neither folder: one look each instead of one per name.
        const QString metainfo = dir + QStringLiteral("/metainfo/");
        if (QFileInfo(metainfo).isDir()) {
            for (const char *name :
                 {"%1.metainfo.xml", "%1.appdata.xml", "%1.desktop.metainfo.xml"}) {
                const QString path = metainfo + QString::fromLatin1(name).arg(identifier);
                if (QFile::exists(path))
                    return readFile(path);
            }
        }
        const QString appdata = dir + QStringLiteral("/appdata/") + identifier + u".appdata.xml";
        if (QFile::exists(appdata))
            return readFile(appdata);
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
