#include <regex>

#include "file/file-op.h"
#include "file/internal.h"
#include "log/logger.h"
#include "test-folder.h"
#include "volume.h"

namespace {

// Works in the test's folder, so that relative paths lead there.
class FileTest : public FolderTest {
protected:
    FileTest() {
        fs::current_path(folder());
        LogUpTo(Logger::LEVEL_INFO);
    }
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

    static void LogUpTo(int level) {
        Write("levels", "file_op_debug=" + std::to_string(level) + "\n");
        Logger::Initialize(Logger::TYPE_STDERR, "", "levels", 1, Logger::SCOPE_NONE);
        fs::remove("levels");
    }
};

TEST_F(FileTest, ResultsAndTheirWords) {
    for (const char* name : {"file", "full/x", "replaced", "dir/x"}) {
        Write(name, "text");
    }
    fs::create_directory_symlink("dir", "to-dir");
    fs::create_symlink("nowhere", "dangling");
    std::string text = "old";
    std::string path = "to-dir";
    DIR_HANDLE handle;
    int (*const walk)(const std::string&, bool) = [](const std::string& in, bool replace) {
        const char* end = in.c_str();
        const int result = FSMKDirP(in, &end, replace, kNoDirMode) == 0 ? 0 : errno;
        return result * 100 + static_cast<int>(end - in.c_str());  // and how far it came
    };
    std::ostringstream told;
    for (const char* whole : {"/a/b/", "abc", "/abc"}) {
        told << FSParentPath(whole) << " " << FSBaseName(whole) << ",";
    }
    told << Told(FSIsParentFolder, "/a", "/a/b") << Told(FSIsParentFolder, "/a", "/a")
         << Told(FSIsParentFolder, "", "/a") << Told(FSIsParentFolder, "/a", "/ab")
         << Told(FSIsParentFolder, "/a/b", "/a") << Told(FSIsParentFolder, "/a", "/b/c")
         << Told(FSRename, "", "new", false) << Told(FSRename, "file", "", false)
         << Told(FSRename, "no/x", "new", false) << Told(FSRename, At("to-dir/../file"), "new", true)
         << Told(FSRename, "dir", "full", false) << Told(FSRename, "file", std::string(300, 'n'), false)
         << Told(FSRemove, "", false) << Told(FSRemove, "file/a", false) << Told(FSRemove, "no/x", false)
         << Told(FSRemove, "/proc/self/task", false) << Told(FSCopy, "no/x", "new", false, false)
         << Told(FSCopy, "file", "no/x", true, false) << Told(FSCopy, "dir", "new", false, false)
         << Told(FSCopy, "file", "/dev/full", true, false) << Told(walk, "//", false) << Told(walk, "d//e/", false)
         << Told(walk, "dangling/x", false) << Told(walk, "replaced/h", true)
         << Told(FSMKDirP, "", nullptr, false, kNoDirMode) << Told(walk, "file/", false)
         << Told(walk, "file/f/g", false) << Told(isFileLocked, "file", X_OK) << Told(isFileLocked, "file", R_OK)
         << Told(isFileLocked, "no", X_OK) << Told(hasFilePermission, "file", X_OK) << Told(FSFsync, "file")
         << Told(FSFsync, "no/x") << Told(FSFsync, "file/a") << Told(FSFsync, "/dev/null") << Told(FSMKDir, "", true)
         << Told(FSMKDir, "/", true) << Told(FSMKDir, "1//2/3/", true) << Told(FSMKDir, "to-dir", true)
         << Told(FSMKDir, "file/a", true) << Told(FSMKDir, "no/x", false) << Told(FSMKDir, "/proc/no/a", true)
         << Told(FSMKDirFromRoot, "dir", "dir") << Told(FSMKDirFromRoot, "dir/a/b", "dir")
         << Told(FSMKDirFromRoot, "/l", "/long") << Told(FSMKDirFromRoot, "/abc/d", "/ab")
         << Told(FSMKDirFromRoot, "full/x/c", "full") << Told(FSOpenDir, "no/x", 1, handle)
         << Told(isMountPoint, "/proc") << Told(isMountPoint, "no") << Told(IsMSDOS, "/") << Told(IsMSDOS, "no")
         << Told(FSUTime, "no", 0, 0) << Told(FSGetRealPath, text) << Told(FSGetRealPath, path) << FSBaseName(path)
         << " " << Told(FSTimeEqual, 5, 5) << Told(FSReadSymbolicLink, "file", text)
         << Told(FSCreateSymbolicLink, "x", "file") << Told(FSCreateSymbolicLink, std::string(1024, 't'), "long")
         << Told(FSReadSymbolicLink, "long", text) << Told(FSCreateSymbolicLink, std::string(1023, 't'), "fits")
         << Told(FSReadSymbolicLink, "fits", path) << path.size() << " " << Told(FSChmod, "no", 0600)
         << Told(FSChown, "no", 0, 0) << Told(FSCreateTempPath, std::string("/x\0y", 4), path) << FSParentPath(path)
         << text << handle.path << Told(FSMktemp, "no", text).substr(0, 22);
    EXPECT_EQ(
        told.str(),
        R"(/a/b ,/ abc,/ abc,1 1 1 0 0 0 -1 -1 -2 -2 -3 -100 -1 -1 0 -3 -1 [ERROR] CopyFile: open(no/x): No such file or directory (2)
-1 [ERROR] CopyFile: open(no/x): No such file or directory (2)
-1 [ERROR] CopyFile: read: Is a directory (21)
-2 [ERROR] CopyFile: write: No space left on device (28)
1 4 1708 10 -1 1704 [INFO] FSMKDirP: path: file is existing file or symbolic link pointed to file
2006 [INFO] FSMKDirP: path: file is symbolic link pointed to folder
1 0 0 0 0 1 -1 [ERROR] FSFsync: open(file/a): Not a directory (20)
-1 [ERROR] FSFsync: fsync(/dev/null): Invalid argument (22)
-1 0 0 -1 [ERROR] FSMKDir: Create a folder but local file system is not directory 'to-dir' (3)
-1 [ERROR] FSMKDir: Failed to to file info 'file/a'
-2 [ERROR] path = no/x errno : No such file or directory
-2 [ERROR] path = /proc/no/a errno : No such file or directory
0 0 -1 [ERROR] Giving a root '/long' whose length is larger then target's '/l'.
-1 [ERROR] root '/ab' is not a parent folder of target '/abc/d'
-1 [ERROR] FSMKDir: Create a folder but local file system is not directory 'full/x' (1)
-1 [ERROR] FSOpenDir: Failed to open directory 'no/x'. No such file or directory
0 0 [ERROR] isMountPoint: Failed to get file system info 'no'. No such file or directory
0 0 [ERROR] IsSupportLargeFile: Failed to get file system info 'no'. No such file or directory
-1 -1 0 dir 1 -1 [ERROR] FSReadSymbolicLink: Failed to read symbolic link 'file' (code: 22, msg: Invalid argument)
-1 [ERROR] FSCreateSymbolicLink: Failed to create symbolic link 'x' -> 'file' (code: 17, msg: File exists)
0 -1 [ERROR] FSReadSymbolicLink: path of 'long' is more than 1024
0 0 1023 -1 [ERROR] FSChmod: Failed to chmod 'no' (code: 2, msg: No such file or directory)
-1 [ERROR] FSChown: Failed to chown 'no' (code: 2, msg: No such file or directory)
0 /xold-1 [ERROR] mkstemp(no/)");
}

TEST_F(FileTest, Modes) {
    Write("src", "text");
    EXPECT_EQ(0, FSChmod("src", 0777));
    umask(027);
    EXPECT_EQ(0, FSCopy(At("src"), "without", false, false));
    EXPECT_EQ(0, FSCopy(At("src"), "with", false, true));
    // A source under another spelling than its own counts as without a mode; a file that was there keeps its own.
    EXPECT_EQ(0, FSCopy("src", "bare", false, true));
    EXPECT_EQ(0, FSCopy(At("src"), "bare", true, true));
    EXPECT_EQ(0, FSMKDirP("a/b", nullptr, false, 0775));
    EXPECT_EQ(0027U, umask(022)) << "put back";
    std::string path;
    EXPECT_EQ(0, FSMktemp("a", path));
    const Tree left = {{"a", "775 folder"},     {"a/b", "775 folder"},     {path, "644 file "},
                       {"bare", "0 file text"}, {"with", "750 file text"}, {"without", "640 file text"}};
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
    EXPECT_TRUE(fs::remove("dir/sub/link"));
    EXPECT_EQ("0 ", Told(FSRename, At("dir"), "volume/dir", true));
    EXPECT_FALSE(fs::exists("dir"));
    EXPECT_EQ(ReadTree("volume/dir"), moved);
    // A full disk is a failed move like any other, and so is a file in a folder's way.
    Write("dir/big", std::string(2 << 20, 'b'));
    EXPECT_EQ("-3 [ERROR] CopyFile: write: No space left on device (28)\n", Told(FSRename, "dir", "volume/dir", false));
    EXPECT_EQ("-3", Told(FSRename, "dir", "volume/dir/sub/1", false).substr(0, 2));
    EXPECT_TRUE(fs::exists("dir/big"));
}

TEST_F(FileTest, RecordsAndWhatTheyTellOfLinks) {
    // Each has the number of its type as its name.
    Write("1", "12345");
    fs::create_directory("2");
    fs::create_symlink("1", "3");
    ASSERT_EQ(0, mkfifo("6", 0604));
    const int owned = FSChown("3", 4321, 1234);
    EXPECT_EQ(0, FSUTime("3", 1000, 2000) + FSUTime("1", 0, (std::int64_t{1} << 32) + 5) + FSChmod("3", 0604));
    std::map<std::string, _FILE_INFO_tag> infos;
    DIR_HANDLE handle;
    ASSERT_EQ(0, FSOpenDir(folder(), 1, handle));
    for (DIR_ENTRY entry; FSReadDir(handle, entry) == 1;) {
        _FILE_INFO_tag& info = infos[entry.name];
        if (entry.name[0] != '.') {
            struct stat status = {};
            EXPECT_EQ(0, lstat(entry.name.c_str(), &status) + GetFileInfo(entry.name, info));
            EXPECT_EQ(entry.name, std::to_string(info.type));
            EXPECT_EQ(std::tuple(true, info.path, info.name, info.size, info.uid, info.gid, info.mode, info.dev),
                      std::tuple(info.exist, At(entry.name), entry.name, status.st_size, status.st_uid, status.st_gid,
                                 status.st_mode, status.st_dev));
            EXPECT_EQ(std::tuple(entry.type, entry.size, entry.mtime), std::tuple(info.type, info.size, info.mtime));
        }
    }
    FSCloseDir(handle);
    EXPECT_EQ(infos.size(), 6U) << "with . and ..";
    // A link's own time and owner are set, but the mode of what it leads to; a time has 32 bits.
    EXPECT_EQ(std::tuple(2000, 5), std::tuple(infos["3"].mtime, infos["1"].mtime));
    EXPECT_EQ(ReadTree(".")["1"], "604 file 12345");
    EXPECT_EQ(owned, infos["3"].uid == 4321 && infos["3"].gid == 1234 ? 0 : -1);

    EXPECT_EQ(0, GetFileInfo("/dev/null", infos["null"]) + GetFileInfo("absent", infos["3"]));
    EXPECT_EQ(std::tuple(5, 0), std::tuple(infos["null"].type, infos["3"].type));
    // Owner, mode and device take no part in a comparison.
    _FILE_INFO_tag other = infos["1"];
    other.uid = other.gid = other.mode = 1;
    EXPECT_TRUE(infos["1"] == other && !(infos["1"] != other));
    other.size = 1;
    EXPECT_TRUE(infos["1"] != other && !(infos["1"] == other));
}

TEST_F(FileTest, ExactSpelling) {
    Write("dir/file", "12345");
    Write("dir/e\u0301", "");
    Write("dir/\xFF", "");
    fs::create_symlink("dir", "to-dir");
    fs::create_symlink("nowhere", "dangling");
    // In NFC what is not UTF-8 is nothing, and so the same on both sides.
    for (const std::string path : {"dir/file", "dangling", "dir/e\u0301", "to-dir", "to-dir/\xFF"}) {
        EXPECT_TRUE(IsFileExist(path, false) && IsFileExist(At(path), true)) << path;
        EXPECT_EQ(path == "to-dir/\xFF", IsFileExist(At("dir/../" + path), true)) << path;
    }
    for (const char* path : {"dir/\u00E9", "dir/FILE", "dir/file/below", ""}) {
        EXPECT_FALSE(IsFileExist(path, false) || IsFileExist(path, true)) << path;
    }
    _FILE_INFO_tag info;
    EXPECT_EQ(-1, FSStat("", info, false));
    EXPECT_EQ(0, FSStat("to-dir/file", info, false));
    EXPECT_EQ(std::tuple(At("dir/file"), 5), std::tuple(info.path, info.size));
    EXPECT_EQ(0, FSStat(At("to-dir/file"), info, true));
    EXPECT_EQ(std::tuple(false, 5), std::tuple(info.exist, info.size)) << "the rest stays";
    // Below its first folder a walk asks nobody for spellings; the log tells them all the same.
    Write("dir/sub/x", "");
    LogUpTo(Logger::LEVEL_DEBUG);
    std::string log = "0 ";
    for (const std::string path : {"dir/sub", "dir/sub/x"}) {
        log += "[DEBUG] Input file path = [to-" + path + "].\n";
        log += "[DEBUG] FSRefMakePath outTargetPath path = [" + At(path) + "].\n";
    }
    EXPECT_EQ(log, Told(FSRemove, "to-dir/sub", false));
    // A spelling that is too long can't be found.
    const std::string name(250, 'd');
    for (int level = 0; level < 17; ++level) {
        ASSERT_TRUE(fs::create_directory(name) && chdir(name.c_str()) == 0);
    }
    EXPECT_EQ("-1 [DEBUG] Input file path = [.].\n[ERROR] FSPathMakeRef: 36\n", Told(GetFileInfo, ".", info));
    EXPECT_EQ(std::tuple(".", 2), std::tuple(info.path, info.type));
}

}  // namespace
