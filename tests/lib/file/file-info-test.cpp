// What is told of an object and of how it is spelled, and listings, links and times.
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <map>

#include "file-op-test.h"
#include "volume.h"

namespace {

using FileInfoTest = FileOpTest;

TEST_F(FileInfoTest, PathsAsText) {
    const std::tuple<const char*, const char*, const char*> paths[] = {
        {"/a/b", "/a", "b"}, {"/a/b/", "/a/b", ""}, {"abc", "/", "abc"}, {"/abc", "/", "abc"},
        {"/", "/", ""},      {"", "/", ""},         {"a/b", "a", "b"},   {"//a", "/", "a"}};
    for (const auto& [path, parent, base] : paths) {
        EXPECT_EQ(parent, FSParentPath(path)) << path;
        EXPECT_EQ(base, FSBaseName(path)) << path;
    }
    const std::tuple<const char*, const char*, bool> pairs[] = {
        {"/a", "/ab", false},  {"/a", "/a/b", true},  {"/a", "/a", true}, {"/a/", "/a/b", false}, {"/a/", "/a/", true},
        {"/a/b", "/a", false}, {"/a", "/b/c", false}, {"", "/a", true},   {"", "a", false},       {"/", "/a", false}};
    for (const auto& [parent, child, result] : pairs) {
        EXPECT_EQ(result, FSIsParentFolder(parent, child)) << parent << " " << child;
    }
}

TEST_F(FileInfoTest, TheRecordIsThatOfLstat) {
    Write(At("regular"), "12345");
    fs::create_directory(At("directory"));
    fs::create_symlink("directory", At("link"));
    ASSERT_EQ(0, mkfifo(At("fifo").c_str(), 0604));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, At("socket").c_str());
    ASSERT_EQ(0, bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)));
    close(socket);
    const std::pair<std::string, std::int32_t> cases[] = {{At("regular"), 1}, {At("directory"), 2}, {At("link"), 3},
                                                          {At("fifo"), 6},    {At("socket"), 7},    {"/dev/null", 5},
                                                          {"/", 2},           {At("absent"), 0}};
    for (const auto& [path, type] : cases) {
        struct stat status = {};
        EXPECT_EQ(type == 0, lstat(path.c_str(), &status) != 0);
        _FILE_INFO_tag info;
        info.type = info.mtime = info.uid = info.gid = info.mode = 9;
        info.size = info.dev = 9;
        EXPECT_EQ(0, GetFileInfo(path, info)) << path;
        EXPECT_EQ(type != 0, info.exist);
        EXPECT_EQ(path, info.path);
        EXPECT_EQ(FSBaseName(path), info.name);
        EXPECT_EQ(type, info.type) << path;
        EXPECT_EQ(status.st_mtime, info.mtime);
        EXPECT_EQ(status.st_size, info.size);
        EXPECT_EQ(status.st_uid, static_cast<uid_t>(info.uid));
        EXPECT_EQ(status.st_gid, static_cast<gid_t>(info.gid));
        EXPECT_EQ(status.st_mode, static_cast<mode_t>(info.mode));
        EXPECT_EQ(status.st_dev, static_cast<dev_t>(info.dev));
        // A listing tells the same.
        DIR_HANDLE handle;
        DIR_ENTRY entry;
        ASSERT_EQ(0, FSOpenDir(folder(), 1, handle));
        for (int result = 1; path[1] == 't' && (result = FSReadDir(handle, entry)) == 1;) {
            if (At(entry.name) == path) {
                EXPECT_EQ(type, entry.type);
                EXPECT_EQ(info.size, entry.size);
                EXPECT_EQ(info.mtime, entry.mtime);
            }
        }
        EXPECT_EQ(0, FSReadDir(handle, entry) & (path[1] == 't' ? 1 : 0)) << "still at the end";
        FSCloseDir(handle);
        EXPECT_EQ(nullptr, handle.dir);
    }
    _FILE_INFO_tag info;
    info.size = 9;
    EXPECT_EQ("", LogOf([&] { EXPECT_EQ(-1, GetFileInfo(At("regular/below"), info)); }));
    EXPECT_EQ(9, info.size) << "as it was";
}

TEST_F(FileInfoTest, ExactSpelling) {
    Write(At("dir/file"), "12345");
    Write(At("dir/e\u0301"), "");
    Write(At("dir/\xFF"), "");
    fs::create_symlink("dir", At("to-dir"));
    fs::create_symlink("nowhere", At("dangling"));
    const std::tuple<std::string, bool, bool> cases[] = {
        {At("dir/file"), true, true},     {At("dangling"), true, true},         {At("dir/e\u0301"), true, true},
        {At("dir/\u00E9"), false, false},  // another name on a volume that keeps the forms apart
        {At("to-dir"), true, true},       {At("to-dir/file"), true, false},     {At("dir/"), true, false},
        {At("to-dir/\xFF"), true, true},  // not UTF-8: both sides are "" in NFC
        {At("dir/FILE"), false, false},   {At("dir/file/below"), false, false}, {"", false, false}};
    for (const auto& [path, exists, existsExactly] : cases) {
        StandardErrorOf([&, &in = path, &any = exists, &exact = existsExactly] {
            EXPECT_EQ(any, IsFileExist(in, false)) << in;
            EXPECT_EQ(exact, IsFileExist(in, true)) << in;
        });
    }
    _FILE_INFO_tag info;
    info.exist = true;
    info.size = 9;
    EXPECT_EQ(-1, FSStat("", info, false));
    EXPECT_EQ(0, FSStat(At("to-dir/file"), info, true));
    EXPECT_FALSE(info.exist);
    EXPECT_EQ(9, info.size) << "the rest stays";
    LogUpTo(Logger::LEVEL_DEBUG);
    const std::string found = "DEBUG Input file path = [" + At("to-dir/file") +
                              "].\nDEBUG FSRefMakePath outTargetPath path = [" + At("dir/file") + "].\n";
    EXPECT_EQ(found + found, LogOf([&] { EXPECT_EQ(0, FSStat(At("to-dir/file"), info, false)); }));
    EXPECT_EQ(At("dir/file"), info.path);
    EXPECT_EQ(5, info.size);
    // Below its first folder a walk asks nobody for spellings; the log tells them all the same.
    Write(At("dir/sub/x"), "");
    std::string expected;
    for (const char* name : {"dir/sub", "dir/sub/x"}) {
        expected += "DEBUG Input file path = [" + At("to-") + name + "].\nDEBUG FSRefMakePath outTargetPath path = [" +
                    At(name) + "].\n";
    }
    EXPECT_EQ(expected, LogOf([&] { EXPECT_EQ(0, FSRemove(At("to-dir/sub"), false)); }));
}

