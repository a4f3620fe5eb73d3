// The macOS bodies of file-reference.h and volume-type.h on fakes that record their calls and answer as told.
#include <CoreServices/CoreServices.h>
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include "platform/file-reference.h"
#include "platform/volume-type.h"

namespace {

// What the fakes have seen and what they are to answer.
struct System {
    std::vector<std::string> calls;
    OSStatus referenceStatus = 0;
    OSStatus pathStatus = 0;
    std::string path;                  // what FSRefMakePath writes
    bool isZeroed = false;             // whether its buffer was
    const char* volumeType = nullptr;  // null: statfs fails with EIO
};

System system_;

OSStatus MakeReference(const std::string& call, const UInt8* path, FSRef* ref, const Boolean* isDirectory) {
    system_.calls.push_back(call + " " + reinterpret_cast<const char*>(path) +
                            (isDirectory == nullptr ? "" : " asked"));
    std::fill_n(ref->hidden, sizeof(ref->hidden), UInt8{0xA5});
    return system_.referenceStatus;
}

}  // namespace

extern "C" {

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory) {
    return MakeReference("FSPathMakeRef", path, ref, isDirectory);
}

OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref, Boolean* isDirectory) {
    return MakeReference("FSPathMakeRefWithOptions " + std::to_string(options), path, ref, isDirectory);
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize) {
    const bool isMade =
        std::all_of(ref->hidden, ref->hidden + sizeof(ref->hidden), [](UInt8 byte) { return byte == 0xA5; });
    system_.calls.push_back("FSRefMakePath " + std::to_string(pathBufferSize) + (isMade ? "" : " of no reference"));
    system_.isZeroed = std::all_of(path, path + pathBufferSize, [](UInt8 byte) { return byte == 0; });
    // Without a terminator, as the buffer is to have zeros.
    std::copy(system_.path.begin(), system_.path.end(), path);
    return system_.pathStatus;
}

// The body of statfs: see the stand-in header.
int kq_stand_in_statfs(const char* path, struct statfs* status) {
    system_.calls.push_back(std::string("statfs ") + path);
    if (system_.volumeType == nullptr) {
        errno = EIO;
        return -1;
    }
    std::strcpy(status->f_fstypename, system_.volumeType);
    return 0;
}

}  // extern "C"

namespace {

using Calls = std::vector<std::string>;

TEST(MacFileReferenceTest, CallsAndStatuses) {
    const std::string keep = "FSPathMakeRefWithOptions 1 /x/file";
    const std::string follow = "FSPathMakeRef /x/file";
    const std::string makePath = "FSRefMakePath 4096";
    const struct {
        platform::Leaf leaf;
        OSStatus referenceStatus;
        OSStatus pathStatus;
        int result;
        const char* spelled;
        Calls calls;
    } cases[] = {
        {platform::Leaf::Keep, 0, 0, 0, "/X/File", {keep, makePath}},
        {platform::Leaf::Follow, 0, 0, 0, "/X/File", {follow, makePath}},
        {platform::Leaf::Keep, -43, 0, -43, "old", {keep}},
        {platform::Leaf::Follow, -35, 0, -35, "old", {follow}},
        {platform::Leaf::Keep, 0, -2110, -2110, "old", {keep, makePath}},
        {platform::Leaf::Follow, 0, 1, 1, "old", {follow, makePath}},
    };
    for (const auto& one : cases) {
        system_ = System{{}, one.referenceStatus, one.pathStatus, "/X/File", false, nullptr};
        std::string spelled = "old";
        EXPECT_EQ(one.result, platform::SpelledPath("/x/file", one.leaf, spelled));
        EXPECT_EQ(one.spelled, spelled);
        EXPECT_EQ(one.calls, system_.calls);
        EXPECT_EQ(one.calls.size() == 2, system_.isZeroed);
    }
}

TEST(MacVolumeTypeTest, NameIsThatOfStatfs) {
    for (const char* type : {"nfs", "smbfs", "afpfs", "msdos", "apfs", "fifteen letters"}) {
        system_ = System{};
        system_.volumeType = type;
        EXPECT_EQ(type, platform::VolumeTypeName("/x"));
        EXPECT_EQ(Calls{"statfs /x"}, system_.calls);
    }
    system_ = System{};
    EXPECT_EQ(std::nullopt, platform::VolumeTypeName("/x"));
    EXPECT_EQ(EIO, errno);
}

}  // namespace
