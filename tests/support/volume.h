// Volumes for tests of what a plain folder of the machine does not have.
#pragma once

#include "process.h"
#include "test-folder.h"

// Gives the process mounts of its own, which nobody else sees. False where it can't have them. A body for each system.
bool EnterOwnMounts();

// A volume mounted for one test, where the user is root on Linux, in a namespace that the process enters with its first
// one: only its later children see it, and a crash leaves nothing behind. Make it before there are other threads; then
// KQ_NEED(volume).
class Volume {
public:
    // The kinds, as scripts that get the folder and the size. Another volume than the test's, with an end to its space:
    static constexpr char Tmpfs[] = "mount -t tmpfs -o mode=0777,size=$1 tmpfs \"$0\"";
    // One that ignores letter case, keeps Unicode forms apart, and has no links, modes and owners. Its server insists
    // on a block device; the loop device frees itself with its last user.
    static constexpr char ExFat[] = R"(set -e
        truncate --size=$1 "$0.image"
        mkfs.exfat "$0.image"
        device=$(losetup --find --show "$0.image")
        mount.exfat-fuse $device "$0" || failed=1
        losetup --detach $device
        exit $failed)";

    Volume(const char* kind, const std::string& folder, std::size_t size) : folder_(folder) {
        fs::create_directory(folder);
        static const bool entered = EnterOwnMounts();
        if (entered) {
            const Outcome mounted = RunProcess({"/bin/bash", "-c", kind, folder, std::to_string(size)});
            why_not_ = mounted.exitCode == 0 ? "" : "no volume: " + mounted.errors;
        }
    }
    ~Volume() {
        if (why_not_.empty()) {
            RunProcess({"umount", "--lazy", folder_});
        }
    }
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    friend std::string WhyNot(const Volume& volume) { return volume.why_not_; }

private:
    const std::string folder_;
    std::string why_not_ = "needs root on Linux";  // empty while mounted
};
