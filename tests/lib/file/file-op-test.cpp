// Operations on trees, and what they return and log when they fail.
#include "file-op-test.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <random>
#include <set>
#include <thread>

#include "file/internal.h"
#include "file/tmp-name.h"
#include "package.h"
#include "volume.h"

namespace {

// What an operation of the library does to a tree, the standard library does to another.
TEST_F(FileOpTest, TreesChangeAsUnderTheStandardLibrary) {
    std::mt19937 random(7);
    const char* const names[] = {"a", "B", "\u00E9"};
    const auto path = [&] {
        std::string text;
        for (auto depth = random() % 3; depth + 1 > 0 && depth < 3; --depth) {
            text += std::string("/") + names[random() % 3];
        }
        return text;
    };
    for (int step = 0; step < 1500; ++step) {
        if (step % 50 == 0) {
            for (const char* root : {"ours", "theirs"}) {
                fs::remove_all(At(root));
                fs::create_directory(At(root));
            }
        }
        const auto operation = random() % 7;
        const std::string one = path();
        const std::string other = path();
        const std::string ours = At("ours") + one;
        const std::string theirs = At("theirs") + one;
        SCOPED_TRACE(std::to_string(operation) + " " + one + " " + other);
        std::error_code error;
        int result = 0;
        const std::string log = StandardErrorOf([&] {
            if (operation == 0 && !fs::exists(theirs, error)) {
                Write(At("new"), std::to_string(step) + std::string(random() % 3 * 8192, 'x'));
                result = FSCopy(At("new"), ours, false, false);
                std::ofstream(theirs) << std::ifstream(At("new")).rdbuf();
            } else if (operation == 1 && fs::is_regular_file(theirs, error) &&
                       !fs::equivalent(theirs, At("theirs") + other, error)) {
                result = FSCopy(ours, At("ours") + other, false, false);
                std::ofstream(At("theirs") + other) << std::ifstream(theirs).rdbuf();
            } else if (operation == 2) {
                result = FSRename(ours, At("ours") + other, false);
                fs::rename(theirs, At("theirs") + other, error);
                EXPECT_EQ(result == 0, !error) << error.message();
            } else if (operation == 3) {
                result = FSRemove(ours, false);
                fs::remove_all(theirs, error);
            } else if (operation == 4 || operation == 5) {
                result = FSMKDir(ours, operation == 4);
                operation == 4 ? fs::create_directories(theirs, error) : fs::create_directory(theirs, error);
                EXPECT_EQ(result == 0, fs::is_directory(fs::symlink_status(theirs, error)));
            } else if (operation == 6) {
                result = FSCreateSymbolicLink(&other[1], ours);
                fs::create_symlink(&other[1], theirs, error);
                EXPECT_EQ(result == 0, !error);
            }
        });
        ASSERT_EQ(ReadTree(At("ours")), ReadTree(At("theirs"))) << log;
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(FileOpTest, ResultsAndTheirWords) {
    Write(At("file"), "text");
    Write(At("full/x"), "");
    fs::create_directory(At("dir"));
    fs::create_symlink("file", At("link"));
    fs::create_directory_symlink("dir", At("to-dir"));
    fs::create_symlink("nowhere", At("dangling"));
    const std::string absent = At("absent/x");
    const std::string below = At("file/a");
    const std::string open = ": No such file or directory (2)\n";
    const std::string noFolder = "ERROR FSMKDir: Create a folder but local file system is not directory '";
    const std::string quoted = " '" + absent + "' (code: 2, msg: No such file or directory)\n";
    const std::string volume = ": Failed to get file system info '" + absent + "'. No such file or directory\n";
    std::string text = "old";
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    const std::tuple<std::function<int()>, int, std::string> cases[] = {
        {[&] { return FSCopy(absent, At("new"), false, false); }, -1, "ERROR CopyFile: open(" + absent + ")" + open},
        {[&] { return FSCopy(At("file"), absent, true, false); }, -1, "ERROR CopyFile: open(" + absent + ")" + open},
        {[&] { return FSCopy(At("dir"), At("new"), false, false); }, -1, "ERROR CopyFile: read: Is a directory (21)\n"},
        {[&] { return FSCopy(At("file"), "/dev/full", true, false); }, -2,
         "ERROR CopyFile: write: No space left on device (28)\n"},
        {[&] { return FSRename("", At("new"), false); }, -1, ""},
        {[&] { return FSRename(At("file"), "", false); }, -1, ""},
        {[&] { return FSRename(absent, At("new"), false); }, -2, ""},
        {[&] { return FSRename(At("to-dir/../file"), At("new"), true); }, -2, ""},
        {[&] { return FSRename(At("file"), At(std::string(300, 'n')), false); }, -100, ""},
        {[&] { return FSRename(At("dir"), At("full"), false); }, -3, ""},
        {[&] { return FSRemove("", false); }, -1, ""},
        {[&] { return FSRemove(below, false); }, -1, ""},
        {[&] { return FSRemove(absent, false); }, 0, ""},
        {[&] { return FSRemove("/proc/self/comm", false); }, -3, ""},
        {[&] { return FSRemove("/proc/self/task", false); }, -3, ""},
        {[&] { return FSFsync(At("file")); }, 0, ""},
        {[&] { return FSFsync(absent); }, 1, ""},
        {[&] { return FSFsync(below); }, -1, "ERROR FSFsync: open(" + below + "): Not a directory (20)\n"},
        {[&] { return FSFsync("/dev/null"); }, -1, "ERROR FSFsync: fsync(/dev/null): Invalid argument (22)\n"},
        {[&] { return FSMKDir("", true); }, -1, ""},
        {[&] { return FSMKDir("/", true); }, 0, ""},
        {[&] { return FSMKDir(At("1//2/3/"), true); }, 0, ""},
        {[&] { return FSMKDir(At("dir/"), false); }, 0, ""},
        {[&] { return FSMKDir(At("file"), true); }, -1, noFolder + At("file") + "' (1)\n"},
        {[&] { return FSMKDir(At("to-dir"), true); }, -1, noFolder + At("to-dir") + "' (3)\n"},
        {[&] { return FSMKDir(below, true); }, -1, "ERROR FSMKDir: Failed to to file info '" + below + "'\n"},
        {[&] { return FSMKDir(absent, false); }, -2, "ERROR path = " + absent + " errno : No such file or directory\n"},
        {[&] { return FSMKDir("/proc/no/a", true); }, -2,
         "ERROR path = /proc/no/a errno : No such file or directory\n"},
        {[&] { return FSMKDirFromRoot(At("dir"), At("dir")); }, 0, ""},
        {[&] { return FSMKDirFromRoot(At("dir/a/b"), At("dir")); }, 0, ""},
        {[&] { return FSMKDirFromRoot("/l", "/long"); }, -1,
         "ERROR Giving a root '/long' whose length is larger then target's '/l'.\n"},
        {[&] { return FSMKDirFromRoot("/abc/d", "/ab"); }, -1,
         "ERROR root '/ab' is not a parent folder of target '/abc/d'\n"},
        {[&] { return FSMKDirFromRoot(At("full/x/c"), At("full")); }, -1, noFolder + At("full/x") + "' (1)\n"},
        {[&] { return FSOpenDir(absent, 1, handle); }, -1,
         "ERROR FSOpenDir: Failed to open directory '" + absent + "'. No such file or directory\n"},
        {[&] { return isMountPoint(absent); }, 0, "ERROR isMountPoint" + volume},
        {[&] { return IsMSDOS(absent); }, 0, "ERROR IsSupportLargeFile" + volume},
        {[&] { return isMountPoint("/proc") || IsMSDOS("/"); }, 0, ""},
        {[&] { return FSReadSymbolicLink(At("file"), text); }, -1,
         "ERROR FSReadSymbolicLink: Failed to read symbolic link '" + At("file") +
             "' (code: 22, msg: Invalid argument)\n"},
        {[&] { return FSCreateSymbolicLink("x", At("file")); }, -1,
         "ERROR FSCreateSymbolicLink: Failed to create symbolic link 'x' -> '" + At("file") +
             "' (code: 17, msg: File exists)\n"},
        {[&] { return FSChmod(absent, 0600); }, -1, "ERROR FSChmod: Failed to chmod" + quoted},
        {[&] { return FSChown(absent, 0, 0); }, -1, "ERROR FSChown: Failed to chown" + quoted},
        {[&] { return FSUTime(absent, 0, 0); }, -1, ""},
        {[&] { return FSMktemp(absent, text); }, -1, "ERROR mkstemp(" + absent + "/"},
        {[&] { return FSMktemp(std::string(4092, '/'), text); }, -1, "ERROR mkstemp(//"},
        {[&] { return isFileLocked(At("file"), X_OK); }, 1, ""},
        {[&] { return isFileLocked(At("file"), R_OK) || isFileLocked(absent, X_OK) || isFileLocked(below, X_OK); }, 0,
         ""},
        {[&] { return hasFilePermission(At("file"), X_OK); }, 0, ""},
        {[&] { return hasFilePermission(absent, R_OK); }, 1, ""},
    };
    for (std::size_t at = 0; at < std::size(cases); ++at) {
        const auto& [call, result, log] = cases[at];
        int returned = 99;
        const std::string logged = LogOf([&, &run = call] { returned = run(); });
        EXPECT_EQ(returned, result) << "row " << at;
        EXPECT_EQ(log.empty() ? logged : logged.substr(0, log.size()), log) << "row " << at;
    }
    EXPECT_EQ(text + handle.path, "old");
    const Tree left = {
        {"1", "755 folder"},       {"1/2", "755 folder"},   {"1/2/3", "755 folder"},   {"dangling", "777 link nowhere"},
        {"dir", "755 folder"},     {"dir/a", "755 folder"}, {"dir/a/b", "755 folder"}, {"file", "644 file text"},
        {"full", "755 folder"},    {"full/x", "644 file "}, {"link", "777 link file"}, {"new", "644 file "},
        {"to-dir", "777 link dir"}};
    EXPECT_EQ(ReadTree(folder()), left);
}

TEST_F(FileOpTest, Modes) {
    Write(At("src"), "text");
    const std::tuple<bool, mode_t, mode_t, const char*> cases[] = {{false, 0777, 027, "640 file text"},
                                                                   {true, 0751, 022, "751 file text"},
                                                                   {true, 0777, 027, "750 file text"},
                                                                   {false, 0600, 077, "600 file text"}};
    for (const auto& [keep, mode, mask, expected] : cases) {
        EXPECT_EQ(0, FSChmod(At("src"), static_cast<std::uint16_t>(mode)));
        umask(mask);
        EXPECT_EQ(0, FSCopy(At("src"), At("new"), false, keep));
        EXPECT_EQ(ReadTree(folder())["new"], expected);
        fs::remove(At("new"));
        std::string path;
        EXPECT_EQ(0, FSMktemp(folder(), path));
        EXPECT_EQ(ReadTree(folder())[FSBaseName(path)], "644 file ");
        fs::remove(path);
    }
    // A source under another spelling than its own counts as without a mode; a file that was there keeps its own.
    fs::create_directory_symlink(folder(), At("here"));
    EXPECT_EQ(0, FSCopy(At("here/src"), At("bare"), false, true));
    EXPECT_EQ(0, FSChmod(At("here/src"), 0777));
    EXPECT_EQ(0, FSCopy(At("src"), At("bare"), true, true));
    EXPECT_EQ(0, FSMKDirP(At("a/b"), nullptr, false, 0775));
    EXPECT_EQ(0077U, umask(022)) << "put back";
    const Tree left = {
        {"a", "775 folder"}, {"a/b", "775 folder"}, {"bare", "0 file text"}, {"here", "777 link " + folder()}};
    EXPECT_EQ(ReadTree(folder()), left);
}

TEST_F(FileOpTest, WalksToWhereItCant) {
    Write(At("file"), "");
    Write(At("replaced"), "");
    fs::create_directory_symlink("nowhere", At("dangling"));
    LogUpTo(Logger::LEVEL_INFO);
    const std::string inWay = "INFO FSMKDirP: path: " + At("file") + " is ";
    const std::tuple<std::string, bool, int, std::string, std::string> cases[] = {
        {"//", false, 0, "/", ""},
        {At("d//e/"), false, 0, At("d//e"), ""},
        {At("file/"), false, EEXIST, At("file"), inWay + "existing file or symbolic link pointed to file\n"},
        {At("file/f/g"), false, ENOTDIR, At("file/f"), inWay + "symbolic link pointed to folder\n"},
        {At("dangling/x"), false, EEXIST, At("dangling"), ""},
        {At("replaced/h"), true, 0, At("replaced/h"), ""}};
    for (const auto& [path, replace, error, walked, log] : cases) {
        const char* end = nullptr;
        int failure = 0;
        EXPECT_EQ(log, LogOf([&, &in = path, &replaces = replace] {
                      failure = FSMKDirP(in, &end, replaces, kNoDirMode) == 0 ? 0 : errno;
                  }));
        EXPECT_EQ(error, failure) << path;
        EXPECT_EQ(walked, path.substr(0, static_cast<std::size_t>(end - path.c_str())));
    }
    EXPECT_EQ(-1, FSMKDirP("", nullptr, false, kNoDirMode));
}

TEST_F(FileOpTest, OverAVolumeBorder) {
    const Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
    KQ_NEED(volume);
    Write(At("dir/a/\u00E9"), "1");
    Write(At("dir/a/b/c"), "2");
    fs::create_directory(At("dir/empty"));
    chmod(At("dir/a/b/c").c_str(), 0777);
    const Tree tree = {{"a", "755 folder"},
                       {"a/b", "755 folder"},
                       {"a/b/c", "644 file 2"},
                       {"a/\u00E9", "644 file 1"},
                       {"empty", "755 folder"}};
    EXPECT_EQ(0, FSRename(At("dir"), At("volume/dir"), true));
    EXPECT_EQ(ReadTree(At("volume/dir")), tree);
    EXPECT_FALSE(fs::exists(At("dir")));
    Write(At("dir/x"), "");
    EXPECT_NE("", LogOf([&] { EXPECT_EQ(-3, FSRename(At("dir"), At("volume/dir/a/b/c"), false)); }));

    // What can't be moved ends the move; what was moved stays so, and a second attempt takes the rest.
    const auto missing = [&](const std::string& root) {
        std::set<int> numbers;
        for (int number = 0; number < 40; ++number) {
            if (!fs::exists(At(root + "/sub/" + std::to_string(number)))) {
                numbers.insert(number);
            }
        }
        return numbers;
    };
    for (int number = 0; number < 40; ++number) {
        Write(At("dir/sub/" + std::to_string(number)), "x");
    }
    fs::create_symlink("nowhere", At("dir/sub/link"));
    EXPECT_EQ(-3, FSRename(At("dir"), At("volume/other"), false));
    EXPECT_TRUE(fs::is_symlink(At("dir/sub/link")));
    EXPECT_EQ(missing("dir").size() + missing("volume/other").size(), 40U);
    fs::remove(At("dir/sub/link"));
    EXPECT_EQ(0, FSRename(At("dir"), At("volume/other"), false));
    EXPECT_EQ(missing("volume/other").size(), 0U);

    // A full disk is a failed move like any other.
    Write(At("big"), std::string(2 << 20, 'b'));
    EXPECT_NE("", LogOf([&] { EXPECT_EQ(-3, FSRename(At("big"), At("volume/big"), false)); }));
    EXPECT_TRUE(fs::exists(At("big")));
}

TEST_F(FileOpTest, AMillionTemporaryNamesFromEightThreads) {
    constexpr std::size_t kThreads = 8;
    std::vector<std::string> names(1000000);
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&names, thread] {
            for (std::size_t at = thread; at < names.size(); at += kThreads) {
                names[at] = TmpNameGen::getInstance().getTmpName();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::set<char> drawn;
    for (const std::string& name : names) {
        ASSERT_EQ(8U, name.size());
        drawn.insert(name.begin(), name.end());
    }
    const std::string alphabet = "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";
    EXPECT_EQ(alphabet, std::string(drawn.begin(), drawn.end())) << "each is drawn, and nothing else";
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names.end(), std::adjacent_find(names.begin(), names.end()));

    std::string path;
    TmpNameGen::getInstance().reseed();
    EXPECT_EQ(0U, TmpNameGen::getInstance().getTmpPath("/x/").find("/x//"));
    EXPECT_EQ(0, FSCreateTempPath(std::string("/x\0y", 4), path));
    EXPECT_EQ("/x", FSParentPath(path));
}

}  // namespace
