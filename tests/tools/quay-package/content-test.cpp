// What the content of a few files must be: what is taken, and what is not.
#include "tools/quay-package/content.h"

#include "quay-test.h"

class ContentTest : public QuayTest {};

TEST_F(ContentTest, ProgramsAreWholeOnes) {
    const auto recognise = [](const std::string& bytes) {
        return Recognise(bytes.substr(0, kProgramFront), static_cast<std::int64_t>(bytes.size()));
    };
    const std::string fat("\xca\xfe\xba\xbe\0\0\0\1\1\0\0\7\0\0\0\3\0\0\0\x1c\0\0\0\x6c\0\0\0\2", 28);
    const std::pair<std::string, Program> programs[] = {{Read(KQ_LAUNCHER), Program::Elf},
                                                        {MachO(), Program::MachO},
                                                        {fat + MachO(), Program::MachO},
                                                        {"#!/bin/sh\n", Program::Script},
                                                        {"#! /usr/bin/env python3\n", Program::Script}};
    for (const auto& [whole, program] : programs) {
        EXPECT_EQ(recognise(whole), program);
        EXPECT_EQ(recognise(whole.substr(0, whole.size() - 1)), Program::Broken);
        for (std::size_t size = 0; size < whole.size(); size += 1 + whole.size() / 200) {
            EXPECT_LE(recognise(whole.substr(0, size)), Program::Broken) << size;
        }
    }
    for (const char* none : {"#!\n", "#!sh\n", "#!/\n", "#!/bin/sh\r\n", "exit 0\n", "MZ"}) {
        EXPECT_LE(recognise(none), Program::Broken) << none;
    }
}

TEST_F(ContentTest, PropertyListsInBothForms) {
    const std::string xml =
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleExecutable</key>"
        "<string>va&amp;lue</string></dict></plist>";
    EXPECT_EQ(ExecutableOf(xml), "va&lue");
    EXPECT_EQ(ExecutableOf("<plist><dict/></plist>"), "");
}

TEST_F(ContentTest, IconsAreDecoded) {
    const std::string icon = Read(std::string(KQ_DOCS) + "/../resources/images/ico_72_tessaly.png");
    EXPECT_TRUE(IsIcon(icon));
    std::string bad = icon;
    bad[bad.size() / 2] ^= 0x55;
    for (const std::string& other : {std::string("GIF89a"), icon.substr(0, icon.size() / 2), bad}) {
        EXPECT_FALSE(IsIcon(other));
    }
}

// The same is refused as by the validator, where there is one; beyond that, what starts another program.
TEST_F(ContentTest, DesktopEntries) {
    const std::string bare = "[Desktop Entry]\nType=Application\nName=X\n";
    const std::string exec = bare + "Exec=/o/Contents/MacOS/launcher";
    const std::string good = exec + "\n";
    const auto expect = [this](const std::string& text, bool isGood) {
        const std::string fault = DesktopEntryFault(text, "Contents/MacOS/launcher");
        EXPECT_EQ(fault.empty(), isGood) << text << fault;
        if (fs::exists("/usr/bin/desktop-file-validate")) {
            Write(At("x.desktop"), text);
            const Lines line = {"/usr/bin/desktop-file-validate", "--no-hints", At("x.desktop")};
            EXPECT_EQ(RunProcess(line, environment_).exitCode == 0, isGood) << text;
        }
    };
    expect("# a\n\n" + good + "Name[de]=Ü\nTerminal = false\nCategories=Network;X-Own;\nX-Any=1\n", true);
    expect(good + "Version=1.0\nKeywords=a;b;\nTryExec=/bin/true\nCategories=Network\nPath=/ü\nComment=a\\xb\n", true);
    expect(good + "Actions=new;\n\n[Desktop Action new]\nName=New\nExec=/o/Contents/MacOS/launcher --new\n", true);
    expect(exec + " %U --icon %i %%\n", true);
    expect(bare + "Exec=\"/opt/my X.app/Contents/MacOS/launcher\" %f\n", true);
    for (const char* more :
         {"Name=Y", "[Desktop Entry]", "[Group]", "no line", "Colour=red", "Bad_Key=1", "Terminal=maybe",
          "Terminal[de]=true", "Categories=Nonsense;", "Comment=\xff", "Version=9"}) {
        expect(good + more + "\n", false);
    }
    for (const char* more : {" %z", " %f %U", " > log"}) {
        expect(exec + more + "\n", false);
    }
    for (const std::string& text :
         {std::string(), "[Other]\nA=1\n" + good, good.substr(0, 16) + good.substr(33),
          bare + "Exec=\"/o/Contents/MacOS/launcher\n", bare + "Exec=\"/o/$HOME/Contents/MacOS/launcher\"\n"}) {
        expect(text, false);
    }
    for (const char* command :
         {"", "another", "launcher", "/o/Contents/MacOS/launcher2", "\"/o/Contents/MacOS\" launcher"}) {
        EXPECT_NE(DesktopEntryFault(bare + "Exec=" + command + "\n", "Contents/MacOS/launcher"), "") << command;
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
