// Real volumes and another user, for tests of what a plain folder of the machine does not have.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>

// A volume mounted for one test. Not every machine allows each kind; such a test is skipped with the reason:
//
//     Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
//     KQ_NEED(volume);
//
// It is mounted in a mount namespace that the process enters with its first volume, so that no other process but its
// later children sees it and nothing is left behind when the test crashes. Make the first volume before there are other
// threads: those that run already stay outside. Where the user is not root the namespace comes with one for users, in
// which the process has no right but to mount a Tmpfs; the other kinds take root. Declare the volume before what uses
// it, and leave its folder before it ends. Sizes are bytes.
class Volume {
public:
    enum Kind {
        Tmpfs,  // another volume than the test's folder, with an end to its space
        ExFat,  // ignores letter case, keeps Unicode forms apart; has no links, no modes and no owners. Served by FUSE.
        Fat,    // the kernel's vfat
    };

    // Mounts at `folder`, which is created; an image of the volume is put beside it, as `folder` + ".image".
    Volume(Kind kind, const std::string& folder, std::size_t size);
    // Unmounts. What the volume held is gone.
    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    bool isMounted() const { return why_not_.empty(); }
    const std::string& whyNot() const { return why_not_; }

private:
    void MountTmpfs(std::size_t size);
    void MountExFat(const std::string& image);
    void StartGuard();
    void MountFat(const std::string& image);

    const std::string folder_;
    std::string why_not_;  // empty while mounted

    // Of an ExFat volume alone: its server, and the child that unmounts it when the write end `alive_` is closed.
    pid_t server_ = -1;
    pid_t guard_ = -1;
    int alive_ = -1;
};

// Skips the test, whose body it must stand in, if the volume could not be mounted.
#define KQ_NEED(volume)                                         \
    do {                                                        \
        if (!(volume).isMounted()) {                            \
            GTEST_SKIP() << "no volume: " << (volume).whyNot(); \
        }                                                       \
    } while (false)

// Runs `action` as a user who is not root: where the tests run as root, as nobody in a child process, whose failed
// expectations fail the test. The folders that it works in have to be open to everyone.
void AsOrdinaryUser(const std::function<void()>& action);
