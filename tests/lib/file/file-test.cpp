#include <sys/socket.h>
#include <sys/un.h>

#include <fstream>
#include <regex>
#include <set>
#include <thread>

#include "file/file-op.h"
#include "file/internal.h"
#include "file/tmp-name.h"
#include "log/logger.h"
#include "package.h"
#include "test-folder.h"
#include "volume.h"

namespace {

// Works in the test's folder, so that relative paths lead there.
class FileTest : public FolderTest {
protected:
    FileTest() { fs::current_path(folder()); }
    ~FileTest() override { fs::current_path("/"); }

    // What a function returns and what it logs, the prefix of each line cut down to its level: "-1 ERROR open...\n".
    template <typename Result, typename... Types, typename... Arguments>
    static std::string Told(Result (*function)(Types...), Arguments&&... arguments) {
        static const std::regex prefix(R"([-\d]+T[:\d]+ \( *\d+: *\d+\) (\[[A-Z]+\]) [a-z-]+\.cpp\(\d+\): )");
        std::string result;
        const std::string log =
            StandardErrorOf([&] { result = std::to_string(function(static_cast<Types>(arguments)...)); });
        return result + " " + std::regex_replace(log, prefix, "$1 ");
    }

    void LogUpTo(int level) const {
        Write(At("levels"), "file_op_debug=" + std::to_string(level) + "\n");
        Logger::Initialize(Logger::TYPE_STDERR, "", At("levels"), 1, Logger::SCOPE_NONE);
        fs::remove(At("levels"));
    }
};

TEST_F(FileTest, ResultsAndTheirWords) {
    for (const char* name : {"file", "full/x", "replaced", "dir/x"}) {
        Write(name, "text");
    }
    fs::create_directory_symlink("dir", "to-dir");
    fs::create_symlink("nowhere", "dangling");
    std::string text = "old";
    std::string path;
    DIR_HANDLE handle;
    int (*const walk)(const std::string&, bool) = [](const std::string& in, bool replace) {
        const char* end = in.c_str();
        const int result = FSMKDirP(in, &end, replace, kNoDirMode) == 0 ? 0 : errno;
        return result * 100 + static_cast<int>(end - in.c_str());  // and how far it came
    };
    LogUpTo(Logger::LEVEL_INFO);
    std::ostringstream told;
    for (const char* whole : {"/a/b", "/a/b/", "abc", "/abc"}) {
        told << FSParentPath(whole) << " " << FSBaseName(whole) << ",";
    }
    told << Told(FSIsParentFolder, "/a", "/a/b") << Told(FSIsParentFolder, "/a", "/a")
         << Told(FSIsParentFolder, "", "/a") << Told(FSIsParentFolder, "/a", "/ab")
         << Told(FSIsParentFolder, "/a/", "/a/b") << Told(FSIsParentFolder, "/a/b", "/a")
         << Told(FSIsParentFolder, "/a", "/b/c") << Told(FSIsParentFolder, "", "a") << Told(FSRename, "", "new", false)
         << Told(FSRename, "file", "", false) << Told(FSRename, "no/x", "new", false)
         << Told(FSRename, At("to-dir/../file"), "new", true) << Told(FSRename, "dir", "full", false)
         << Told(FSRename, "file", std::string(300, 'n'), false) << Told(FSRemove, "", false)
         << Told(FSRemove, "file/a", false) << Told(FSRemove, "no/x", false) << Told(FSRemove, "/proc/self/comm", false)
         << Told(FSRemove, "/proc/self/task", false) << Told(FSCopy, "no/x", "new", false, false)
         << Told(FSCopy, "file", "no/x", true, false) << Told(FSCopy, "dir", "new", false, false)
         << Told(FSCopy, "file", "/dev/full", true, false) << Told(walk, "//", false) << Told(walk, "d//e/", false)
         << Told(walk, "dangling/x", false) << Told(walk, "replaced/h", true)
         << Told(FSMKDirP, "", nullptr, false, kNoDirMode) << Told(walk, "file/", false)
         << Told(walk, "file/f/g", false) << Told(isFileLocked, "file", X_OK) << Told(isFileLocked, "file", R_OK)
         << Told(isFileLocked, "no", X_OK) << Told(hasFilePermission, "file", X_OK)
         << Told(hasFilePermission, "no", R_OK) << Told(FSFsync, "file") << Told(FSFsync, "no/x")
         << Told(FSFsync, "file/a") << Told(FSFsync, "/dev/null") << Told(FSMKDir, "", true) << Told(FSMKDir, "/", true)
         << Told(FSMKDir, "1//2/3/", true) << Told(FSMKDir, "file", true) << Told(FSMKDir, "to-dir", true)
         << Told(FSMKDir, "file/a", true) << Told(FSMKDir, "no/x", false) << Told(FSMKDir, "/proc/no/a", true)
         << Told(FSMKDirFromRoot, "dir", "dir") << Told(FSMKDirFromRoot, "dir/a/b", "dir")
         << Told(FSMKDirFromRoot, "/l", "/long") << Told(FSMKDirFromRoot, "/abc/d", "/ab")
         << Told(FSMKDirFromRoot, "full/x/c", "full") << Told(FSOpenDir, "no/x", 1, handle)
         << Told(isMountPoint, "/proc") << Told(isMountPoint, "no") << Told(IsMSDOS, "/") << Told(IsMSDOS, "no")
         << Told(FSUTime, "no", 0, 0) << Told(FSGetRealPath, text) << Told(FSTimeEqual, 5, 5)
         << Told(FSTimeEqual, 5, 5 + (std::int64_t{1} << 32)) << Told(FSReadSymbolicLink, "file", text)
         << Told(FSCreateSymbolicLink, "x", "file") << Told(FSChmod, "no", 0600) << Told(FSChown, "no", 0, 0)
         << Told(FSCreateTempPath, std::string("/x\0y", 4), path) << FSParentPath(path) << text << handle.path
         << Told(FSMktemp, "no", text).substr(0, 22);
    EXPECT_EQ(
        told.str(),
        R"(/a b,/a/b ,/ abc,/ abc,1 1 1 0 0 0 0 0 -1 -1 -2 -2 -3 -100 -1 -1 0 -3 -3 -1 [ERROR] CopyFile: open(no/x): No such file or directory (2)
-1 [ERROR] CopyFile: open(no/x): No such file or directory (2)
-1 [ERROR] CopyFile: read: Is a directory (21)
-2 [ERROR] CopyFile: write: No space left on device (28)
1 4 1708 10 -1 1704 [INFO] FSMKDirP: path: file is existing file or symbolic link pointed to file
2006 [INFO] FSMKDirP: path: file is symbolic link pointed to folder
1 0 0 0 1 0 1 -1 [ERROR] FSFsync: open(file/a): Not a directory (20)
-1 [ERROR] FSFsync: fsync(/dev/null): Invalid argument (22)
-1 0 0 -1 [ERROR] FSMKDir: Create a folder but local file system is not directory 'file' (1)
-1 [ERROR] FSMKDir: Create a folder but local file system is not directory 'to-dir' (3)
-1 [ERROR] FSMKDir: Failed to to file info 'file/a'
-2 [ERROR] path = no/x errno : No such file or directory
-2 [ERROR] path = /proc/no/a errno : No such file or directory
0 0 -1 [ERROR] Giving a root '/long' whose length is larger then target's '/l'.
-1 [ERROR] root '/ab' is not a parent folder of target '/abc/d'
-1 [ERROR] FSMKDir: Create a folder but local file system is not directory 'full/x' (1)
-1 [ERROR] FSOpenDir: Failed to open directory 'no/x'. No such file or directory
0 0 [ERROR] isMountPoint: Failed to get file system info 'no'. No such file or directory
0 0 [ERROR] IsSupportLargeFile: Failed to get file system info 'no'. No such file or directory
-1 -1 1 0 -1 [ERROR] FSReadSymbolicLink: Failed to read symbolic link 'file' (code: 22, msg: Invalid argument)
-1 [ERROR] FSCreateSymbolicLink: Failed to create symbolic link 'x' -> 'file' (code: 17, msg: File exists)
-1 [ERROR] FSChmod: Failed to chmod 'no' (code: 2, msg: No such file or directory)
-1 [ERROR] FSChown: Failed to chown 'no' (code: 2, msg: No such file or directory)
0 /xold-1 [ERROR] mkstemp(no/)");
    LogUpTo(Logger::LEVEL_WARNING);
}

TEST_F(FileTest, Modes) {
    Write("src", "text");
    const std::tuple<bool, mode_t, mode_t, const char*> cases[] = {
        {false, 0777, 027, "640 file text"}, {true, 0751, 022, "751 file text"}, {true, 0777, 027, "750 file text"}};
    for (const auto& [keep, mode, mask, expected] : cases) {
        EXPECT_EQ(0, FSChmod("src", static_cast<std::uint16_t>(mode)));
        umask(mask);
        EXPECT_EQ(0, FSCopy(At("src"), "new", false, keep));
        EXPECT_EQ(ReadTree(".")["new"], expected);
        fs::remove("new");
    }
    // A source under another spelling than its own counts as without a mode; a file that was there keeps its own.
    EXPECT_EQ(0, FSCopy("src", "bare", false, true));
    EXPECT_EQ(0, FSCopy(At("src"), "bare", true, true));
    EXPECT_EQ(0, FSMKDirP("a/b", nullptr, false, 0775));
    EXPECT_EQ(0027U, umask(022)) << "put back";
    std::string path;
    EXPECT_EQ(0, FSMktemp("a", path));
    const Tree left = {{"a", "775 folder"}, {"a/b", "775 folder"}, {path, "644 file "}, {"bare", "0 file text"}};
    EXPECT_EQ(ReadTree("."), left);
}

TEST_F(FileTest, OverAVolumeBorder) {
    const Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
    KQ_NEED(volume);
    for (int number = 0; number < 40; ++number) {
        Write("dir/sub/" + std::to_string(number), std::string(static_cast<std::size_t>(number) * 500, 'x') + "end");
    }
    fs::permissions("dir/sub/1", fs::perms::all);
    fs::create_directory("dir/empty");
    Tree moved = ReadTree("dir");
    moved["sub/1"].replace(0, 3, "644");
    // What can't be moved ends the move; what was moved stays so, and a second attempt takes the rest.
    fs::create_symlink("nowhere", "dir/sub/link");
    EXPECT_EQ("-3 ", Told(FSRename, "dir", "volume/dir", false));
    EXPECT_TRUE(fs::is_symlink("dir/sub/link"));
    fs::remove("dir/sub/link");
    EXPECT_EQ("0 ", Told(FSRename, At("dir"), "volume/dir", true));
    EXPECT_FALSE(fs::exists("dir"));
    EXPECT_EQ(ReadTree("volume/dir"), moved);
    // A full disk is a failed move like any other, and so is a file in a folder's way.
    Write("dir/big", std::string(2 << 20, 'b'));
    EXPECT_EQ("-3 [ERROR] CopyFile: write: No space left on device (28)\n", Told(FSRename, "dir", "volume/dir", false));
    EXPECT_EQ("-3", Told(FSRename, "dir", "volume/dir/sub/1", false).substr(0, 2));
    EXPECT_TRUE(fs::exists("dir/big"));
}

TEST_F(FileTest, TemporaryNamesFromEightThreads) {
    std::vector<std::string> names(400000);
    std::vector<std::thread> threads;
    for (std::size_t first = 0; first < 8; ++first) {
        threads.emplace_back([&names, first] {
            for (std::size_t at = first; at < names.size(); at += 8) {
                names[at] = TmpNameGen::getInstance().getTmpName();
            }
        });
    }
    std::for_each(threads.begin(), threads.end(), [](std::thread& thread) { thread.join(); });
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
    const std::regex form("[-_0-9a-zA-Z]{8}");
    EXPECT_TRUE(std::all_of(names.begin(), std::next(names.begin(), 1000),
                            [&](const auto& name) { return std::regex_match(name, form); }));
}

TEST_F(FileTest, TheRecordIsThatOfLstat) {
    Write("regular", "12345");
    fs::create_directory("directory");
    fs::create_symlink("directory", "symlink");
    ASSERT_EQ(0, mkfifo("fifo", 0604));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    address.sun_path[0] = 's';
    ASSERT_EQ(0, bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)));
    close(socket);
    std::map<std::string, DIR_ENTRY> listed;
    DIR_HANDLE handle;
    ASSERT_EQ(0, FSOpenDir(folder(), 1, handle));
    for (DIR_ENTRY entry; FSReadDir(handle, entry) == 1;) {
        listed[At(entry.name)] = entry;
    }
    EXPECT_EQ(listed.size(), 7U);
    FSCloseDir(handle);
    EXPECT_EQ(nullptr, handle.dir);
    const std::pair<std::string, std::int32_t> cases[] = {{At("regular"), 1}, {At("directory"), 2}, {At("symlink"), 3},
                                                          {At("fifo"), 6},    {At("s"), 7},         {"/dev/null", 5},
                                                          {"/", 2},           {At("absent"), 0}};
    for (const auto& [path, type] : cases) {
        struct stat status = {};
        EXPECT_EQ(type == 0, lstat(path.c_str(), &status) != 0);
        _FILE_INFO_tag info;
        info.type = info.uid = info.mode = 9;
        EXPECT_EQ(0, GetFileInfo(path, info)) << path;
        const auto told = std::tuple(info.exist, info.path, info.name, info.type, info.mtime, info.size, info.uid,
                                     info.gid, info.mode, info.dev);
        EXPECT_EQ(told, std::tuple(type != 0, path, FSBaseName(path), type, status.st_mtime, status.st_size,
                                   status.st_uid, status.st_gid, status.st_mode, status.st_dev));
        if (const DIR_ENTRY& entry = listed[path]; !entry.name.empty()) {
            EXPECT_EQ(std::tuple(entry.type, entry.size, entry.mtime), std::tuple(type, info.size, info.mtime));
        }
    }
    // Owner, mode and device take no part in a comparison.
    _FILE_INFO_tag info;
    _FILE_INFO_tag other;
    other.uid = other.gid = other.mode = 1;
    other.dev = 1;
    EXPECT_TRUE(info == other && !(info != other));
    other.size = 1;
    EXPECT_TRUE(info != other && !(info == other));
}

