#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// Where this copy of the program is installed, as far as its updates depend on it.
class InstallLayout {
public:
    virtual ~InstallLayout() = default;

    // How Homebrew shows that it manages this copy, told for the console: "symlink resolution"
    // when the running copy, links resolved, lies in a Caskroom, else "Caskroom directory: "
    // and the first Caskroom folder found, prefix by prefix, for each of `caskTokens` in turn.
    // None when Homebrew does not manage it.
    virtual std::optional<QString> homebrewEvidence(const QStringList &caskTokens) const = 0;
};
