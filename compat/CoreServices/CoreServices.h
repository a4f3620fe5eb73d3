// Stand-in for the macOS header of this name: the calls that src/lib/platform/mac makes and the types that they take,
// so that its bodies are compiled and tested on other systems. In the include path of those tests alone, which bring
// their own bodies for the functions. Source: the manual of the Core Services framework.
#pragma once

extern "C" {

using UInt8 = unsigned char;
using UInt32 = unsigned int;
using SInt32 = int;
using Boolean = unsigned char;
using OSStatus = SInt32;
using OptionBits = UInt32;

// Opaque.
struct FSRef {
    UInt8 hidden[80];
};

enum : OptionBits {
    kFSPathMakeRefDoNotFollowLeafSymlink = 0x01,
};

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory);
OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref, Boolean* isDirectory);
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize);

}  // extern "C"