TEST_F(FileTest, ExactSpelling) {
    Write("dir/file", "12345");
    Write("dir/e\u0301", "");
    Write("dir/\xFF", "");
    fs::create_symlink("dir", "to-dir");
    fs::create_symlink("nowhere", "dangling");
    // In NFC what is not UTF-8 is nothing, and so the same on both sides.
    for (const std::string path : {"dir/file", "dangling", "dir/e\u0301", "to-dir", "to-dir/\xFF"}) {
        EXPECT_EQ('1', Told(IsFileExist, path, false)[0]) << path;
        EXPECT_EQ('1', Told(IsFileExist, At(path), true)[0]) << path;
        EXPECT_EQ(path == "to-dir/\xFF" ? '1' : '0', Told(IsFileExist, At("dir/../" + path), true)[0]) << path;
    }
    for (const char* path : {"dir/\u00E9", "dir/FILE", "dir/file/below", ""}) {
        EXPECT_EQ("0 0 ", Told(IsFileExist, path, false) + Told(IsFileExist, path, true)) << path;
    }
    _FILE_INFO_tag info;
    info.exist = true;
    info.size = 9;
    EXPECT_EQ("-1 ", Told(FSStat, "", info, false));
    EXPECT_EQ("0 ", Told(FSStat, At("to-dir/file"), info, true));
    EXPECT_FALSE(info.exist);
    EXPECT_EQ(9, info.size) << "the rest stays";
    const auto found = [&](const std::string& from, const std::string& to) {
        return "[DEBUG] Input file path = [" + from + "].\n[DEBUG] FSRefMakePath outTargetPath path = [" + At(to) +
               "].\n";
    };
    LogUpTo(Logger::LEVEL_DEBUG);
    const std::string file = found("to-dir/file", "dir/file");
    EXPECT_EQ("0 " + file + file, Told(FSStat, "to-dir/file", info, false));
    EXPECT_EQ(std::tuple(At("dir/file"), 5), std::tuple(info.path, info.size));
    // Below its first folder a walk asks nobody for spellings; the log tells them all the same.
    Write("dir/sub/x", "");
    EXPECT_EQ("0 " + found("to-dir/sub", "dir/sub") + found("to-dir/sub/x", "dir/sub/x"),
              Told(FSRemove, "to-dir/sub", false));
    LogUpTo(Logger::LEVEL_WARNING);
    // A spelling that is too long can't be found.
    const std::string name(250, 'd');
    for (int level = 0; level < 17; ++level) {
        ASSERT_TRUE(fs::create_directory(name) && chdir(name.c_str()) == 0);
    }
    std::ofstream("file") << "1234";
    EXPECT_EQ("-1 [ERROR] FSPathMakeRef: 36\n", Told(GetFileInfo, "file", info));
    EXPECT_EQ(std::tuple("file", 4), std::tuple(info.path, info.size));
    EXPECT_EQ('0', Told(IsFileExist, "file", false)[0]);
}

