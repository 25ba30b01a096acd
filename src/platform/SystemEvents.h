#pragma once

#include <QObject>

// The system events that run a guard's check. Signals arrive on the main thread; a
// source that the system lacks simply never fires.
class SystemEvents : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

Q_SIGNALS:
    void didWake();
    void screenUnlocked();
};
