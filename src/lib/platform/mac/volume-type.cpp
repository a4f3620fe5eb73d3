#include "platform/volume-type.h"

#include <sys/param.h>
// After sys/param.h, as statfs(2) has it.
#include <sys/mount.h>

#include <type_traits>

namespace platform {

static_assert(std::is_same_v<decltype(&::statfs), int (*)(const char*, struct statfs*)>);
static_assert(sizeof(statfs::f_fstypename) >= 16, "holds the type name with its terminator");

std::optional<std::string> VolumeTypeName(const std::string& path) {
    struct statfs status = {};
    if (::statfs(path.c_str(), &status) < 0) {
        return std::nullopt;
    }
    return status.f_fstypename;
}

}  // namespace platform
