#pragma once

#include <QByteArray>

class HandlerDatabase;
class SettingsStore;

// What the guards would see now, as one JSON object, read without writing anything:
// {"browser": {...}, "email": {...}}, each side with "current", "target", "isProtected",
// "status" and "installed" (the records a guard offers as targets).
class StatusReport {
public:
    static QByteArray build(SettingsStore &settings, const HandlerDatabase &handlers);
};
