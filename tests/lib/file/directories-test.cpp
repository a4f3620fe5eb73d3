#include <unistd.h>

#include <cerrno>
#include <map>

#include "file-op-test.h"
#include "file/internal.h"

namespace {

using MakeFolderTest = FileOpTest;
using ListingTest = FileOpTest;

TEST_F(MakeFolderTest, Results) {
    Write(At("file"), "");
    fs::create_directory(At("dir"));
    fs::create_directory_symlink("dir", At("to-dir"));
    fs::create_symlink("nowhere", At("dangling"));
    const std::string fileInfo = "ERROR FSMKDir: Failed to to file info '";
    const std::string noFolder = "ERROR FSMKDir: Create a folder but local file system is not directory '";
    const struct {
        std::string path;
        bool recursive;
        int result;
        std::string log;
    } cases[] = {
        {"", true, -1, ""},
        {"/", false, 0, ""},
        {"/", true, 0, ""},
        {At("dir"), false, 0, ""},
        {At("dir/"), true, 0, ""},
        {At("file"), true, -1, noFolder + At("file") + "' (1)\n"},
        {At("to-dir"), false, -1, noFolder + At("to-dir") + "' (3)\n"},
        {At("dangling"), true, -1, noFolder + At("dangling") + "' (3)\n"},
        {At("file/a/b"), true, -1, fileInfo + At("file/a/b") + "'\n"},
        {At("file/a"), false, -1, fileInfo + At("file/a") + "'\n"},
        {At("no/a"), false, -2, "ERROR path = " + At("no/a") + " errno : No such file or directory\n"},
        {At("one"), false, 0, ""},
        {At("1/2/3"), true, 0, ""},
        {At("4//5/6/"), true, 0, ""},
        {At("to-dir/in/side"), true, 0, ""},
        {"/proc/no/a", true, -2, "ERROR path = /proc/no/a errno : No such file or directory\n"},
    };
    for (const auto& one : cases) {
        int result = 99;
        int error = 0;
        EXPECT_EQ(one.log, LogOf([&] {
                      result = FSMKDir(one.path, one.recursive);
                      error = errno;
                  }))
            << one.path;
        EXPECT_EQ(one.result, result) << one.path;
        if (result == -2) {
            EXPECT_EQ(ENOENT, error) << one.path;
        }
        EXPECT_EQ(one.result == 0, !one.path.empty() && fs::is_directory(one.path) && !fs::is_symlink(one.path))
            << one.path;
    }
    EXPECT_TRUE(fs::is_directory(At("dir/in/side")));
    EXPECT_EQ(0755U, ModeOf(At("1/2")));
    ASSERT_EQ(0, chdir(folder().c_str()));
    EXPECT_EQ(0, FSMKDir("relative/a", true));
    EXPECT_TRUE(fs::is_directory(At("relative/a")));
    ASSERT_EQ(0, chdir("/"));
}

TEST_F(MakeFolderTest, Walk) {
    Write(At("file"), "");
    Write(At("replaced"), "");
    fs::create_directory_symlink("nowhere", At("dangling"));
    const std::string isFile =
        "INFO FSMKDirP: path: " + At("file") + " is existing file or symbolic link pointed to file\n";
    const std::string inTheMiddle = "INFO FSMKDirP: path: " + At("file") + " is symbolic link pointed to folder\n";
    const struct {
        std::string path;
        bool replaceFile;
        int error;           // 0: a success
        std::string walked;  // up to where the walk ended
        std::string log;
    } cases[] = {
        {"/", false, 0, "/", ""},
        {"//", false, 0, "/", ""},
        {At("a/b/c"), false, 0, At("a/b/c"), ""},
        {At("d//e/"), false, 0, At("d//e"), ""},
        {At("file"), false, EEXIST, At("file"), isFile},
        {At("file/"), false, EEXIST, At("file"), isFile},
        {At("file/f/g"), false, ENOTDIR, At("file/f"), inTheMiddle},
        {At("dangling/x"), false, EEXIST, At("dangling"), ""},
        {At("replaced/h"), true, 0, At("replaced/h"), ""},
        {"/proc/no/x", true, ENOENT, "/proc/no", ""},
    };
    LogEverything();
    for (const auto& one : cases) {
        int result = 99;
        int error = 0;
        const char* failedAt = nullptr;
        EXPECT_EQ(one.log, LogOf([&] {
                      result = FSMKDirP(one.path, &failedAt, one.replaceFile, kNoDirMode);
                      error = errno;
                  }))
            << one.path;
        EXPECT_EQ(one.error == 0 ? 0 : -1, result) << one.path;
        if (one.error != 0) {
            EXPECT_EQ(one.error, error) << one.path;
        }
        EXPECT_EQ(one.walked, one.path.substr(0, static_cast<std::size_t>(failedAt - one.path.c_str())));
        EXPECT_EQ(one.error == 0, fs::is_directory(one.path)) << one.path;
    }
    EXPECT_EQ(-1, FSMKDirP("", nullptr, false, kNoDirMode));
}

TEST_F(MakeFolderTest, WalkWithAMode) {
    umask(077);
    EXPECT_EQ(0, FSMKDirP(At("a/b"), nullptr, false, 0775));
    EXPECT_EQ(0775U, ModeOf(At("a")));
    EXPECT_EQ(0775U, ModeOf(At("a/b")));
    EXPECT_EQ(-1, FSMKDirP("/proc/no/x", nullptr, false, 0775));
    EXPECT_EQ(077U, umask(022)) << "put back";
}

TEST_F(MakeFolderTest, FromRoot) {
    fs::create_directory(At("r"));
    Write(At("r/file"), "");
    LogEverything();
    const auto messages = [&](const std::string& target, const std::string& root, int result) {
        return LogOf([&] { EXPECT_EQ(result, FSMKDirFromRoot(target, root)) << target; });
    };
    EXPECT_EQ("", messages(At("r"), At("r"), 0));
    const std::string log = messages(At("r/a/b"), At("r"), 0);
    EXPECT_LT(log.find("DEBUG FSMKDirFromRoot: create /a\n"), log.find("DEBUG FSMKDirFromRoot: create /a/b\n"));
    EXPECT_TRUE(fs::is_directory(At("r/a/b")));
    EXPECT_EQ("ERROR Giving a root '/long' whose length is larger then target's '/l'.\n", messages("/l", "/long", -1));
    EXPECT_EQ("ERROR root '/ab' is not a parent folder of target '/abc/d'\n", messages("/abc/d", "/ab", -1));
    EXPECT_NE(std::string::npos, messages(At("r/file/c"), At("r"), -1).find("(1)\n"));
}

TEST_F(MakeFolderTest, ParentByText) {
    const struct {
        const char* parent;
        const char* child;
        bool result;
    } cases[] = {{"/a", "/ab", false}, {"/a", "/a/b", true},  {"/a", "/a", true},    {"/a/", "/a/b", false},
                 {"/a/", "/a/", true}, {"/a/b", "/a", false}, {"/a", "/b/c", false}, {"", "/a", true},
                 {"", "a", false},     {"/", "/a", false},    {"/", "/", true}};
    for (const auto& one : cases) {
        EXPECT_EQ(one.result, FSIsParentFolder(one.parent, one.child)) << one.parent << " " << one.child;
    }
}

TEST_F(ListingTest, Entries) {
    Write(At("dir/file"), "12345");
    fs::create_directory(At("dir/sub"));
    fs::create_symlink("nowhere", At("dir/link"));
    ASSERT_EQ(0, mkfifo(At("dir/fifo").c_str(), 0666));
    const std::map<std::string, std::int32_t> types = {{".", FILE_TYPE_DIRECTORY},  {"..", FILE_TYPE_DIRECTORY},
                                                       {"file", FILE_TYPE_REGULAR}, {"sub", FILE_TYPE_DIRECTORY},
                                                       {"link", FILE_TYPE_SYMLINK}, {"fifo", FILE_TYPE_FIFO}};
    for (const int flags : {0, 1, 2, 3}) {
        DIR_HANDLE handle;
        ASSERT_EQ(0, FSOpenDir(At("dir"), flags, handle));
        EXPECT_EQ(At("dir"), handle.path);
        std::map<std::string, std::int32_t> seen;
        DIR_ENTRY entry;
        while (FSReadDir(handle, entry) == 1) {
            seen[entry.name] = entry.type;
            // Of "." and ".." the spelling is another, so that they count as absent.
            const bool isTold = (flags & 1) != 0 && entry.name[0] != '.';
            struct stat status = {};
            ASSERT_EQ(0, lstat(At("dir/" + entry.name).c_str(), &status));
            EXPECT_EQ(isTold ? status.st_size : 0, entry.size) << entry.name;
            EXPECT_EQ(isTold ? status.st_mtime : 0, entry.mtime) << entry.name;
        }
        EXPECT_EQ(types, seen);
        entry.name = "kept";
        EXPECT_EQ(0, FSReadDir(handle, entry)) << "still at the end";
        EXPECT_EQ("kept", entry.name);
        FSCloseDir(handle);
        EXPECT_EQ("", handle.path);
        EXPECT_EQ(nullptr, handle.dir);
    }
    DIR_HANDLE handle;
    EXPECT_EQ("ERROR FSOpenDir: Failed to open directory '" + At("absent") + "'. No such file or directory\n",
              LogOf([&] { EXPECT_EQ(-1, FSOpenDir(At("absent"), 1, handle)); }));
    EXPECT_EQ("", handle.path);
    EXPECT_EQ(0, handle.flags);
}

}  // namespace
