#include "file/tmp-name.h"

#include <algorithm>
#include <thread>
#include <vector>

#include "file-op-test.h"

namespace {

using TmpNameTest = FileOpTest;

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

TEST_F(TmpNameTest, MillionNamesFromEightThreads) {
    constexpr std::size_t kThreads = 8;
    constexpr std::size_t kNames = 1000000;
    std::vector<std::string> names(kNames);
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&names, thread] {
            for (std::size_t at = thread; at < kNames; at += kThreads) {
                names[at] = TmpNameGen::getInstance().getTmpName();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    const bool areWellFormed = std::all_of(names.begin(), names.end(), [](const std::string& name) {
        return name.size() == 8 && name.find_first_not_of(kAlphabet) == std::string::npos;
    });
    EXPECT_TRUE(areWellFormed);
    std::string characters;
    for (const char character : kAlphabet) {
        const bool isUsed = std::any_of(names.begin(), names.end(), [=](const std::string& name) {
            return name.find(character) != std::string::npos;
        });
        characters += isUsed ? std::string(1, character) : "";
    }
    EXPECT_EQ(kAlphabet, characters) << "each is drawn";
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names.end(), std::adjacent_find(names.begin(), names.end()));
}

TEST_F(TmpNameTest, Paths) {
    TmpNameGen& generator = TmpNameGen::getInstance();
    generator.reseed();
    EXPECT_EQ(0U, generator.getTmpPath("/x/").find("/x//"));
    std::string path;
    EXPECT_EQ(0, FSCreateTempPath(At("absent"), path));
    EXPECT_EQ(At("absent/").size() + 8, path.size());
    EXPECT_EQ(At("absent"), FSParentPath(path));
    EXPECT_FALSE(fs::exists(At("absent")));
    EXPECT_EQ(0, FSCreateTempPath(std::string("/x\0y", 4), path));
    EXPECT_EQ("/x", FSParentPath(path));
}

TEST_F(TmpNameTest, RealFile) {
    for (const mode_t mask : {000U, 022U, 077U}) {
        umask(mask);
        std::string path;
        EXPECT_EQ(0, FSMktemp(folder(), path));
        EXPECT_EQ(folder(), FSParentPath(path));
        EXPECT_EQ(0644U, ModeOf(path));
        EXPECT_EQ("", Read(path));
    }
    std::string path = "old";
    const std::string log = LogOf([&] { EXPECT_EQ(-1, FSMktemp(At("absent"), path)); });
    EXPECT_EQ(0U, log.find("ERROR mkstemp(" + At("absent/"))) << log;
    EXPECT_NE(std::string::npos, log.find("): No such file or directory\n")) << log;
    // Cut, the path has no place for a name.
    LogOf([&] { EXPECT_EQ(-1, FSMktemp(std::string(4092, '/'), path)); });
    EXPECT_EQ("old", path);
}

// Nothing that the library opens is open afterwards.
TEST_F(TmpNameTest, DescriptorsAreClosed) {
    Write(At("file"), "text");
    const auto open = [] { return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()); };
    const auto before = open();
    std::string path;
    DIR_HANDLE handle;
    FSMktemp(folder(), path);
    FSCopy(At("file"), At("copy"), true, true);
    LogOf([&] {
        FSCopy(folder(), At("nothing"), false, false);
        FSFsync("/dev/null");
    });
    FSOpenDir(folder(), 1, handle);
    FSCloseDir(handle);
    FSRemove(At("copy"), false);
    EXPECT_EQ(before, open());
}

}  // namespace
