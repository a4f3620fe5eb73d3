#include "platform/change-time.h"

namespace platform {

struct timespec ChangeTime(const struct stat& status) {
    return status.st_ctim;
}

}  // namespace platform
