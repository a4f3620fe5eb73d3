// SIGINT, SIGTERM and SIGHUP, taken so that nothing half-made is left behind.
#pragma once

// From here on the first of these signals only sets a mark; a second one ends the process. Main thread, once.
void TakeInterruptions();

// Whether one has come.
bool IsInterrupted();

// Ends the process by the signal that has come, as its caller expects it of an interrupted program. Call when all is
// cleaned up.
[[noreturn]] void EndInterrupted();
