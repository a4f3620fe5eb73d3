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

int VolumeTypeName(const std::string& path, std::string& name) {
    struct statfs status = {};
    if (statfs(path.c_str(), &status) < 0) {
        return -1;
    }
    // Signed, and 32 bits wide on some machines: the number is its low 32 bits.
    name = NameOfVolumeMagic(static_cast<std::uint32_t>(status.f_type));
    return 0;
}

}  // namespace platform
