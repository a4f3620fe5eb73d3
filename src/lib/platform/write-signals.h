// Signals that end a process for what it writes.
#pragma once

namespace platform {

// Makes a write to a pipe without a reader, or beyond the limit for a file's size, a failure like any other in place of
// the process's end (SIGPIPE, SIGXFSZ). StartApplication gives both back to what it starts. Source: signal(7).
void IgnoreWriteSignals();

}  // namespace platform
