#include "terminationsignals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace {

// The handler writes into one end, the event loop reads from the other.
std::array<int, 2> sockets{{-1, -1}};

struct Handled
{
    int signal;
    struct sigaction before;
};
std::array<Handled, 3> handled{{{SIGINT, {}}, {SIGTERM, {}}, {SIGHUP, {}}}};

extern "C" void passOn(int /*signal*/)
{
    const int savedErrno = errno;
    const char byte = 1;
    const ssize_t written = ::write(sockets[0], &byte, sizeof byte);
    Q_UNUSED(written) // a full socket holds the request already
    errno = savedErrno;
}

bool isIgnored(const struct sigaction &action)
{
    return !(action.sa_flags & SA_SIGINFO) && action.sa_handler == SIG_IGN;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, sockets.data()) != 0) {
        qWarning("Termination signals are not handled: no socket pair");
        return;
    }
    auto *notifier = new QSocketNotifier(sockets[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(sockets[1], &byte, sizeof byte) == sizeof byte)
            emit requested();
    });
    struct sigaction action = {};
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    for (Handled &one : handled) {
        ::sigaction(one.signal, nullptr, &one.before);
        if (one.signal != SIGHUP || !isIgnored(one.before))
            ::sigaction(one.signal, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    if (sockets[0] < 0)
        return;
    for (const Handled &one : handled)
        ::sigaction(one.signal, &one.before, nullptr);
    for (int &socket : sockets) {
        ::close(socket);
        socket = -1;
    }
}

#else

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{ }

TerminationSignals::~TerminationSignals() = default;

#endif
