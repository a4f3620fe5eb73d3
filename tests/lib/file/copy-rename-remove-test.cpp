#include <unistd.h>

#include <set>

#include "file-op-test.h"
#include "volume.h"

namespace {

using CopyTest = FileOpTest;
using RenameTest = FileOpTest;
using RemoveTest = FileOpTest;
using FsyncTest = FileOpTest;

TEST_F(CopyTest, ContentOfAnySize) {
    for (const std::size_t size : {0U, 1U, 8191U, 8192U, 8193U, 100000U}) {
        std::string bytes(size, '\0');
        for (std::size_t at = 0; at < size; ++at) {
            bytes[at] = static_cast<char>(at * 31 + at / 256);
        }
        Write(At("src"), bytes);
        EXPECT_EQ(0, FSCopy(At("src"), At("dst"), false, false));
        EXPECT_EQ(bytes, Read(At("dst"))) << size;
        EXPECT_TRUE(fs::exists(At("src")));
    }
    Write(At("dst"), "a longer text than the source has");
    Write(At("src"), "short");
    EXPECT_EQ(0, FSCopy(At("src"), At("dst"), true, false));
    EXPECT_EQ("short", Read(At("dst")));
    EXPECT_FALSE(fs::exists(At("src")));
}

TEST_F(CopyTest, Modes) {
    const struct {
        bool keepMode;
        mode_t sourceMode;
        mode_t mask;
        mode_t mode;
    } cases[] = {{false, 0700, 022, 0644}, {false, 0777, 027, 0640}, {true, 0751, 022, 0751}, {true, 0777, 027, 0750}};
    Write(At("src"), "text");
    for (const auto& one : cases) {
        fs::remove(At("dst"));
        chmod(At("src").c_str(), one.sourceMode);
        umask(one.mask);
        EXPECT_EQ(0, FSCopy(At("src"), At("dst"), false, one.keepMode));
        EXPECT_EQ(one.mode, ModeOf(At("dst")));
    }
    chmod(At("dst").c_str(), 0600);
    EXPECT_EQ(0, FSCopy(At("src"), At("dst"), false, true));
    EXPECT_EQ(0600U, ModeOf(At("dst"))) << "an existing file keeps its own";
    // A source under another spelling than its own counts as without a mode.
    fs::create_directory_symlink(folder(), At("here"));
    EXPECT_EQ(0, FSCopy(At("here/src"), At("bare"), false, true));
    EXPECT_EQ(0U, ModeOf(At("bare")));
}

TEST_F(CopyTest, LinksAreFollowed) {
    Write(At("target"), "text");
    fs::create_symlink("target", At("link"));
    EXPECT_EQ(0, FSCopy(At("link"), At("dst"), true, false));
    EXPECT_EQ("text", Read(At("dst")));
    EXPECT_FALSE(fs::is_symlink(At("link"))) << "the link is what a move removes";
    EXPECT_TRUE(fs::exists(At("target")));
}

TEST_F(CopyTest, Failures) {
    fs::create_directory(At("dir"));
    Write(At("file"), "text");
    const std::string absent = At("absent/x");
    EXPECT_EQ("ERROR CopyFile: open(" + absent + "): No such file or directory (2)\n",
              LogOf([&] { EXPECT_EQ(-1, FSCopy(absent, At("dst"), false, false)); }));
    EXPECT_FALSE(fs::exists(At("dst")));
    EXPECT_EQ("ERROR CopyFile: open(" + absent + "): No such file or directory (2)\n",
              LogOf([&] { EXPECT_EQ(-1, FSCopy(At("file"), absent, true, false)); }));
    EXPECT_TRUE(fs::exists(At("file")));
    EXPECT_EQ("ERROR CopyFile: read: Is a directory (21)\n",
              LogOf([&] { EXPECT_EQ(-1, FSCopy(At("dir"), At("dst"), false, false)); }));
    EXPECT_EQ("", Read(At("dst")));
    fs::permissions(folder(), fs::perms::all);
    AsOrdinaryUser([&] {
        Write(At("locked/file"), "text");
        fs::permissions(At("locked"), fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_EQ("", LogOf([&] { EXPECT_EQ(-1, FSCopy(At("locked/file"), At("copy"), true, false)); }));
        EXPECT_EQ("text", Read(At("copy"))) << "complete, though the source stays";
        EXPECT_EQ("text", Read(At("locked/file")));
        fs::permissions(At("locked"), fs::perms::owner_all);
    });
}

TEST_F(CopyTest, FullDisk) {
    const Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    Write(At("big"), std::string(200000, 'b'));
    EXPECT_EQ("ERROR CopyFile: write: No space left on device (28)\n",
              LogOf([&] { EXPECT_EQ(-2, FSCopy(At("big"), At("volume/big"), true, false)); }));
    EXPECT_TRUE(fs::exists(At("big")));
    EXPECT_GT(fs::file_size(At("volume/big")), 0U);
    LogOf([&] { EXPECT_EQ(-3, FSRename(At("big"), At("volume/again"), false)); });
    EXPECT_TRUE(fs::exists(At("big")));
}

TEST_F(RenameTest, OnOneVolume) {
    Write(At("file"), "text");
    Write(At("dir/sub/x"), "");
    Write(At("full/x"), "");
    fs::create_symlink("nowhere", At("link"));
    fs::create_directory_symlink(folder(), At("here"));
    const std::string tooLong(300, 'n');
    const struct {
        std::string from;
        std::string to;
        bool exactPath;
        int result;
    } cases[] = {
        {"", At("new"), false, -1},
        {At("file"), "", false, -1},
        {At("absent"), At("new"), false, -2},
        {At("file/below"), At("new"), false, -2},
        {At("here/file"), At("new"), true, -2},
        {At("file"), At(tooLong), false, -100},
        {At("file"), At("absent/new"), false, -3},
        {At("dir"), At("full"), false, -3},
        {At("dir"), At("dir/sub/below"), false, -3},
        {At("here/file"), At("new"), false, 0},
        {At("new"), At("file"), true, 0},
        {At("link"), At("new-link"), true, 0},
        {At("dir"), At("new-dir"), true, 0},
    };
    for (const auto& one : cases) {
        const std::string log = LogOf(
            [&] { EXPECT_EQ(one.result, FSRename(one.from, one.to, one.exactPath)) << one.from << " " << one.to; });
        EXPECT_EQ("", log);
        EXPECT_TRUE(one.result == 0 || !fs::exists(At("new")));
    }
    EXPECT_EQ("text", Read(At("file")));
    EXPECT_TRUE(fs::is_symlink(At("new-link")));
    EXPECT_TRUE(fs::exists(At("new-dir/sub/x")));
}

TEST_F(RenameTest, OverAVolumeBorder) {
    const Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
    KQ_NEED(volume);
    Write(At("file"), "text");
    chmod(At("file").c_str(), 0777);
    umask(027);
    EXPECT_EQ(0, FSRename(At("file"), At("volume/file"), true));
    EXPECT_EQ("text", Read(At("volume/file")));
    EXPECT_EQ(0640U, ModeOf(At("volume/file")));
    EXPECT_FALSE(fs::exists(At("file")));

    Write(At("dir/a/\u00E9"), "1");
    Write(At("dir/a/b/c"), "2");
    fs::create_directory(At("dir/empty"));
    EXPECT_EQ(0, FSRename(At("dir"), At("volume/dir"), true));
    EXPECT_EQ("1", Read(At("volume/dir/a/\u00E9")));
    EXPECT_EQ("2", Read(At("volume/dir/a/b/c")));
    EXPECT_TRUE(fs::is_directory(At("volume/dir/empty")));
    EXPECT_FALSE(fs::exists(At("dir")));

    fs::create_symlink("file", At("link"));
    ASSERT_EQ(0, mkfifo(At("fifo").c_str(), 0666));
    for (const char* name : {"link", "fifo"}) {
        EXPECT_EQ(-3, FSRename(At(name), At("volume/x"), false));
        EXPECT_TRUE(fs::exists(fs::symlink_status(At(name))));
        EXPECT_FALSE(fs::exists(fs::symlink_status(At("volume/x"))));
    }
    Write(At("dir/x"), "");
    EXPECT_EQ("ERROR FSMKDir: Create a folder but local file system is not directory '" + At("volume/file") + "' (1)\n",
              LogOf([&] { EXPECT_EQ(-3, FSRename(At("dir"), At("volume/file"), false)); }));
}

TEST_F(RenameTest, ChildThatFailsInTheMiddle) {
    const Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
    KQ_NEED(volume);
    std::set<std::string> names;
    for (int number = 0; number < 40; ++number) {
        names.insert("file" + std::to_string(number));
        Write(At("dir/sub/file" + std::to_string(number)), "x");
    }
    fs::create_symlink("nowhere", At("dir/sub/link"));
    EXPECT_EQ(-3, FSRename(At("dir"), At("volume/dir"), false));
    EXPECT_TRUE(fs::is_symlink(At("dir/sub/link")));
    EXPECT_FALSE(fs::is_symlink(At("volume/dir/sub/link")));
    for (const std::string& name : names) {
        EXPECT_NE(fs::exists(At("dir/sub/" + name)), fs::exists(At("volume/dir/sub/" + name))) << name;
    }
    // A second attempt, without what failed, takes the rest.
    fs::remove(At("dir/sub/link"));
    EXPECT_EQ(0, FSRename(At("dir"), At("volume/dir"), false));
    EXPECT_FALSE(fs::exists(At("dir")));
    for (const std::string& name : names) {
        EXPECT_TRUE(fs::exists(At("volume/dir/sub/" + name))) << name;
    }
}

TEST_F(RemoveTest, EachKind) {
    Write(At("kept/x"), "");
    Write(At("dir/a/b/c"), "");
    Write(At("dir/\xFF"), "");
    fs::create_directory_symlink(At("kept"), At("dir/a/link"));
    fs::create_directory_symlink(At("kept"), At("link"));
    fs::create_symlink("nowhere", At("dangling"));
    Write(At("file"), "");
    ASSERT_EQ(0, mkfifo(At("fifo").c_str(), 0666));
    for (const char* name : {"dir", "link", "dangling", "file", "fifo", "absent"}) {
        EXPECT_EQ(0, FSRemove(At(name), name[0] == 'd')) << name;
        EXPECT_FALSE(fs::exists(fs::symlink_status(At(name)))) << name;
    }
    EXPECT_TRUE(fs::exists(At("kept/x")));
    EXPECT_EQ("", LogOf([&] {
                  EXPECT_EQ(-1, FSRemove("", false));
                  EXPECT_EQ(-1, FSRemove(At("kept/x/below"), false));
                  EXPECT_EQ(-3, FSRemove("/proc/self/comm", false));
              }));
}

TEST_F(RemoveTest, FoldersOfOrdinaryUsers) {
    fs::permissions(folder(), fs::perms::all);
    AsOrdinaryUser([&] {
        Write(At("unlistable/x"), "");
        fs::permissions(At("unlistable"), fs::perms::owner_write | fs::perms::owner_exec);
        EXPECT_EQ(0, FSRemove(At("unlistable"), false)) << "as if it were removed";
        EXPECT_TRUE(fs::exists(At("unlistable/x")));
        Write(At("outer/locked/x"), "");
        fs::permissions(At("outer/locked"), fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_EQ(-3, FSRemove(At("outer"), false));
        EXPECT_TRUE(fs::exists(At("outer/locked/x")));
        // A folder that can't be listed leaves its parent not empty.
        Write(At("parent/unlistable/x"), "");
        fs::permissions(At("parent/unlistable"), fs::perms::none);
        EXPECT_EQ(-3, FSRemove(At("parent"), false));
        for (const char* name : {"unlistable", "outer/locked", "parent/unlistable"}) {
            fs::permissions(At(name), fs::perms::owner_all);
        }
    });
}

// Below the first folder nobody is asked for spellings; the log tells them all the same.
TEST_F(RemoveTest, LookupsAreTold) {
    Write(At("dir/sub/file"), "");
    fs::create_directory_symlink(folder(), At("here"));
    LogEverything();
    std::string expected;
    for (const char* name : {"dir", "dir/sub", "dir/sub/file"}) {
        expected += "DEBUG Input file path = [" + At("here/") + name +
                    "].\nDEBUG FSRefMakePath outTargetPath path = [" + At(name) + "].\n";
    }
    EXPECT_EQ(expected, LogOf([&] { EXPECT_EQ(0, FSRemove(At("here/dir"), false)); }));
}

// A listing there goes on while its folder shrinks.
TEST_F(RemoveTest, FolderOnAVolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 8 << 20);
    KQ_NEED(volume);
    for (int number = 0; number < 300; ++number) {
        Write(At("volume/Folder/Sub" + std::to_string(number % 3) + "/File" + std::to_string(number)), "x");
    }
    EXPECT_EQ(0, FSRemove(At("volume/folder"), false));
    // Under the first spelling the kernel may remember it for a second more.
    EXPECT_TRUE(fs::is_empty(At("volume")));
}

TEST_F(FsyncTest, Results) {
    Write(At("file"), "text");
    EXPECT_EQ("", LogOf([&] {
                  EXPECT_EQ(0, FSFsync(At("file")));
                  EXPECT_EQ(1, FSFsync(At("absent")));
              }));
    EXPECT_EQ("ERROR FSFsync: open(" + At("file/below") + "): Not a directory (20)\n",
              LogOf([&] { EXPECT_EQ(-1, FSFsync(At("file/below"))); }));
    EXPECT_EQ("ERROR FSFsync: fsync(/dev/null): Invalid argument (22)\n",
              LogOf([] { EXPECT_EQ(-1, FSFsync("/dev/null")); }));
}

}  // namespace
