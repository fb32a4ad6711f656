#include "waiting.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

namespace {
constexpr int LongestPollInterval = 16;
}

bool waitFor(const std::function<bool()> &condition, int deadlineMs)
{
    QElapsedTimer elapsed;
    elapsed.start();
    const int deadline = scaledTimeout(deadlineMs);
    int interval = 1;
    while (!condition()) {
        if (elapsed.elapsed() >= deadline)
            return false;
        // Soon at first, then rarely: a condition may be dear to ask.
        QTest::qWait(interval);
        interval = std::min(2 * interval, LongestPollInterval);
    }
    return true;
}

int scaledTimeout(int milliseconds)
{
    return milliseconds * std::max(1, qEnvironmentVariableIntValue("TARN_TEST_TIMEOUT_SCALE"));
}
