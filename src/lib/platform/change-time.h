// When a file was last changed in any way.
#pragma once

#include <sys/stat.h>

namespace platform {

// The time of the last change of content, mode, owner or name, to the nanosecond where the volume keeps it. Any thread.
// Source: stat(2), which names the field differently on each system.
struct timespec ChangeTime(const struct stat& status);

}  // namespace platform
