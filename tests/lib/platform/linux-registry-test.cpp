#include "platform/application-registry.h"
#include "platform/linux/desktop-entry.h"
#include "test-folder.h"

namespace {

TEST(DesktopEntryTest, ProgramOfAnExecValue) {
    const std::pair<const char*, const char*> values[] = {{"  /a/b --flag %U", "/a/b"},
                                                          {"\"/a b/c\" %f", "/a b/c"},
                                                          {"\"/a \\\\\\\\ b/\\\\\"c\\\\$\\\\`\"", "/a \\ b/\"c$`"},
                                                          {"/with%%percent", "/with%percent"},
                                                          {"/a\\sb", "/a"},
                                                          {"\"/a\\tb\\nc\\rd\\xe\"", "/a\tb\nc\rdxe"},
                                                          {"\"/unclosed quote", "/unclosed quote"},
                                                          {"", ""}};
    for (const auto& [value, program] : values) {
        EXPECT_EQ(platform::ProgramOfExec(QString::fromUtf8(value)).toStdString(), program) << value;
    }
}

class LinuxRegistryTest : public FolderTest {
protected:
    LinuxRegistryTest() { qputenv("XDG_DATA_HOME", At("data").c_str()); }

    std::string Entry(std::size_t at) const { return At("data/applications/" + std::to_string(at) + ".desktop"); }
    int Forget() const { return platform::ForgetApplication(QString::fromStdString(At("My Apps/K.app"))); }

    // Puts a tool of this name alone in the PATH.
    void InstallTool(const std::string& script) const {
        Write(At("bin/update-desktop-database"), "#!/bin/sh\n" + script);
        fs::permissions(At("bin/update-desktop-database"), static_cast<fs::perms>(0755));
        qputenv("PATH", At("bin").c_str());
    }
};

TEST_F(LinuxRegistryTest, DropsTheEntriesOfTheFolderAndNoOther) {
    InstallTool("echo \"$1\" >> '" + At("refreshed") + "'\n");
    EXPECT_EQ(Forget(), 0) << "nothing is registered, there is not even a folder";
    const std::string head = "[Desktop Entry]\nType=Application\nName=x\n";
    const std::string app = At("My Apps/K.app");
    const std::string ours = head + "Exec=\"" + app + "/Contents/MacOS/cloud-quay-ui\" %U\n";
    const std::pair<std::string, bool> entries[] = {
        {ours, true},
        {head + "TryExec=" + app + "/bin/x\nExec=x\n", true},
        {head + "Exec=\"" + app + "/../K.app//bin/x\"\n", true},
        {head + "Exec=\"" + app + "2/bin/x\"\n", false},
        {head + "Exec=/usr/bin/open \"" + app + "/bin/x\"\n", false},
        {head + "Exec=x\n[Desktop Action a]\nExec=\"" + app + "/bin/x\"\n", false},
        {"[Something Else]\nExec=\"" + app + "/bin/x\"\n", false},
        {head + "TryExec=/usr/bin/x\nIcon=" + app + "/x.png\n#Exec=" + app + "/bin/x\n", false}};
    for (std::size_t at = 0; at < std::size(entries); ++at) {
        Write(Entry(at), entries[at].first);
    }
    Write(At("data/applications/not-an-entry.txt"), ours);
    EXPECT_EQ(Forget() + Forget(), 0);
    for (std::size_t at = 0; at < std::size(entries); ++at) {
        EXPECT_NE(fs::exists(Entry(at)), entries[at].second) << entries[at].first;
    }
    EXPECT_TRUE(fs::exists(At("data/applications/not-an-entry.txt")));
    EXPECT_EQ(Read(At("refreshed")), At("data/applications") + "\n") << "once, as the second time nothing is dropped";

    // The status is the tool's, and no tool is no failure.
    for (const auto& [script, status] : {std::pair("exit 3\n", 3), {"kill -9 $$\n", -2}, {nullptr, 0}}) {
        script != nullptr ? InstallTool(script) : static_cast<void>(fs::remove_all(At("bin")));
        Write(Entry(0), ours);
        EXPECT_EQ(Forget(), status);
    }
}

TEST_F(LinuxRegistryTest, WhatCannotBeStartedIsANo) {
    InstallTool("");
    Write(At("text"), "no program");
    Write(At("bin/update-desktop-database"), "#!/no/such/interpreter\n");
    for (const char* name : {"absent", "text", "bin/update-desktop-database", "bin"}) {
        EXPECT_FALSE(platform::StartApplication(QString::fromStdString(folder()), QString::fromStdString(At(name))));
    }
}

}  // namespace
