#include "platform/volume-type.h"

#include <sys/param.h>
// After sys/param.h, as statfs(2) has it.
#include <sys/mount.h>

#include <type_traits>

namespace platform {

static_assert(std::is_same_v<decltype(&::statfs), int (*)(const char*, struct statfs*)>);
static_assert(sizeof(statfs::f_fstypename) >= 16, "holds the type name with its terminator");

int VolumeTypeName(const std::string& path, std::string& name) {
    struct statfs status = {};
    if (::statfs(path.c_str(), &status) < 0) {
        return -1;
    }
    name = status.f_fstypename;
    return 0;
}

}  // namespace platform
