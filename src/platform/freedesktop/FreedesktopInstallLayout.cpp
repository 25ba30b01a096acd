#include "platform/freedesktop/FreedesktopInstallLayout.h"

#include <QCoreApplication>
#include <QFileInfo>

FreedesktopInstallLayout::FreedesktopInstallLayout()
    : FreedesktopInstallLayout(
        QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath(),
        {QStringLiteral("/opt/homebrew"), QStringLiteral("/usr/local")})
{
}

std::optional<QString>
FreedesktopInstallLayout::homebrewEvidence(const QStringList &caskTokens) const
{
    if (m_installPath.contains(QLatin1StringView("Caskroom")))
        return QStringLiteral("symlink resolution");
    for (const QString &prefix : m_brewPrefixes) {
        for (const QString &token : caskTokens) {
            const QString path = prefix + u"/Caskroom/" + token;
            if (QFileInfo::exists(path))
                return u"Caskroom directory: " + path;
        }
    }
    return std::nullopt;
}
