#include <gtest/gtest.h>

#include <filesystem>

#include "platform/application-registry.h"
#include "platform/linux/desktop-entry.h"
#include "test-folder.h"

namespace fs = std::filesystem;

namespace {

TEST(DesktopEntryTest, ProgramOfAnExecValue) {
    const struct {
        const char* value;
        const char* program;
    } values[] = {
        {"/a/b --flag %U", "/a/b"},
        {"  /a/b", "/a/b"},
        {"\"/a b/c\" %f", "/a b/c"},
        {"\"/a \\\\\\\\ b/\\\\\"c\\\\$\\\\`\"", "/a \\ b/\"c$`"},
        {"/with%%percent", "/with%percent"},
        {"/a\\sb", "/a"},
        {"\"/unclosed quote", "/unclosed quote"},
        {"", ""},
    };
    for (const auto& entry : values) {
        EXPECT_EQ(platform::ProgramOfExec(QString::fromUtf8(entry.value)).toStdString(), entry.program) << entry.value;
    }
}

class LinuxRegistryTest : public FolderTest {
protected:
    LinuxRegistryTest() {
        qputenv("XDG_DATA_HOME", At("data").c_str());
        path_ = qgetenv("PATH");
    }
    ~LinuxRegistryTest() override {
        qunsetenv("XDG_DATA_HOME");
        qputenv("PATH", path_);
    }

    std::string Entry(const std::string& name) const { return At("data/applications/" + name + ".desktop"); }
    int Forget() const { return platform::ForgetApplication(QString::fromStdString(At("My Apps/K.app"))); }

    // Puts a tool of this name first in the PATH.
    void InstallTool(const std::string& script) const {
        Write(At("bin/update-desktop-database"), "#!/bin/sh\n" + script);
        fs::permissions(At("bin/update-desktop-database"), static_cast<fs::perms>(0755));
        qputenv("PATH", QByteArray(At("bin").c_str()) + ":" + path_);
    }

    QByteArray path_;
};

TEST_F(LinuxRegistryTest, DropsTheEntriesOfTheFolderAndNoOther) {
    InstallTool("echo \"$1\" > '" + At("refreshed") + "'\n");
    EXPECT_EQ(Forget(), 0) << "nothing is registered, there is not even a folder";
    const std::string head = "[Desktop Entry]\nType=Application\nName=x\n";
    const std::string app = At("My Apps/K.app");
    Write(Entry("ours"), head + "Exec=\"" + app + "/Contents/MacOS/cloud-quay-ui\" %U\n");
    Write(Entry("ours too"), head + "TryExec=" + app + "/bin/x\nExec=x\n");
    Write(Entry("by way of"), head + "Exec=\"" + app + "/../K.app//bin/x\"\n");
    Write(Entry("other"), head + "Exec=\"" + app + "2/bin/x\"\n");
    Write(Entry("argument"), head + "Exec=/usr/bin/open \"" + app + "/bin/x\"\n");
    Write(Entry("action"), head + "Exec=x\n[Desktop Action a]\nExec=\"" + app + "/bin/x\"\n");
    Write(Entry("other group"), "[Something Else]\nExec=\"" + app + "/bin/x\"\n");
    Write(Entry("comment"), head + "#Exec=\"" + app + "/bin/x\"\n");
    Write(At("data/applications/not-an-entry.txt"), "Exec=\"" + app + "/bin/x\"\n");
    EXPECT_EQ(Forget(), 0);
    for (const char* name : {"ours", "ours too", "by way of"}) {
        EXPECT_FALSE(fs::exists(Entry(name))) << name;
    }
    for (const char* name : {"other", "argument", "action", "other group", "comment"}) {
        EXPECT_TRUE(fs::exists(Entry(name))) << name;
    }
    EXPECT_TRUE(fs::exists(At("data/applications/not-an-entry.txt")));
    EXPECT_EQ(Read(At("refreshed")), At("data/applications") + "\n");

    // Nothing dropped, nothing refreshed.
    fs::remove(At("refreshed"));
    EXPECT_EQ(Forget(), 0);
    EXPECT_FALSE(fs::exists(At("refreshed")));
}

TEST_F(LinuxRegistryTest, TheStatusIsTheToolsAndNoToolIsNoFailure) {
    const std::string entry = "[Desktop Entry]\nExec=\"" + At("My Apps/K.app") + "/x\"\n";
    InstallTool("exit 3\n");
    Write(Entry("ours"), entry);
    EXPECT_EQ(Forget(), 3);
    qputenv("PATH", At("empty").c_str());
    Write(Entry("ours"), entry);
    EXPECT_EQ(Forget(), 0);
}

TEST_F(LinuxRegistryTest, WhatCannotBeStartedIsANo) {
    const auto start = [&](const std::string& name) {
        return platform::StartApplication(QString::fromStdString(folder()), QString::fromStdString(At(name)));
    };
    EXPECT_FALSE(start("absent"));
    Write(At("text"), "no program");
    EXPECT_FALSE(start("text"));
    Write(At("bad"), "#!/no/such/interpreter\n");
    fs::permissions(At("bad"), static_cast<fs::perms>(0755));
    EXPECT_FALSE(start("bad"));
    fs::create_directories(At("folder"));
    EXPECT_FALSE(start("folder"));
}

}  // namespace
