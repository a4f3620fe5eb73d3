#include "platform/volume-type.h"

#include <sys/vfs.h>

#include "platform/linux/volume-magic.h"

namespace platform {

const char* NameOfVolumeMagic(std::uint32_t magic) {
    switch (magic) {
        case 0x6969: return "nfs";
        case 0x517B:      // SMB
        case 0xFF534D42:  // CIFS
        case 0xFE534D42:  // SMB 2 and later
            return "smbfs";
        case 0x4D44: return "msdos";  // FAT
        default: return "";
    }
}

std::optional<std::string> VolumeTypeName(const std::string& path) {
    struct statfs status = {};
    if (statfs(path.c_str(), &status) < 0) {
        return std::nullopt;
    }
    // The field is signed and on most machines wider: the magic number is its low 32 bits.
    return NameOfVolumeMagic(static_cast<std::uint32_t>(status.f_type));
}

}  // namespace platform
