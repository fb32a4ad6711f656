#pragma once

/// A clock of this program's own: it stands still while the main thread works, and where the event
/// loop would wait for its next timer it goes on to that timer at once. A day of a program that
/// waits most of the time takes as long as the work of that day. Linux only.
namespace SimulatedClock {

/// In milliseconds, from any beginning.
long long now();

/// Leaves the system's clock for this one, which begins at the next full second.
void start();

/// Handles events until \a milliseconds have passed.
void run(int milliseconds);

} // namespace SimulatedClock
