#pragma once

#include <QString>

#include <optional>

// Whether the system starts the program when the user logs in, and the switch for it.
// The program keeps no copy of this state: it asks each time.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    virtual bool isEnabled() const = 0;
    // Nothing on success, else why it failed. Registering an enabled item again is harmless.
    virtual std::optional<QString> registerItem() = 0;
    virtual std::optional<QString> unregisterItem() = 0;
};
