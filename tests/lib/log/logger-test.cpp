#include "log/logger.h"

#include <sys/resource.h>
#include <syslog.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <regex>
#include <thread>

#include "log/log-statement.h"
#include "process.h"
#include "test-folder.h"

namespace {

std::string systemLog;
std::time_t stoppedAt = -1;

}  // namespace

// This program's own vsyslog(3) and time(2) take the place of the system's.
extern "C" void vsyslog(int priority, const char* format, std::va_list arguments) {
    char text[1024];
    std::vsnprintf(text, sizeof(text), format, arguments);
    systemLog += std::to_string(priority) + " " + text;
    errno = ENOTSOCK;
}

// Some systems promise that theirs throws nothing.
extern "C" std::time_t time(std::time_t* /*result*/) noexcept(noexcept(std::time(nullptr))) {
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return stoppedAt == -1 ? now.tv_sec : stoppedAt;
}

namespace {

constexpr std::uintmax_t kBiggest = 5'242'880;  // bytes; the biggest log file that isn't rotated
constexpr std::size_t kStamp = 20;              // bytes of a time stamp
constexpr Logger::Type kTypeAboveFile = static_cast<Logger::Type>(7);

class LoggerTest : public FolderTest {
protected:
    void Open(int count = 50, Logger::Type type = Logger::TYPE_FILE, const std::string& levels = "") const {
        Write(At("levels"), levels);
        EXPECT_EQ(Logger::Initialize(type, At("log"), At("levels"), count, Logger::SCOPE_THREAD), 0);
    }

    // Opens a file of this size, of nothing but a hole.
    void OpenBig(std::uintmax_t size, int count = 50) const {
        Write(At("log"), "");
        fs::resize_file(At("log"), size);
        Open(count);
    }

    static void Log(const std::string& text) { Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%s\n", text.c_str()); }

    // A text with "@" for each time stamp; without an argument that of the log, which is empty afterwards.
    static std::string Stamped(const std::string& text) {
        static const std::regex stamp(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d )");
        return std::regex_replace(text, stamp, "@");
    }
    std::string Taken() const {
        const std::string text = Read(At("log"));
        fs::resize_file(At("log"), 0);
        return Stamped(text);
    }

    // The log's files by their names behind "log", each with its last word.
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder())) {
            if (const std::string name = entry.path().filename().string(); name.rfind("log", 0) == 0) {
                const std::string text = fs::is_directory(entry) ? "folder" : Read(entry.path().string());
                files[name.substr(3)] = text.substr(text.rfind(' ') + 1);
            }
        }
        return files;
    }
};

TEST_F(LoggerTest, EachDestination) {
    EXPECT_EQ(Stamped(StandardErrorOf([] { Log("early"); })), "@early\n") << "before it is set up";
    // What goes to the system log, standard output, standard error and the file, of each type by its number.
    const std::pair<int, const char*> cases[] = {
        {0, "3 one\n|||-"}, {1, "|@one\n||-"}, {2, "||@one\n|-"}, {3, "|||@one\n"}, {7, "||one\n|"}};
    for (const auto& [type, expected] : cases) {
        Open(50, static_cast<Logger::Type>(type), "c=7\n");
        systemLog.clear();
        ::testing::internal::CaptureStdout();
        const std::string errors = StandardErrorOf([] {
            errno = E2BIG;
            Logger::LogMsg(Logger::LEVEL_DEBUG, "c", "%s\n", "one");
            EXPECT_EQ(errno, E2BIG) << "the caller's own";
        });
        const std::string output = ::testing::internal::GetCapturedStdout();
        const std::string file = fs::exists(At("log")) ? Taken() : "-";
        EXPECT_EQ(systemLog + "|" + Stamped(output + "|" + errors) + "|" + file, expected);
    }
}

