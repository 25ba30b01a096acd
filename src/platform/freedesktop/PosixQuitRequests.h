#pragma once

#include "platform/QuitRequests.h"

#include <QList>

#include <csignal>

class QSocketNotifier;

// SIGTERM, SIGINT and SIGHUP as quit requests. The handler only writes to a socket that the
// event loop watches; a signal ignored when this is made (as under nohup) stays ignored.
// One at a time per process; the former handlers come back when it goes.
class PosixQuitRequests final : public QuitRequests {
    Q_OBJECT
public:
    explicit PosixQuitRequests(QObject *parent = nullptr);
    ~PosixQuitRequests() override;

private:
    struct Replaced {
        int number;
        struct sigaction previous;
    };

    void drain();

    int m_readEnd = -1;
    QSocketNotifier *m_notifier = nullptr;
    QList<Replaced> m_replaced;
};
