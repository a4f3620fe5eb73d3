#include <unistd.h>

#include "file-op-test.h"
#include "volume.h"

namespace {

using VolumeProbeTest = FileOpTest;
using LinkTest = FileOpTest;
using AttributeTest = FileOpTest;

TEST_F(VolumeProbeTest, LocalAndAbsent) {
    EXPECT_EQ("", LogOf([&] {
                  for (const std::string& path : {folder(), std::string("/"), std::string("/proc")}) {
                      EXPECT_FALSE(isMountPoint(path)) << path;
                      EXPECT_FALSE(IsMSDOS(path)) << path;
                  }
              }));
    const std::string rest = ": Failed to get file system info '" + At("absent") + "'. No such file or directory\n";
    EXPECT_EQ("ERROR isMountPoint" + rest, LogOf([&] { EXPECT_FALSE(isMountPoint(At("absent"))); }));
    EXPECT_EQ("ERROR IsSupportLargeFile" + rest, LogOf([&] { EXPECT_FALSE(IsMSDOS(At("absent"))); }));
}

TEST_F(VolumeProbeTest, RealFat) {
    const Volume volume(Volume::Fat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ("WARNING Detect a MSDOS platform for path '" + At("volume") + "'.\n",
                  LogOf([&] { EXPECT_TRUE(IsMSDOS(At("volume"))); }));
    }
    EXPECT_FALSE(isMountPoint(At("volume")));
}

TEST_F(LinkTest, RealPath) {
    Write(At("dir/file"), "");
    fs::create_symlink("dir/file", At("link"));
    fs::create_symlink("nowhere", At("dangling"));
    LogEverything();
    std::string path = At("link");
    EXPECT_EQ("DEBUG  org path [" + At("link") + "]\nDEBUG  get full path [" + At("dir/file") + "]\n",
              LogOf([&] { EXPECT_EQ(0, FSGetRealPath(path)); }));
    EXPECT_EQ(At("dir/file"), path);
    for (const std::string& absent : {At("absent"), At("dangling"), std::string()}) {
        path = absent;
        EXPECT_EQ("DEBUG  org path [" + absent + "]\n", LogOf([&] { EXPECT_EQ(-1, FSGetRealPath(path)); }));
        EXPECT_EQ(absent, path);
    }
}

TEST_F(LinkTest, CreateAndRead) {
    for (const std::size_t length : {1U, 1022U, 1023U, 1024U, 1025U, 2000U}) {
        const std::string path = At("link" + std::to_string(length));
        const std::string target(length, 't');
        std::string read = "old";
        const std::string log = LogOf([&] {
            EXPECT_EQ(0, FSCreateSymbolicLink(target, path));
            EXPECT_EQ(length < 1024 ? 0 : -1, FSReadSymbolicLink(path, read)) << length;
        });
        EXPECT_EQ(length < 1024 ? target : "old", read);
        EXPECT_EQ(length < 1024 ? "" : "ERROR FSReadSymbolicLink: path of '" + path + "' is more than 1024\n", log);
    }
    Write(At("file"), "");
    std::string read = "old";
    EXPECT_EQ("ERROR FSReadSymbolicLink: Failed to read symbolic link '" + At("file") +
                  "' (code: 22, msg: Invalid argument)\n",
              LogOf([&] { EXPECT_EQ(-1, FSReadSymbolicLink(At("file"), read)); }));
    EXPECT_EQ("old", read);
    EXPECT_EQ("ERROR FSCreateSymbolicLink: Failed to create symbolic link 'x' -> '" + At("file") +
                  "' (code: 17, msg: File exists)\n",
              LogOf([&] { EXPECT_EQ(-1, FSCreateSymbolicLink("x", At("file"))); }));
}

TEST_F(AttributeTest, OwnerOfALinkItself) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root gives files away";
    }
    Write(At("file"), "");
    fs::create_symlink("file", At("link"));
    EXPECT_EQ(0, FSChown(At("link"), 4321, 1234));
    struct stat link = {};
    struct stat file = {};
    ASSERT_EQ(0, lstat(At("link").c_str(), &link));
    ASSERT_EQ(0, lstat(At("file").c_str(), &file));
    EXPECT_EQ(4321U, link.st_uid);
    EXPECT_EQ(1234U, link.st_gid);
    EXPECT_EQ(0U, file.st_uid);
    EXPECT_EQ(0U, file.st_gid);
}

TEST_F(AttributeTest, ModeThroughALink) {
    Write(At("file"), "");
    fs::create_symlink("file", At("link"));
    EXPECT_EQ(0, FSChmod(At("link"), 0604));
    EXPECT_EQ(0604U, ModeOf(At("file")));
    const std::string rest = " '" + At("absent") + "' (code: 2, msg: No such file or directory)\n";
    EXPECT_EQ("ERROR FSChmod: Failed to chmod" + rest, LogOf([&] { EXPECT_EQ(-1, FSChmod(At("absent"), 0600)); }));
    EXPECT_EQ("ERROR FSChown: Failed to chown" + rest, LogOf([&] { EXPECT_EQ(-1, FSChown(At("absent"), 0, 0)); }));
}

}  // namespace
