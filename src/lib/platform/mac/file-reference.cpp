#include "platform/file-reference.h"

#include <CoreServices/CoreServices.h>

#include <type_traits>

// The service is deprecated, but no other tells how a path is really spelled.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace platform {

// What the calls below rely on, so that a build against other headers says what has changed.
static_assert(sizeof(FSRef) == 80);
static_assert(sizeof(OSStatus) == 4 && std::is_signed_v<OSStatus>);
static_assert(kFSPathMakeRefDoNotFollowLeafSymlink == 1);
static_assert(
    std::is_same_v<decltype(&::FSPathMakeRefWithOptions), OSStatus (*)(const UInt8*, OptionBits, FSRef*, Boolean*)>);
static_assert(std::is_same_v<decltype(&::FSPathMakeRef), OSStatus (*)(const UInt8*, FSRef*, Boolean*)>);
static_assert(std::is_same_v<decltype(&::FSRefMakePath), OSStatus (*)(const FSRef*, UInt8*, UInt32)>);

namespace {

constexpr UInt32 kPathBuffer = 4096;

}  // namespace

int SpelledPath(const std::string& path, Leaf leaf, std::string& spelled) {
    const auto* text = reinterpret_cast<const UInt8*>(path.c_str());
    FSRef reference = {};
    OSStatus status = 0;
    if (leaf == Leaf::Follow) {
        status = FSPathMakeRef(text, &reference, nullptr);
    } else {
        status = FSPathMakeRefWithOptions(text, kFSPathMakeRefDoNotFollowLeafSymlink, &reference, nullptr);
    }
    if (status != 0) {
        return status;
    }
    UInt8 buffer[kPathBuffer] = {};
    status = FSRefMakePath(&reference, buffer, kPathBuffer);
    if (status != 0) {
        return status;
    }
    spelled = reinterpret_cast<const char*>(buffer);
    return 0;
}

}  // namespace platform

#pragma GCC diagnostic pop
