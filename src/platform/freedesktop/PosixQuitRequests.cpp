#include "platform/freedesktop/PosixQuitRequests.h"

#include <QSocketNotifier>

#include <cerrno>
#include <utility>

#include <sys/socket.h>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t writeEnd = -1;

extern "C" void noteSignal(int number)
{
    const int savedErrno = errno;
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = savedErrno;
}

} // namespace

PosixQuitRequests::PosixQuitRequests(QObject *parent) : QuitRequests(parent)
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &PosixQuitRequests::drain);

    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction previous = {};
        if (::sigaction(number, nullptr, &previous) != 0 || previous.sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = noteSignal;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESTART;
        if (::sigaction(number, &action, nullptr) == 0)
            m_replaced.append({number, previous});
    }
}

PosixQuitRequests::~PosixQuitRequests()
{
    for (const Replaced &replaced : std::as_const(m_replaced))
        ::sigaction(replaced.number, &replaced.previous, nullptr);
    if (m_readEnd < 0)
        return;
    delete m_notifier;
    ::close(writeEnd);
    ::close(m_readEnd);
    writeEnd = -1;
}

void PosixQuitRequests::drain()
{
    char bytes[16];
    while (::read(m_readEnd, bytes, sizeof bytes) > 0) {
    }
    Q_EMIT quitRequested();
}
