#include "platform/inheritance.h"

#include <fcntl.h>

void SetHandleFlagInheritFalse(std::FILE* stream) {
    const int descriptor = fileno(stream);
    const int flags = fcntl(descriptor, F_GETFD);
    if (flags != -1) {
        fcntl(descriptor, F_SETFD, flags | FD_CLOEXEC);
    }
}
