#include <sys/resource.h>

#include <cstdint>
#include <filesystem>
#include <set>
#include <thread>
#include <vector>

#include "logger-test.h"

namespace {

namespace fs = std::filesystem;
using State = LoggerInspector;

constexpr const char* kComponent = "launcher_debug";

// While it lives, no file can be opened.
class NoMoreFiles {
public:
    NoMoreFiles() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const rlimit none{3, before_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &before_); }

private:
    rlimit before_{};
};

class RotationTest : public LoggerTest {
protected:
    // Logs a text; its line takes kStampSize bytes more.
    static void Log(const std::string& text) { Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "%s", text.c_str()); }

    std::string Generation(int number) const { return LogPath() + "_" + std::to_string(number); }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder())) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    // Logging is off, with what must hold then, until Initialize() brings it back.
    void ExpectLoggingIsOff(std::uint64_t rotations) const {
        EXPECT_EQ(State::log_fp(), nullptr);
        EXPECT_EQ(*State::log_size(), 0);
        EXPECT_EQ(*State::shared_count(), rotations);
        EXPECT_EQ(State::private_count(), rotations);
        EXPECT_TRUE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, kComponent));
        const std::set<std::string> before = Names();
        Log("lost\n");
        EXPECT_EQ(Names(), before);
        EXPECT_EQ(*State::log_size(), 0);
    }
};

TEST_F(RotationTest, AFileIsRotatedPastFiveMebibytesAndNotAtThem) {
    Write(LogPath(), std::string(kThreshold - kStampSize - 4, 'x'));
    OpenLog();
    Log("123\n");
    EXPECT_EQ(Names(), std::set<std::string>{"launcher.log"});
    EXPECT_EQ(fs::file_size(LogPath()), kThreshold);
    EXPECT_EQ(*State::log_size(), kThreshold);

    EXPECT_EQ(State::RotateIfFileBig(-1), 0);
    EXPECT_EQ(State::RotateIfFileBig(0), 0);
    EXPECT_EQ(Names(), std::set<std::string>{"launcher.log"});

    EXPECT_EQ(State::RotateIfFileBig(1), 0);
    EXPECT_EQ(Names(), (std::set<std::string>{"launcher.log", "launcher.log_0"}));
    EXPECT_EQ(*State::log_size(), 0);
    EXPECT_EQ(*State::shared_count(), 1U);
    EXPECT_EQ(State::private_count(), 1U);

    Log("new\n");
    EXPECT_EQ(fs::file_size(Generation(0)), kThreshold);
    EXPECT_EQ(Read(LogPath()).substr(kStampSize), "new\n");
    EXPECT_EQ(*State::log_size(), kStampSize + 4);
}

TEST_F(RotationTest, AFileThatIsTooBigAtStartIsRotatedBehindTheFirstMessage) {
    Write(LogPath(), std::string(kThreshold + 1, 'x'));
    OpenLog();
    EXPECT_EQ(Names(), std::set<std::string>{"launcher.log"});
    Log("last\n");
    EXPECT_EQ(Names(), (std::set<std::string>{"launcher.log", "launcher.log_0"}));
    const std::string rotated = Read(Generation(0));
    EXPECT_EQ(rotated.substr(rotated.size() - 5), "last\n");
    EXPECT_EQ(Read(LogPath()), "");
}

TEST_F(RotationTest, AnOldFileNearTheEndOf32BitsIsRotatedToo) {
    Write(LogPath(), "");
    fs::resize_file(LogPath(), INT32_MAX);
    OpenLog();
    Log("last\n");
    EXPECT_EQ(fs::file_size(Generation(0)), std::uintmax_t{INT32_MAX} + kStampSize + 5);
    EXPECT_EQ(*State::log_size(), 0);
}

TEST_F(RotationTest, GenerationsForEachCount) {
    constexpr int kRotations = 60;
    const struct {
        int count;
        int generations;
    } cases[] = {{-1, 1}, {0, 1}, {1, 1}, {2, 1}, {3, 2}, {50, 49}};
    for (const auto& [count, generations] : cases) {
        SCOPED_TRACE(count);
        State::StartUp();
        for (const std::string& name : Names()) {
            fs::remove(At(name));
        }
        OpenLog(count);
        for (int rotation = 0; rotation < kRotations; ++rotation) {
            *State::log_size() = kThreshold;
            Log("message " + std::to_string(rotation) + "\n");
        }
        std::set<std::string> expected = {"launcher.log"};
        for (int number = 0; number < generations; ++number) {
            expected.insert("launcher.log_" + std::to_string(number));
            EXPECT_EQ(Read(Generation(number)).substr(kStampSize),
                      "message " + std::to_string(kRotations - 1 - number) + "\n");
        }
        EXPECT_EQ(Names(), expected);
        EXPECT_EQ(Read(LogPath()), "");
        EXPECT_EQ(State::private_count(), std::uint64_t{kRotations});
    }
}

