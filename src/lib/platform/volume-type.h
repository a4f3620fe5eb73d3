// What kind of volume a path lies on.
#pragma once

#include <string>

namespace platform {

// Writes the type name of the volume that holds `path` (UTF-8), as statfs(2) reports it on macOS: "nfs", "smbfs",
// "afpfs", "msdos" and others. Linux has no such name in statfs; there the magic number gives the same four names where
// the volume is of that kind (FAT being "msdos", CIFS and SMB2 "smbfs") and an empty one for any other.
// Returns 0, or -1 with errno set and `name` as it was. No state; any thread.
int VolumeTypeName(const std::string& path, std::string& name);

}  // namespace platform
