// What the programs that this one starts get to see of its open files.
#pragma once

#include <cstdio>

// Keeps child processes from inheriting an open stream, where the platform lets them; called after each successful
// open of the log file. The stream stays the caller's. A failure is not reported: the stream is then inherited.
//
// macOS: nothing; applications are started by the system's own launch service there and don't descend from this
// process. Linux: sets close-on-exec. Source: fcntl(2).
void SetHandleFlagInheritFalse(std::FILE* stream);