TEST_F(RotationTest, TheOldestGenerationIsDroppedAndNotOthers) {
    // A gap in the row and a file beyond it, of a run with a greater count.
    Write(Generation(1), "one");
    Write(Generation(2), "two");
    Write(Generation(7), "seven");
    OpenLog(4);
    EXPECT_EQ(State::Rotate(), 0);
    EXPECT_EQ(Names(), (std::set<std::string>{"launcher.log", "launcher.log_0", "launcher.log_2", "launcher.log_7"}));
    EXPECT_EQ(Read(Generation(2)), "one");
}

TEST_F(RotationTest, OnlyAFileIsCounted) {
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, LogPath(), "", 50, Logger::SCOPE_THREAD), 0);
    EXPECT_EQ(State::RotateIfFileBig(kThreshold + 1), 0);
    EXPECT_EQ(*State::log_size(), -1);
}

TEST_F(RotationTest, AFailedRenameTurnsLoggingOff) {
    // Somebody removed the live file, or a folder stands in the way of generation 0.
    for (const bool removed : {true, false}) {
        SCOPED_TRACE(removed);
        OpenLog(1);
        EXPECT_EQ(State::Rotate(), 0);
        if (removed) {
            fs::remove(LogPath());
        } else {
            fs::remove(Generation(0));
            Write(Generation(0) + "/in the way", "");
        }
        *State::log_size() = kThreshold;
        Log("last\n");
        ExpectLoggingIsOff(1);
        if (!removed) {
            EXPECT_EQ(Read(LogPath()).substr(kStampSize), "last\n");
        }
        OpenLog();
        Log("back\n");
        EXPECT_NE(Read(LogPath()).find("back\n"), std::string::npos);
    }
}

TEST_F(RotationTest, AFailedOpenTurnsLoggingOff) {
    OpenLog();
    *State::log_size() = kThreshold;
    {
        const NoMoreFiles none;
        Log("last\n");
    }
    EXPECT_EQ(Names(), std::set<std::string>{"launcher.log_0"});
    EXPECT_EQ(Read(Generation(0)).substr(kStampSize), "last\n");
    ExpectLoggingIsOff(0);
    OpenLog();
    Log("back\n");
    EXPECT_EQ(Read(LogPath()).substr(kStampSize), "back\n");
}

TEST_F(RotationTest, AFileThatAnotherHolderRotatedIsReopened) {
    for (const Logger::SafetyScope scope : {Logger::SCOPE_PROCESS, Logger::SCOPE_THREAD}) {
        SCOPED_TRACE(scope);
        OpenLog(50, scope);
        Log("mine\n");
        fs::rename(LogPath(), Generation(0));
        Write(LogPath(), "of the other\n");
        *State::shared_count() = 5;

        Log("next\n");
        const bool reopens = scope == Logger::SCOPE_PROCESS;
        EXPECT_EQ(fs::file_size(LogPath()), reopens ? 13U + kStampSize + 5 : 13U);
        EXPECT_EQ(*State::log_size(), reopens ? 13 + kStampSize + 5 : 2 * (kStampSize + 5));
        EXPECT_EQ(State::private_count(), reopens ? 5U : 0U);
        fs::remove(LogPath());
    }
}

TEST_F(RotationTest, AFailedReopenTurnsLoggingOff) {
    OpenLog(50, Logger::SCOPE_PROCESS);
    *State::shared_count() = 5;
    {
        const NoMoreFiles none;
        Log("lost\n");
    }
    Log("lost\n");
    EXPECT_EQ(State::log_fp(), nullptr);
    EXPECT_EQ(State::private_count(), 0U);
    EXPECT_EQ(*State::shared_count(), 5U);
    EXPECT_EQ(Read(LogPath()), "");
}

TEST_F(RotationTest, EightThreadsLoseNoLineWhileFilesRotate) {
    constexpr int kThreads = 8;
    constexpr int kMessages = 3000;
    constexpr int kMessagesPerRotation = 500;  // of one thread; 48 rotations in all, which 49 generations hold
    OpenLog();
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([thread] {
            // A filler of the thread's own, so that a line mixed from two is seen.
            const std::string filler(static_cast<std::size_t>(40 + thread), static_cast<char>('a' + thread));
            for (int message = 0; message < kMessages; ++message) {
                if (message % kMessagesPerRotation == kMessagesPerRotation - 1) {
                    State::SetSize(kThreshold);
                }
                Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "%d %d %s\n", thread, message, filler.c_str());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }

    const auto rotations = static_cast<int>(State::private_count());
    EXPECT_GE(rotations, kMessages / kMessagesPerRotation);
    ASSERT_LE(rotations, 49);
    std::string text;
    for (int number = rotations - 1; number >= 0; --number) {
        text += Read(Generation(number));
    }
    text += Read(LogPath());

    // From the oldest to the newest, each thread's lines must come whole and in order.
    std::vector<int> next(kThreads, 0);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        ASSERT_GT(line.size(), std::size_t{kStampSize});
        const int thread = line[kStampSize] - '0';
        ASSERT_TRUE(thread >= 0 && thread < kThreads) << line;
        const auto index = static_cast<std::size_t>(thread);
        ASSERT_EQ(line.substr(kStampSize), std::to_string(thread) + " " + std::to_string(next[index]++) + " " +
                                               std::string(40 + index, static_cast<char>('a' + thread)));
    }
    EXPECT_EQ(next, std::vector<int>(kThreads, kMessages));
}

}  // namespace
