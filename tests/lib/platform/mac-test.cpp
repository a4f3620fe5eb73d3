// The Mac's file references, on fakes that answer as told.
#include <CoreServices/CoreServices.h>
#include <gtest/gtest.h>

#include <cstring>

#include "platform/file-reference.h"

static OSStatus referenceStatus = 0;
static OSStatus pathStatus = 0;

extern "C" {

// A reference holds "/xy", and behind it the options where there are any.
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* /*isDirectory*/) {
    std::memcpy(ref->hidden, path, 3);
    return referenceStatus;
}

OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref, Boolean* isDirectory) {
    ref->hidden[3] = static_cast<UInt8>('0' + options);
    return FSPathMakeRef(path, ref, isDirectory);
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 /*pathBufferSize*/) {
    std::memcpy(path, ref->hidden, 4);  // without a terminator, as the buffer is to have zeros
    return pathStatus;
}

}  // extern "C"

TEST(MacTest, FileReferences) {
    for (const auto& [leaf, spelled] : {std::pair(platform::Leaf::Keep, "/xy1"), {platform::Leaf::Follow, "/xy"}}) {
        for (const auto& [forReference, forPath] : {std::pair(0, 0), {-43, 0}, {0, -2110}, {0, 1}}) {
            referenceStatus = forReference;
            pathStatus = forPath;
            std::string path = "old";
            EXPECT_EQ(forReference + forPath, platform::SpelledPath("/xy", leaf, path));
            EXPECT_EQ(forReference + forPath == 0 ? spelled : "old", path);
        }
    }
}