TEST_F(FileTest, OfALinkItsOwn) {
    Write("file", "");
    fs::create_symlink("file", "link");
    for (const std::size_t length : {1U, 1023U, 1024U, 2000U}) {
        std::string read = "old";
        const std::string target(length, 't');
        EXPECT_EQ(0, FSCreateSymbolicLink(target, std::to_string(length)));
        EXPECT_EQ(length < 1024 ? '0' : '-', Told(FSReadSymbolicLink, std::to_string(length), read)[0]);
        EXPECT_EQ(length < 1024 ? target : "old", read);
    }
    std::string path = "link";
    EXPECT_EQ(0, FSGetRealPath(path));
    EXPECT_EQ(At("file"), path);
    EXPECT_EQ(0, FSUTime("link", 1000, 2000));
    EXPECT_EQ(0, FSUTime("file", 1000, (std::int64_t{1} << 32) + 5));
    _FILE_INFO_tag info;
    EXPECT_EQ(0, GetFileInfo("link", info));
    EXPECT_EQ(2000, info.mtime);
    EXPECT_EQ(0, GetFileInfo("file", info));
    EXPECT_EQ(5, info.mtime) << "the low 32 bits";
    EXPECT_EQ(0, FSChmod("link", 0604));
    EXPECT_EQ(ReadTree(".")["file"], "604 file ");
    KQ_NEED(Ability::Root);
    EXPECT_EQ(0, FSChown("link", 4321, 1234));
    EXPECT_EQ(0, GetFileInfo("link", info));
    EXPECT_EQ(std::tuple(4321, 1234), std::tuple(info.uid, info.gid));
}

}  // namespace
