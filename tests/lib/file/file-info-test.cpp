#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <fstream>

#include "file-op-test.h"
#include "volume.h"

namespace {

using FileInfoTest = FileOpTest;

TEST_F(FileInfoTest, PathsAsText) {
    const struct {
        const char* path;
        const char* parent;
        const char* base;
    } cases[] = {{"/a/b", "/a", "b"}, {"/a/b/", "/a/b", ""}, {"abc", "/", "abc"}, {"/abc", "/", "abc"},
                 {"/", "/", ""},      {"", "/", ""},         {"a/b", "a", "b"},   {"//a", "/", "a"}};
    for (const auto& one : cases) {
        EXPECT_EQ(one.parent, FSParentPath(one.path)) << one.path;
        EXPECT_EQ(one.base, FSBaseName(one.path)) << one.path;
    }
}

TEST_F(FileInfoTest, RecordIsThatOfLstat) {
    Write(At("regular"), "12345");
    fs::create_directory(At("directory"));
    fs::create_symlink("directory", At("link"));
    ASSERT_EQ(0, mkfifo(At("fifo").c_str(), 0604));
    sockaddr_un address = {AF_UNIX, ""};
    ASSERT_EQ(0, chdir(folder().c_str()));  // a socket's path is short
    std::strcpy(address.sun_path, "socket");
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(0, bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)));
    close(socket);
    const struct {
        std::string path;
        std::int32_t type;
    } cases[] = {{At("regular"), 1}, {At("directory"), 2}, {At("link"), 3}, {At("fifo"), 6},
                 {At("socket"), 7},  {"/dev/null", 5},     {"/", 2}};
    for (const auto& one : cases) {
        struct stat status = {};
        ASSERT_EQ(0, lstat(one.path.c_str(), &status));
        _FILE_INFO_tag info;
        EXPECT_EQ(0, GetFileInfo(one.path, info)) << one.path;
        EXPECT_TRUE(info.exist);
        EXPECT_EQ(one.path, info.path);
        EXPECT_EQ(FSBaseName(one.path), info.name);
        EXPECT_EQ(one.type, info.type) << one.path;
        EXPECT_EQ(status.st_mtime, info.mtime);
        EXPECT_EQ(status.st_size, info.size);
        EXPECT_EQ(status.st_uid, static_cast<uid_t>(info.uid));
        EXPECT_EQ(status.st_gid, static_cast<gid_t>(info.gid));
        EXPECT_EQ(status.st_mode, static_cast<mode_t>(info.mode));
        EXPECT_EQ(status.st_dev, static_cast<dev_t>(info.dev));
    }
    ASSERT_EQ(0, chdir("/"));
}

TEST_F(FileInfoTest, AbsentAndUnreadable) {
    Write(At("file"), "");
    _FILE_INFO_tag old;
    old.path = "old";
    old.exist = true;
    old.type = old.mtime = old.uid = old.gid = old.mode = 9;
    old.size = old.dev = 9;

    _FILE_INFO_tag info = old;
    EXPECT_EQ("", LogOf([&] { EXPECT_EQ(-1, GetFileInfo(At("file/below"), info)); }));
    EXPECT_EQ(old, info);
    EXPECT_EQ(0, GetFileInfo(At("absent"), info));
    _FILE_INFO_tag absent;
    absent.path = At("absent");
    absent.name = "absent";
    EXPECT_EQ(absent, info);
    EXPECT_EQ(0, info.uid | info.gid | info.mode | info.dev);
}

TEST_F(FileInfoTest, SpellingThatCantBeFound) {
    EnterAbyss();
    std::ofstream("file") << "12345";
    _FILE_INFO_tag info;
    EXPECT_EQ("ERROR FSPathMakeRef: 36\n", LogOf([&] { EXPECT_EQ(-1, GetFileInfo("file", info)); }));
    EXPECT_EQ("file", info.path);
    EXPECT_EQ(FILE_TYPE_REGULAR, info.type);
    EXPECT_EQ(5, info.size);
    LogOf([] { EXPECT_FALSE(IsFileExist("file", false)); });
    ASSERT_EQ(0, chdir("/"));
}

TEST_F(FileInfoTest, LookupIsTold) {
    Write(At("file"), "");
    LogEverything();
    _FILE_INFO_tag info;
    info.path = At("./file");  // may be the argument as well
    EXPECT_EQ("DEBUG Input file path = [" + At("./file") + "].\nDEBUG FSRefMakePath outTargetPath path = [" +
                  At("file") + "].\n",
              LogOf([&] { EXPECT_EQ(0, GetFileInfo(info.path, info)); }));
    EXPECT_EQ(At("file"), info.path);
}

