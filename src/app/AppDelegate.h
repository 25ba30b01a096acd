#pragma once

#include <QObject>

// The application's life-cycle call-backs: launching done (the event loop's first
// turn) and about to terminate.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    explicit AppDelegate(QObject *parent = nullptr);

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

private:
    void configureUpdateScheduler();
    void userDefaultsDidChange();
};
