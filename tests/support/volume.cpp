#include "volume.h"

#include "process.h"
#include "test-folder.h"

#if defined(__linux__)
#include <sched.h>
#endif

namespace {

// Mounts for this process and its children alone.
bool EnterNamespace() {
#if defined(__linux__)
    return unshare(CLONE_NEWNS) == 0 && RunProcess({"/bin/mount", "--make-rprivate", "/"}).exitCode == 0;
#else
    return false;
#endif
}

// The arguments are the folder and the size. The server of a FUSE volume insists on a block device; the loop device
// frees itself with its last user.
constexpr char kMountTmpfs[] = "mount -t tmpfs -o mode=0777,size=$2 tmpfs \"$1\"";
constexpr char kMountExFat[] = R"(set -e
    truncate --size=$2 "$1.image"
    mkfs.exfat "$1.image"
    device=$(losetup --find --show "$1.image")
    mount.exfat-fuse $device "$1" || failed=1
    losetup --detach $device
    exit $failed)";

}  // namespace

Volume::Volume(Kind kind, const std::string& folder, std::size_t size) : folder_(folder) {
    fs::create_directory(folder);
    why_not_ = WhyNot(Ability::Linux) + WhyNot(Ability::Root);
    static const bool hasEntered = why_not_.empty() && EnterNamespace();
    if (hasEntered) {
        const std::string script = kind == Tmpfs ? kMountTmpfs : kMountExFat;
        const Outcome mounted = RunProcess({"/bin/bash", "-c", script, "mount", folder, std::to_string(size)});
        why_not_ = mounted.exitCode == 0 ? "" : "no volume: " + mounted.errors;
    } else if (why_not_.empty()) {
        why_not_ = "no mount namespace";
    }
}

Volume::~Volume() {
    if (why_not_.empty()) {
        RunProcess({"/bin/umount", "--lazy", folder_});
    }
}