TEST_F(LoggerTest, LinesFieldByField) {
    Open(50, Logger::TYPE_FILE, "c=7\n");
    const auto thread = reinterpret_cast<std::uintptr_t>(reinterpret_cast<void*>(pthread_self())) % 100000;
    const std::string text(100000, 'x');
    const int line = __LINE__ + 1;
    KQ_LOG_ERROR("c", "%s of %d, ", "text", 2);
    KQ_LOG_WARNING("c", "%s\n", text.c_str());
    KQ_LOG_NOTE("c", "100%%\n");
    KQ_LOG_INFO("c", "\n");
    KQ_LOG_DEBUG("c", "end\n");
    std::string expected;
    int at = line;
    for (const auto& [level, message] : {std::pair("ERROR", std::string("text of 2, ")),
                                         {"WARNING", text + "\n"},
                                         {"NOTE", "100%\n"},
                                         {"INFO", "\n"},
                                         {"DEBUG", "end\n"}}) {
        char prefix[100];
        std::snprintf(prefix, sizeof(prefix), "@(%5d:%5zu) [%s] logger-test.cpp(%d): ", getpid(), thread, level, at++);
        expected += prefix + message;
    }
    EXPECT_EQ(Taken(), expected);
    // A collected stream, and its errno.
    for (const auto& [flags, error] : {std::pair(0, ENOENT), {2, ENOENT}, {4, ENOENT}, {7, ENOENT}, {6, 0}}) {
        std::stringstream stream;
        stream << "hex " << std::hex << 255;
        errno = error;
        Logger::LogMsg3(Logger::LEVEL_ERROR, "c", stream, static_cast<Logger::ConfigFlag>(flags));
    }
    const std::string reason = ", err=2:" + std::string(std::strerror(ENOENT));
    EXPECT_EQ(Taken(), "@hex ff@hex ff\n@hex ff" + reason + "@hex ff" + reason + "\n@hex ff\n");
}

TEST_F(LoggerTest, TheTimeStampFollowsClockAndTimeZone) {
    Open();
    const std::string longZone(70, 'A');  // too long to be remembered
    const std::tuple<std::string, int, const char*> moments[] = {
        {"UTC0", 20, "14T22:13:20"},          {"UTC0", 21, "14T22:13:21"},          {"AAA-5:30", 21, "15T03:43:21"},
        {longZone + "-1", 20, "14T23:13:20"}, {longZone + "-2", 20, "15T00:13:20"}, {":/no/zone", 20, "14T22:13:20"}};
    for (const auto& [zone, second, stamp] : moments) {
        setenv("TZ", zone.c_str(), 1);
        stoppedAt = 1'699'999'980 + second;
        fs::resize_file(At("log"), 0);
        // The caller's errno may be in the message, and is what it was afterwards.
        errno = EXDEV;
        Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%m\n");
        EXPECT_EQ(errno, EXDEV) << zone;
        EXPECT_EQ(Read(At("log")), std::string("2023-11-") + stamp + " " + std::strerror(EXDEV) + "\n") << zone;
    }
    stoppedAt = -1;
}

TEST_F(LoggerTest, LevelFiles) {
    // A malformed file is as good as none, and a component that is not named keeps its level.
    const std::tuple<const char*, int, int> files[] = {{"other=7\nFirst=7\ndefault_component=7\n", 4, 4},
                                                       {"first = 5\nsecond=-1\nfirst=6 # x\n", 6, -1},
                                                       {"second=5\nfirst=all\n", 0, 5},
                                                       {"first=7\nsecond 7\n", 0, 5}};
    for (const auto& [text, first, second] : files) {
        Open(50, Logger::TYPE_FILE, text);
        for (int number = Logger::LEVEL_ERROR; number <= Logger::LEVEL_DEBUG; ++number) {
            EXPECT_EQ(Logger::IsNeedToLog(static_cast<Logger::Level>(number), "first"), number <= first) << text;
            Logger::LogMsg(static_cast<Logger::Level>(number), "second", "text\n");  // asks once more by itself
            EXPECT_EQ(Taken(), number <= second ? "@text\n" : "") << text;
        }
    }
    int evaluated = 0;
    KQ_LOG_INFO("first", "%d", ++evaluated);
    EXPECT_EQ(evaluated, 0);
}

TEST_F(LoggerTest, AFailedStartShutsLoggingUntilTheNext) {
    for (const std::string& path : {std::string(), At("missing/log"), folder()}) {
        Open();
        EXPECT_EQ(Logger::Initialize(kTypeAboveFile, path, "", 50, Logger::SCOPE_THREAD), -1) << path;
        EXPECT_FALSE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, "c"));
        EXPECT_EQ(StandardErrorOf([] { Log("lost"); }) + Taken(), "");
    }
    // A second start closes the file of the first, and no other program gets it.
    Open();
    Open();
    const std::string count = "readlink /proc/$PPID/fd/* /proc/$$/fd/* | grep --count '" + folder() + "'";
    EXPECT_EQ(RunProcess({"/bin/bash", "-c", count}).output, "1\n");
}

