// What the content of a few files must be: what is taken, and what is not.
#include "tools/quay-package/content.h"

#include <filesystem>

#include "quay-test.h"

namespace fs = std::filesystem;

class ContentTest : public QuayTest {};

TEST_F(ContentTest, ProgramsAreWholeOnes) {
    const std::string launcher = Read(KQ_LAUNCHER);
    const auto recognise = [](const std::string& bytes) {
        return Recognise(bytes.substr(0, kProgramFront), static_cast<std::int64_t>(bytes.size()));
    };
    EXPECT_EQ(recognise(launcher), Program::Elf);
    for (const std::size_t size :
         {std::size_t{4}, std::size_t{63}, std::size_t{100}, launcher.size() / 2, launcher.size() - 1}) {
        EXPECT_EQ(recognise(launcher.substr(0, size)), Program::None) << size;
    }
    // A load command that names a segment of 4 bytes at 104.
    std::string mach("\xcf\xfa\xed\xfe\7\0\0\1\3\0\0\0\2\0\0\0\1\0\0\0\x48\0\0\0\0\0\0\0\0\0\0\0", 32);
    mach += std::string("\x19\0\0\0\x48\0\0\0", 8) + std::string(32, '\0') +
            std::string("\x68\0\0\0\0\0\0\0\4\0\0\0\0\0\0\0", 16) + std::string(16, '\0') + "code";
    std::string fat("\xca\xfe\xba\xbe\0\0\0\1\1\0\0\7\0\0\0\3\0\0\0\x1c\0\0\0\x6c\0\0\0\2", 28);
    EXPECT_EQ(recognise(mach), Program::MachO);
    EXPECT_EQ(recognise(fat + mach), Program::MachO);
    for (std::size_t size = 0; size < mach.size(); ++size) {
        EXPECT_EQ(recognise(mach.substr(0, size)), Program::None) << size;
        EXPECT_EQ(recognise(fat + mach.substr(0, size)), Program::None) << size;
    }
    for (const char* script : {"#!/bin/sh\n", "#! /usr/bin/env python3\nx", "#!/bin/sh -e\n"}) {
        EXPECT_EQ(recognise(script), Program::Script) << script;
    }
    for (const char* none : {"", "#", "#!", "#!\n", "#!sh\n", "#!/\n", "#!/bin/s", "#!/bin/sh\r\n", "exit 0\n", "MZ"}) {
        EXPECT_EQ(recognise(none), Program::None) << none;
    }
}

TEST_F(ContentTest, PropertyListsInBothForms) {
    const std::string xml =
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>a</key><dict><key>k</key>"
        "<string>inner</string></dict><key>k</key><string>va&amp;lue</string></dict></plist>";
    std::string binary(
        "bplist00\xd1\1\2QkVva&lue\x08\x0b\x0d\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x14", 55);
    std::string value;
    for (const std::string& list : {xml, binary}) {
        ASSERT_TRUE(PropertyListValue(list, "k", value)) << list;
        EXPECT_EQ(value, "va&lue");
        EXPECT_FALSE(PropertyListValue(list, "none", value));
        for (std::size_t size = 0; size < list.size(); ++size) {
            EXPECT_FALSE(PropertyListValue(list.substr(0, size), "k", value) && value != "va&lue");
        }
    }
}

TEST_F(ContentTest, IconsAreDecoded) {
    const std::string icon = Read(std::string(KQ_DOCS) + "/../resources/images/ico_72_tessaly.png");
    EXPECT_TRUE(IsIcon(icon));
    std::string bad = icon;
    bad[bad.size() / 2] ^= 0x55;
    for (const std::string& other :
         {std::string(), std::string("GIF89a"), icon.substr(0, 100), icon.substr(0, icon.size() / 2), bad}) {
        EXPECT_FALSE(IsIcon(other));
    }
}

// The same is refused as by the validator, where there is one; beyond that, what starts another program.
TEST_F(ContentTest, DesktopEntries) {
    const std::string program = "Contents/MacOS/launcher";
    const std::string good = "[Desktop Entry]\nType=Application\nName=X\nExec=/opt/X.app/Contents/MacOS/launcher\n";
    const std::string bare = "[Desktop Entry]\nType=Application\nName=X\n";
    const struct {
        bool isGood;
        std::string text;
    } entries[] = {
        {true, good},
        {true,
         "# a comment\n\n" + good + "Name[de]=Ü\nTerminal = false\nCategories=Network;FileTransfer;X-Own;\nX-Any=1\n"},
        {true, good + "Keywords=sync;cloud;\nVersion=1.0\nStartupNotify=true\nTryExec=/bin/true\nComment=a\\sb\n"},
        {true,
         good + "Actions=new;\n\n[Desktop Action new]\nName=New\nExec=/opt/X.app/Contents/MacOS/launcher --new\n"},
        {true, bare + "Exec=/opt/X.app/Contents/MacOS/launcher %U --icon %i %%\n"},
        {true, bare + "Exec=\"/opt/my X.app/Contents/MacOS/launcher\" %f\n"},
        {false, ""},
        {false, "Type=Application\n"},
        {false, "[Other]\nA=1\n" + good},
        {false, "[Desktop Entry]\nName=X\nExec=/o/Contents/MacOS/launcher\n"},
        {false, good + "Name=Y\n"},
        {false, good + "[Desktop Entry]\n"},
        {false, good + "[Group]\n"},
        {false, good + "no line\n"},
        {false, good + "Colour=red\n"},
        {false, good + "Bad_Key=1\n"},
        {false, good + "Terminal=maybe\n"},
        {false, good + "Terminal[de]=true\n"},
        {true, good + "Categories=Network\nPath=/ü\nComment=a\\xb\n"},
        {false, good + "Categories=Nonsense;\n"},
        {false, good + "Comment=\xff\n"},
        {false, good + "Version=9\n"},
        {false, bare + "Exec=/o/Contents/MacOS/launcher %z\n"},
        {false, bare + "Exec=/o/Contents/MacOS/launcher %f %U\n"},
        {false, bare + "Exec=\"/o/Contents/MacOS/launcher\n"},
        {false, bare + "Exec=/o/Contents/MacOS/launcher > log\n"},
        {false, bare + "Exec=\"/o/$HOME/Contents/MacOS/launcher\"\n"},
    };
    const std::string validator = "/usr/bin/desktop-file-validate";
    for (const auto& entry : entries) {
        EXPECT_EQ(DesktopEntryFault(entry.text, program) == "", entry.isGood)
            << entry.text << DesktopEntryFault(entry.text, program);
        if (fs::exists(validator)) {
            Write(At("x.desktop"), entry.text);
            const Outcome outcome = RunProcess({validator, "--no-hints", At("x.desktop")}, environment_);
            EXPECT_EQ(outcome.exitCode == 0, entry.isGood) << entry.text << outcome.output;
        }
    }
    EXPECT_NE(DesktopEntryFault(bare, program), "");
    for (const char* command :
         {"another", "launcher", "/o/Contents/MacOS/launcher2", "\"/o/Contents/MacOS\" launcher"}) {
        EXPECT_NE(DesktopEntryFault(bare + "Exec=" + command + "\n", program), "") << command;
    }
}

TEST_F(ContentTest, BuildNumbers) {
    for (const char* number : {"1", "7", "2147483647"}) {
        EXPECT_TRUE(IsBuildNumber(number)) << number;
    }
    for (const char* none : {"", "0", "07", "+7", "-7", " 7", "7 ", "7x", "2147483648", "99999999999999999999"}) {
        EXPECT_FALSE(IsBuildNumber(none)) << none;
    }
}