TEST_F(FileInfoTest, SpellingThatCantBeFound) {
    ASSERT_EQ(0, chdir(folder().c_str()));
    const std::string name(250, 'd');
    for (int level = 0; level < 17; ++level) {
        ASSERT_TRUE(fs::create_directory(name) && chdir(name.c_str()) == 0);
    }
    std::ofstream("file") << "12345";
    _FILE_INFO_tag info;
    EXPECT_EQ("ERROR FSPathMakeRef: 36\n", LogOf([&] { EXPECT_EQ(-1, GetFileInfo("file", info)); }));
    EXPECT_EQ("file", info.path);
    EXPECT_EQ(5, info.size);
    LogOf([] { EXPECT_FALSE(IsFileExist("file", false)); });
    ASSERT_EQ(0, chdir("/"));
}

TEST_F(FileInfoTest, VolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    Write(At("volume/Sub/File"), "12345");
    Write(At("volume/E\u0301"), "");
    const std::tuple<const char*, bool> cases[] = {
        {"sub/file", false}, {"sub/File", false}, {"Sub/File", true}, {"e\u0301", false}, {"E\u0301", true}};
    for (const auto& [name, exactly] : cases) {
        EXPECT_TRUE(IsFileExist(At("volume/") + name, false)) << name;
        EXPECT_EQ(exactly, IsFileExist(At("volume/") + name, true)) << name;
    }
    EXPECT_EQ(-2, FSRename(At("volume/sub/file"), At("volume/moved"), true));
    EXPECT_EQ(0, FSRename(At("volume/sub/file"), At("volume/moved"), false));
    // A listing there goes on while its folder shrinks.
    for (int number = 0; number < 300; ++number) {
        Write(At("volume/Sub/" + std::to_string(number % 3) + "/File" + std::to_string(number)), "x");
    }
    EXPECT_EQ(0, FSRemove(At("volume/sub"), false));
    EXPECT_EQ(2, std::distance(fs::directory_iterator(At("volume")), fs::directory_iterator()));
}

TEST_F(FileInfoTest, LinksTimesAndOwners) {
    Write(At("file"), "");
    fs::create_symlink("file", At("link"));
    std::string path = At("link");
    EXPECT_EQ(0, FSGetRealPath(path));
    EXPECT_EQ(At("file"), path);
    path = At("absent");
    EXPECT_EQ(-1, FSGetRealPath(path));
    EXPECT_EQ(At("absent"), path);
    for (const std::size_t length : {1U, 1023U, 1024U, 2000U}) {
        path = "old";
        EXPECT_EQ(0, FSCreateSymbolicLink(std::string(length, 't'), At(std::to_string(length))));
        const std::string log =
            LogOf([&] { EXPECT_EQ(length < 1024 ? 0 : -1, FSReadSymbolicLink(At(std::to_string(length)), path)); });
        EXPECT_EQ(length < 1024 ? std::string(length, 't') : "old", path);
        EXPECT_EQ(length < 1024, log.empty());
    }
    // Of a link its own time and owner; beyond 32 bits the record has the low ones.
    struct stat before = {};
    struct stat after = {};
    ASSERT_EQ(0, stat(At("file").c_str(), &before));
    EXPECT_EQ(0, FSUTime(At("link"), 1000, 2000));
    EXPECT_EQ(0, FSChown(At("link"), getuid(), getgid()));
    _FILE_INFO_tag info;
    EXPECT_EQ(0, GetFileInfo(At("link"), info));
    EXPECT_EQ(2000, info.mtime);
    ASSERT_EQ(0, stat(At("file").c_str(), &after));
    EXPECT_EQ(before.st_mtime, after.st_mtime);
    EXPECT_EQ(0, FSUTime(At("file"), 1000, 5));
    EXPECT_TRUE(FSTimeEqual(5, 5));
    EXPECT_FALSE(FSTimeEqual(5, 5 + (std::int64_t{1} << 32)));
    // Owner, mode and device take no part in a comparison.
    _FILE_INFO_tag other = info;
    other.uid = other.gid = other.mode = 1;
    other.dev = 1;
    EXPECT_TRUE(info == other && !(info != other));
    for (const auto& change : std::vector<std::function<void()>>{
             [&] { other.exist = false; }, [&] { other.size = 9; }, [&] { other.mtime = 9; }, [&] { other.type = 9; },
             [&] { other.path = "p"; }, [&] { other.name = "n"; }}) {
        other = info;
        change();
        EXPECT_TRUE(info != other && !(info == other));
    }
}

}  // namespace
