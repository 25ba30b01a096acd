#pragma once

#include "foundation/QtTimerFactory.h"

#include <QObject>

#include <memory>

class UpdateScheduler;

// The application's life-cycle call-backs: launching done (the event loop's first
// turn) and about to terminate.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    explicit AppDelegate(QObject *parent = nullptr);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

private:
    void configureUpdateScheduler();
    void userDefaultsDidChange();

    QtTimerFactory m_timers;
    std::unique_ptr<UpdateScheduler> m_updateScheduler;
};
