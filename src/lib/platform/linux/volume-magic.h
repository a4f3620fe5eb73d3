// Kinds of volume by their magic numbers.
#pragma once

#include <cstdint>

namespace platform {

// The type name of the volumes with this f_type: "nfs", "smbfs", "msdos", or "" for any other kind. The numbers are the
// kernel's, linux/magic.h and statfs(2). Linux mounts AFP volumes through FUSE alone, so that "afpfs" does not occur.
const char* NameOfVolumeMagic(std::uint32_t magic);

}  // namespace platform
