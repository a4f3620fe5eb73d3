#include <fcntl.h>

#include "log-file.h"

// A program that this one starts would otherwise keep the log file open, rotated generations included.
// Source: fcntl(2).
void SetHandleFlagInheritFalse(std::FILE* stream) {
    const int descriptor = fileno(stream);
    const int flags = fcntl(descriptor, F_GETFD);
    if (flags != -1) {
        fcntl(descriptor, F_SETFD, flags | FD_CLOEXEC);
    }
}
