#include <sched.h>

#include "volume.h"

bool EnterOwnMounts() {
    return unshare(CLONE_NEWNS) == 0 && RunProcess({"mount", "--make-rprivate", "/"}).exitCode == 0;
}