TEST_F(FileInfoTest, ExactSpelling) {
    Write(At("dir/file"), "12345");
    Write(At("dir/e\u0301"), "");
    Write(At("dir/\xFF"), "");
    fs::create_symlink("dir", At("to-dir"));
    fs::create_symlink("nowhere", At("dangling"));
    const struct {
        std::string path;
        bool exists;
        bool existsExactly;
    } cases[] = {
        {At("dir/file"), true, true},     {At("dangling"), true, true},         {At("dir/e\u0301"), true, true},
        {At("dir/\u00E9"), false, false},  // another name on a volume that keeps the forms apart
        {At("to-dir"), true, true},       {At("to-dir/file"), true, false},     {At("dir/"), true, false},
        {At("dir//file"), true, false},   {At("to-dir/\xFF"), true, true},  // not UTF-8: both sides are "" in NFC
        {At("dir/FILE"), false, false},   {At("dir/file/below"), false, false}, {"", false, false},
    };
    for (const auto& one : cases) {
        StandardErrorOf([&] {
            EXPECT_EQ(one.exists, IsFileExist(one.path, false)) << one.path;
            EXPECT_EQ(one.existsExactly, IsFileExist(one.path, true)) << one.path;
        });
    }
    _FILE_INFO_tag info;
    info.exist = true;
    info.size = 9;
    EXPECT_EQ(-1, FSStat("", info, false));
    EXPECT_EQ(0, FSStat(At("to-dir/file"), info, true));
    EXPECT_FALSE(info.exist);
    EXPECT_EQ(9, info.size) << "the rest stays";
    EXPECT_EQ(0, FSStat(At("to-dir/file"), info, false));
    EXPECT_TRUE(info.exist);
    EXPECT_EQ(5, info.size);
    EXPECT_EQ(At("dir/file"), info.path);
}

TEST_F(FileInfoTest, VolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 8 << 20);
    KQ_NEED(volume);
    Write(At("volume/Sub/File"), "12345");
    Write(At("volume/E\u0301"), "");
    EXPECT_TRUE(IsFileExist(At("volume/sub/file"), false));
    EXPECT_FALSE(IsFileExist(At("volume/sub/file"), true));
    EXPECT_FALSE(IsFileExist(At("volume/sub/File"), true)) << "a parent";
    EXPECT_TRUE(IsFileExist(At("volume/Sub/File"), true));
    EXPECT_TRUE(IsFileExist(At("volume/e\u0301"), false));
    EXPECT_FALSE(IsFileExist(At("volume/e\u0301"), true));
    EXPECT_TRUE(IsFileExist(At("volume/E\u0301"), true)) << "a name stored decomposed";
    _FILE_INFO_tag info;
    EXPECT_EQ(0, FSStat(At("volume/SUB/FILE"), info, false));
    EXPECT_EQ(At("volume/Sub/File"), info.path);
    EXPECT_EQ("File", info.name);
    EXPECT_EQ(-2, FSRename(At("volume/sub/file"), At("volume/moved"), true));
    EXPECT_EQ(0, FSRename(At("volume/sub/file"), At("volume/moved"), false));
}

TEST_F(FileInfoTest, Times) {
    Write(At("file"), "");
    fs::create_symlink("file", At("link"));
    _FILE_INFO_tag before;
    _FILE_INFO_tag info;
    ASSERT_EQ(0, GetFileInfo(At("file"), before));
    EXPECT_EQ(0, FSUTime(At("link"), 1000, 2000));
    ASSERT_EQ(0, GetFileInfo(At("link"), info));
    EXPECT_EQ(2000, info.mtime);
    ASSERT_EQ(0, GetFileInfo(At("file"), info));
    EXPECT_EQ(before, info) << "what the link leads to";
    // Beyond 32 bits the record has the low ones.
    EXPECT_EQ(0, FSUTime(At("file"), 1000, (std::int64_t{1} << 32) + 5));
    struct stat status = {};
    ASSERT_EQ(0, stat(At("file").c_str(), &status));
    ASSERT_EQ(0, GetFileInfo(At("file"), info));
    EXPECT_EQ(static_cast<std::int32_t>(status.st_mtime), info.mtime);
    EXPECT_EQ("", LogOf([&] { EXPECT_EQ(-1, FSUTime(At("absent"), 0, 0)); }));
    EXPECT_TRUE(FSTimeEqual(5, 5));
    EXPECT_FALSE(FSTimeEqual(5, 5 + (std::int64_t{1} << 32)));
}

TEST_F(FileInfoTest, LockedIsRefusedByPermissions) {
    Write(At("file"), "");
    fs::permissions(folder(), fs::perms::all);
    fs::permissions(At("file"), fs::perms::none);
    AsOrdinaryUser([&] {
        EXPECT_TRUE(isFileLocked(At("file"), R_OK));
        EXPECT_FALSE(isFileLocked(At("file"), F_OK));
        EXPECT_FALSE(isFileLocked(At("absent"), R_OK));
        EXPECT_FALSE(isFileLocked(At("file/below"), R_OK));
        EXPECT_FALSE(hasFilePermission(At("file"), R_OK));
        EXPECT_TRUE(hasFilePermission(At("absent"), R_OK));
    });
}

TEST_F(FileInfoTest, Equality) {
    const _FILE_INFO_tag base;
    const auto equals = [&](auto field, auto value) {
        _FILE_INFO_tag other;
        other.*field = value;
        EXPECT_NE(base == other, base != other);
        return base == other;
    };
    for (const auto field : {&_FILE_INFO_tag::uid, &_FILE_INFO_tag::gid, &_FILE_INFO_tag::mode}) {
        EXPECT_TRUE(equals(field, 1));
    }
    EXPECT_TRUE(equals(&_FILE_INFO_tag::dev, 1));
    EXPECT_FALSE(equals(&_FILE_INFO_tag::exist, true));
    EXPECT_FALSE(equals(&_FILE_INFO_tag::size, 1));
    EXPECT_FALSE(equals(&_FILE_INFO_tag::mtime, 1));
    EXPECT_FALSE(equals(&_FILE_INFO_tag::type, 1));
    EXPECT_FALSE(equals(&_FILE_INFO_tag::path, "p"));
    EXPECT_FALSE(equals(&_FILE_INFO_tag::name, "n"));
}

}  // namespace
