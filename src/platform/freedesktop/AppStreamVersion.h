#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The newest release an application's AppStream metadata names: the first
// <release version="..."> of <data dir>/metainfo/<id>.metainfo.xml (or the older
// .appdata.xml, or the old appdata directory).
class AppStreamVersion {
public:
    static std::optional<QString> find(const QString &identifier, const QStringList &dataDirs);
    // The file find() reads, or an empty string.
    static QString path(const QString &identifier, const QStringList &dataDirs);
    // The folders whose entries decide which file that is, in every data dir.
    static QStringList folders(const QStringList &dataDirs);
    static std::optional<QString> readFile(const QString &path);
};
