#pragma once

#include <functional>

/// Waits until \a condition holds, asking again every few milliseconds while
/// events are handled. False when \a deadlineMs (stretched by
/// scaledTimeout()) passed first.
bool waitFor(const std::function<bool()> &condition, int deadlineMs = 10000);

/// \a milliseconds, times the environment variable TARN_TEST_TIMEOUT_SCALE for
/// builds that run slowly; a scale below 1 or of no number counts as 1.
int scaledTimeout(int milliseconds);
