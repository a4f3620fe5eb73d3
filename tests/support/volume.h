// Volumes for tests of what a plain folder of the machine does not have.
#pragma once

#include <string>

// A volume mounted for one test, where the user is root on Linux:
//
//     const Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
//     KQ_NEED(volume);
//
// It is mounted in a mount namespace that the process enters with its first volume, so that no other process but its
// later children sees it and nothing is left behind when the test crashes. Make it before there are other threads, and
// leave its folder before it ends.
class Volume {
public:
    enum Kind {
        Tmpfs,  // another volume than the test's folder, with an end to its space
        ExFat,  // ignores letter case, keeps Unicode forms apart; has no links, no modes and no owners. Served by FUSE.
    };

    // Mounts a volume of `size` bytes at `folder`, which is created.
    Volume(Kind kind, const std::string& folder, std::size_t size);
    // Unmounts. What the volume held is gone.
    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    const std::string& whyNot() const { return why_not_; }

private:
    const std::string folder_;
    std::string why_not_;  // empty while mounted
};

inline std::string WhyNot(const Volume& volume) {
    return volume.whyNot();
}
