#pragma once

#include "platform/InstallLayout.h"

// Homebrew's Caskroom folders under its two usual prefixes, and the running copy's path
// with every link resolved.
class FreedesktopInstallLayout final : public InstallLayout {
public:
    // The running executable, and /opt/homebrew then /usr/local.
    FreedesktopInstallLayout();
    FreedesktopInstallLayout(QString installPath, QStringList brewPrefixes)
        : m_installPath(std::move(installPath)), m_brewPrefixes(std::move(brewPrefixes))
    {
    }

    std::optional<QString> homebrewEvidence(const QStringList &caskTokens) const override;

private:
    QString m_installPath;
    QStringList m_brewPrefixes;
};
