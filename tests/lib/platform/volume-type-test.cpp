#include "platform/volume-type.h"

#include <gtest/gtest.h>

#include "platform/linux/volume-magic.h"

namespace {

TEST(VolumeTypeTest, Magic) {
    const struct {
        std::uint32_t magic;
        const char* name;
    } cases[] = {{0x6969, "nfs"}, {0xFF534D42, "smbfs"}, {0xFE534D42, "smbfs"}, {0x517B, "smbfs"}, {0x4D44, "msdos"},
                 {0xEF53, ""},    {0x2011BAB0, ""},      {0x65735546, ""},      {0x5346544E, ""},  {0, ""}};
    for (const auto& one : cases) {
        EXPECT_STREQ(one.name, platform::NameOfVolumeMagic(one.magic)) << std::hex << one.magic;
    }
}

}  // namespace
