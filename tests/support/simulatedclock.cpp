#include "simulatedclock.h"

#include <QEventLoop>
#include <QTimer>

#include <ctime>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long nsPerMs = 1000000;
constexpr long nsPerSecond = 1000 * nsPerMs;

bool isSimulated = false;
timespec simulated; // of CLOCK_MONOTONIC
const pid_t mainThread = getpid();

// Qt's own event dispatcher waits with ppoll(), that of GLib does not; and a test function may take
// more than Qt Test's five minutes. Before main(), where both are looked up.
const bool isPrepared =
    qputenv("QT_NO_GLIB", "1") && qputenv("QTEST_FUNCTION_TIMEOUT", "2147483647");

void advance(long ns)
{
    ns += simulated.tv_nsec;
    simulated.tv_sec += ns / nsPerSecond;
    simulated.tv_nsec = ns % nsPerSecond;
}

} // namespace

// The two functions that Qt's event dispatcher asks for the time and waits with; this program's
// own come before those of the C library.
extern "C" int clock_gettime(clockid_t clock, timespec *time)
{
    if (isPrepared && isSimulated && clock == CLOCK_MONOTONIC) {
        *time = simulated;
        return 0;
    }
    return int(syscall(SYS_clock_gettime, clock, time));
}

extern "C" int ppoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    const auto poll = [&](timespec *rest) {
        return int(syscall(SYS_ppoll, files, count, rest, mask, sizeof(long)));
    };
    if (!timeout)
        return poll(nullptr);
    timespec rest = *timeout;
    if (!isSimulated || syscall(SYS_gettid) != mainThread)
        return poll(&rest);
    rest = {};
    const int ready = poll(&rest);
    if (ready == 0)
        advance(timeout->tv_sec * nsPerSecond + timeout->tv_nsec);
    return ready;
}

long long SimulatedClock::now()
{
    timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000LL + time.tv_nsec / nsPerMs;
}

void SimulatedClock::start()
{
    clock_gettime(CLOCK_MONOTONIC, &simulated);
    advance(nsPerSecond - simulated.tv_nsec);
    isSimulated = true;
}

void SimulatedClock::run(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}
