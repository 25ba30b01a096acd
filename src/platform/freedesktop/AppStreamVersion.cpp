#include "platform/freedesktop/AppStreamVersion.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

std::optional<QString> AppStreamVersion::find(const QString &identifier,
                                              const QStringList &dataDirs)
{
    const QString file = path(identifier, dataDirs);
    if (file.isEmpty())
        return std::nullopt;
    return readFile(file);
}

QString AppStreamVersion::path(const QString &identifier, const QStringList &dataDirs)
{
    if (identifier.isEmpty() || identifier.contains(u'/'))
        return {};
    for (const QString &dir : dataDirs) {
        // Most data directories have neither folder: one look each instead of one per name.
        const QString metainfo = dir + QStringLiteral("/metainfo/");
        if (QFileInfo(metainfo).isDir()) {
            for (const char *name :
                 {"%1.metainfo.xml", "%1.appdata.xml", "%1.desktop.metainfo.xml"}) {
                const QString candidate = metainfo + QString::fromLatin1(name).arg(identifier);
                if (QFile::exists(candidate))
                    return candidate;
            }
        }
        const QString appdata = dir + QStringLiteral("/appdata/") + identifier + u".appdata.xml";
        if (QFile::exists(appdata))
            return appdata;
    }
    return {};
}

QStringList AppStreamVersion::folders(const QStringList &dataDirs)
{
    QStringList result;
    for (const QString &dir : dataDirs)
        result << dir + QStringLiteral("/metainfo") << dir + QStringLiteral("/appdata");
    return result;
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