TEST_F(LoggerTest, AFileIsContinuedAndRotatedPastFiveMebibytes) {
    // Up to the limit with the next line, and one byte more.
    for (const std::uintmax_t size : {kBiggest, kBiggest + 1}) {
        OpenBig(size - kStamp - 6);
        Log("first");
        EXPECT_EQ(Files().size(), size - kBiggest + 1);
    }
    // The new file counts from its own beginning, and is no other program's.
    Log(std::string(kBiggest - kStamp - 1, 'x'));
    EXPECT_EQ(Files().size(), 2U);
    errno = EXDEV;
    Log("");
    EXPECT_EQ(errno, EXDEV);
    EXPECT_EQ(fs::file_size(At("log_0")) + fs::file_size(At("log")), kBiggest + kStamp + 1);
    EXPECT_EQ(RunProcess({"/bin/bash", "-c", "readlink /proc/$$/fd/* | grep '" + folder() + "'"}).output, "");
    // A file of an earlier run near the end of 31 bits.
    OpenBig(INT32_MAX);
    Log("");
    EXPECT_EQ(fs::file_size(At("log")), 0U);
}

TEST_F(LoggerTest, GenerationsForEachCount) {
    // What there is after eight rotations; "_70" is of a run with a greater count.
    const std::pair<int, const char*> cases[] = {{-1, "= _0=7 _70=far "},
                                                 {1, "= _0=7 _70=far "},
                                                 {2, "= _0=7 _70=far "},
                                                 {3, "= _0=7 _1=6 _70=far "},
                                                 {5, "= _0=7 _1=6 _2=5 _3=4 _70=far "}};
    for (const auto& [count, expected] : cases) {
        Write(At("log_70"), "far");
        for (int rotation = 0; rotation < 8; ++rotation) {
            OpenBig(kBiggest, count);
            Logger::LogMsg(Logger::LEVEL_ERROR, "c", " %d", rotation);
        }
        std::string left;
        for (const auto& [name, word] : Files()) {
            left += name + "=" + word + " ";
            fs::remove(At("log" + name));
        }
        EXPECT_EQ(left, expected) << count;
    }
}

TEST_F(LoggerTest, AFailedRotationTurnsLoggingOffUntilTheNextStart) {
    rlimit before = {};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none = {3, before.rlim_max};
    const std::function<void()> obstacles[] = {[&] { fs::remove(At("log")); }, [&] { Write(At("log_0/x"), ""); },
                                               [&] { setrlimit(RLIMIT_NOFILE, &none); }};
    for (const auto& obstruct : obstacles) {
        OpenBig(kBiggest, 1);
        fs::remove_all(At("log_0"));
        obstruct();
        Log("last");
        setrlimit(RLIMIT_NOFILE, &before);
        const auto files = Files();
        Log("lost");
        EXPECT_EQ(Files(), files);
        fs::remove(At("log"));
        Open();
        Log("back");
        EXPECT_EQ(Taken(), "@back\n");
    }
}

TEST_F(LoggerTest, EightThreadsLoseNoLineWhileFilesRotate) {
    Open();
    // Each thread has a filler of its own, so that a line mixed from two is seen.
    const auto line = [](char thread, int message) {
        return std::to_string(message) + std::string(static_cast<std::size_t>(9900 + thread), thread);
    };
    std::vector<std::thread> threads;
    for (char thread = 'a'; thread < 'i'; ++thread) {
        threads.emplace_back([&line, thread] {
            for (int message = 0; message < 400; ++message) {
                Log(line(thread, message));
            }
        });
    }
    std::for_each(threads.begin(), threads.end(), [](std::thread& thread) { thread.join(); });
    ASSERT_EQ(Files().size(), 7U) << "32 megabytes";
    // From the oldest to the newest, each thread's lines must come whole and in order.
    std::map<char, int> next;
    for (const char* name : {"log_5", "log_4", "log_3", "log_2", "log_1", "log_0", "log"}) {
        std::istringstream lines(Read(At(name)));
        for (std::string text; std::getline(lines, text);) {
            ASSERT_EQ(text.substr(kStamp), line(text.back(), next[text.back()]++));
        }
    }
    for (char thread = 'a'; thread < 'i'; ++thread) {
        EXPECT_EQ(next[thread], 400);
    }
}

}  // namespace
