// What kind of volume a path lies on.
#pragma once

#include <optional>
#include <string>

namespace platform {

// The type name of the volume that holds `path` (UTF-8), as statfs(2) reports it on macOS: "nfs", "smbfs",
// "afpfs", "msdos" and others. Linux has no such name in statfs; there the magic number gives the same four names where
// the volume is of that kind (FAT being "msdos", CIFS and SMB2 "smbfs") and an empty one for any other.
// No value, with errno set, where the system does not say. No state; any thread.
std::optional<std::string> VolumeTypeName(const std::string& path);

}  // namespace platform
