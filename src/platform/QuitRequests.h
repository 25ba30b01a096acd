#pragma once

#include <QObject>

// Requests from outside to end the process (the session logging out, Ctrl+C, the terminal
// closing), delivered on the main thread so the program can end in order.
class QuitRequests : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

Q_SIGNALS:
    void quitRequested();
};
