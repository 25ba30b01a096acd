#pragma once

#include <QStringList>

// The bundle identifiers that count as browsers or mail clients on macOS, in the order they
// are tried.
class MacKnownApplications {
public:
    static const QStringList &browsers();
    static const QStringList &mailClients();
};
