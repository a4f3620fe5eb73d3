#include "log/logger.h"

#include <pthread.h>
#include <sys/resource.h>
#include <syslog.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <ctime>
#include <map>
#include <regex>
#include <sstream>
#include <thread>
#include <vector>

#include "log/log-statement.h"
#include "process.h"
#include "test-folder.h"

namespace {

std::atomic<std::time_t> stoppedAt{-1};
std::string systemLog;

}  // namespace

// This program's own vsyslog(3) and time(2) take the place of the system's.
extern "C" {
void vsyslog(int priority, const char* format, std::va_list arguments) {
    char text[1024];
    std::vsnprintf(text, sizeof(text), format, arguments);
    systemLog += std::to_string(priority) + " " + text;
    errno = ENOTSOCK;
}

// Some systems promise that theirs throws nothing.
std::time_t time(std::time_t* result) noexcept(noexcept(std::time(nullptr))) {
    const std::time_t stopped = stoppedAt;
    const std::time_t now =
        stopped != -1 ? stopped : std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    return result != nullptr ? *result = now : now;
}
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

    // Logs a line of a text.
    static void Log(const std::string& text) { Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%s\n", text.c_str()); }

    // Logs a line into a file of nothing but a hole, after which it is bigger than allowed.
    void Rotate(int count, const std::string& text) const {
        Write(At("log"), "");
        fs::resize_file(At("log"), kBiggest);
        Open(count);
        Log(text);
    }

    // The text of the log without its time stamps; removes it.
    std::string TakeLog(const std::string& text) const {
        static const std::regex stamp(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d )");
        return std::regex_replace(text, stamp, "@");
    }
    std::string TakeLog() const {
        const std::string text = Read(At("log"));
        fs::resize_file(At("log"), 0);
        return TakeLog(text);
    }

    // The log's files by their names behind "log", each with its last line without the time stamp.
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder())) {
            if (const std::string name = entry.path().filename().string(); name.rfind("log", 0) == 0) {
                const std::string text = fs::is_directory(entry) ? "folder" : Read(entry.path().string());
                files[name.substr(3)] = text.size() > 40 ? text.substr(text.rfind(' ') + 1) : TakeLog(text);
            }
        }
        return files;
    }
};

TEST_F(LoggerTest, EachDestination) {
    // Before it is set up, warnings go to standard error.
    EXPECT_EQ(TakeLog(StandardErrorOf([] {
                  KQ_LOG_INFO("c", "info\n");
                  Log("error");
              })),
              "@error\n");
    const struct {
        Logger::Type type;
        const char* output;
        const char* errors;
        const char* system;
        const char* file;  // null: none
    } cases[] = {{Logger::TYPE_STDOUT, "@one\n", "", "", nullptr},
                 {Logger::TYPE_STDERR, "", "@one\n", "", nullptr},
                 {Logger::TYPE_SYSLOG, "", "", "3 one\n", nullptr},
                 {kTypeAboveFile, "", "one\n", "", ""},  // opens its file, and writes elsewhere
                 {Logger::TYPE_FILE, "", "", "", "@one\n"}};
    for (const auto& one : cases) {
        Open(50, one.type, "c=7\n");
        systemLog.clear();
        ::testing::internal::CaptureStdout();
        const std::string errors = StandardErrorOf([] {
            errno = E2BIG;
            Logger::LogMsg(Logger::LEVEL_DEBUG, "c", "%s\n", "one");
            EXPECT_EQ(errno, E2BIG);
        });
        EXPECT_EQ(TakeLog(::testing::internal::GetCapturedStdout()), one.output);
        EXPECT_EQ(TakeLog(errors), one.errors);
        EXPECT_EQ(systemLog, one.system);
        EXPECT_EQ(fs::exists(At("log")), one.file != nullptr);
        EXPECT_EQ(one.file != nullptr ? TakeLog() : "", one.file != nullptr ? one.file : "");
    }
}

TEST_F(LoggerTest, ALineFieldByField) {
    Open(50, Logger::TYPE_FILE, "c=7\n");
    const int line = __LINE__ + 1;
    KQ_LOG_ERROR("c", "text\n");
    KQ_LOG_WARNING("c", "%s of %d\n", "text", 2);
    KQ_LOG_NOTE("c", "no end, ");
    KQ_LOG_INFO("c", "100%%\n");
    KQ_LOG_DEBUG("c", "%s\n", std::string(100000, 'x').c_str());
    std::string expected;
    const std::pair<const char*, std::string> lines[] = {{"ERROR", "text\n"},
                                                         {"WARNING", "text of 2\n"},
                                                         {"NOTE", "no end, "},
                                                         {"INFO", "100%\n"},
                                                         {"DEBUG", std::string(100000, 'x') + "\n"}};
    for (int at = 0; at < 5; ++at) {
        char prefix[100];
        std::snprintf(
            prefix, sizeof(prefix), "@(%5d:%5d) [%s] logger-test.cpp(%d): ", getpid(),
            static_cast<int>(reinterpret_cast<std::uintptr_t>(reinterpret_cast<void*>(pthread_self())) % 100000),
            lines[at].first, line + at);
        expected += prefix + lines[at].second;
    }
    EXPECT_EQ(TakeLog(), expected);
}

TEST_F(LoggerTest, TheTimeStampIsLocalTimeAndFollowsClockAndTimeZone) {
    constexpr std::time_t kSecond = 1'700'000'000;
    const std::string longZone(70, 'A');  // too long to be remembered
    const struct {
        std::string zone;
        std::time_t second;
        const char* stamp;
    } moments[] = {
        {"UTC0", kSecond, "2023-11-14T22:13:20 "},
        {"UTC0", kSecond, "2023-11-14T22:13:20 "},
        {"UTC0", kSecond + 1, "2023-11-14T22:13:21 "},
        {"AAA-5:30", kSecond + 1, "2023-11-15T03:43:21 "},
        {"BBB8", kSecond + 1, "2023-11-14T14:13:21 "},
        {"BBB8", kSecond, "2023-11-14T14:13:20 "},
        {"", kSecond, "2023-11-14T22:13:20 "},
        {longZone + "-1", kSecond, "2023-11-14T23:13:20 "},
        {longZone + "-2", kSecond, "2023-11-15T00:13:20 "},
        {":/missing/zone", kSecond, "2023-11-14T22:13:20 "},
    };
    Open();
    for (const auto& [zone, second, stamp] : moments) {
        setenv("TZ", zone.c_str(), 1);
        stoppedAt = second;
        fs::resize_file(At("log"), 0);
        // The callers of a statement rely on the errno that they had before it, and it may be in the message.
        errno = EXDEV;
        Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%m\n");
        EXPECT_EQ(errno, EXDEV) << zone;
        EXPECT_EQ(Read(At("log")), stamp + std::string(std::strerror(EXDEV)) + "\n") << zone;
    }
    stoppedAt = -1;
    unsetenv("TZ");
}

__attribute__((format(printf, 3, 4))) void ThroughC(int level, const char* component, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    LogMSG_c(level, component, format, arguments);
    va_end(arguments);
}

TEST_F(LoggerTest, OtherWaysToLog) {
    Open();
    ThroughC(4, "d", "%s %d\n", "text", 3);
    ThroughC(5, "d", "%d\n", 5);
    EXPECT_EQ(TakeLog(), "@text 3\n");
    const std::string text = std::strerror(ENOENT);
    const struct {
        int flags;
        int error;
        std::string line;
    } cases[] = {{0, ENOENT, "hex ff"},
                 {Logger::FLAG_NEWLINE, ENOENT, "hex ff\n"},
                 {Logger::FLAG_ERRNO, ENOENT, "hex ff, err=2:" + text},
                 {Logger::FLAG_ERRNO | Logger::FLAG_NEWLINE | 1, ENOENT, "hex ff, err=2:" + text + "\n"},
                 {Logger::FLAG_ERRNO | Logger::FLAG_NEWLINE, 0, "hex ff\n"}};
    for (const auto& one : cases) {
        std::stringstream stream;
        stream << "hex " << std::hex << 255;
        errno = one.error;
        Logger::LogMsg3(Logger::LEVEL_ERROR, "c", stream, static_cast<Logger::ConfigFlag>(one.flags));
        EXPECT_EQ(TakeLog(), "@" + one.line);
    }
}

TEST_F(LoggerTest, LevelFiles) {
    const struct {
        const char* text;
        int first;
        int second;
    } files[] = {{"other=7\ndefault_component=7\nFirst=7\n", 4, 4},
                 {"first=7\n", 7, 4},
                 {"first = 5\nsecond=-1\nfirst=6 # more\n", 6, -1},
                 {"second=2\nfirst=all\n", 0, 2},
                 // A malformed file is as good as none, and a component that is not named keeps its level.
                 {"first=7\nsecond 7\n", 0, 2}};
    for (const auto& file : files) {
        SCOPED_TRACE(file.text);
        Open(50, Logger::TYPE_FILE, file.text);
        int evaluated = 0;
        for (int number = Logger::LEVEL_ERROR; number <= Logger::LEVEL_DEBUG; ++number) {
            const auto level = static_cast<Logger::Level>(number);
            EXPECT_EQ(Logger::IsNeedToLog(level, "first"), number <= file.first);
            Logger::LogMsg(level, "second", "text\n");  // asks once more by itself
            EXPECT_EQ(TakeLog(), number <= file.second ? "@text\n" : "");
        }
        KQ_LOG_WARNING("second", "%d\n", ++evaluated);
        EXPECT_EQ(evaluated, file.second >= 4 ? 1 : 0);
        TakeLog();
    }
}

TEST_F(LoggerTest, AFailedStartShutsLoggingUntilTheNext) {
    fs::create_directory(At("folder"));
    for (const std::string& path : {std::string(), At("missing/log"), At("folder")}) {
        for (const Logger::Type type : {Logger::TYPE_FILE, kTypeAboveFile}) {
            Open();
            EXPECT_EQ(Logger::Initialize(type, path, "", 50, Logger::SCOPE_THREAD), -1) << path;
            EXPECT_FALSE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, "c"));
            ::testing::internal::CaptureStdout();
            EXPECT_EQ(StandardErrorOf([] { Log("lost"); }) + ::testing::internal::GetCapturedStdout(), "");
            EXPECT_EQ(TakeLog(), "");
        }
    }
    // A second start closes the file of the first, and its levels stay.
    Open(50, Logger::TYPE_FILE, "c=7\n");
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, At("other"), "", 50, Logger::SCOPE_PROCESS), 0);
    Logger::LogMsg(Logger::LEVEL_DEBUG, "c", "debug\n");
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(TakeLog(Read(At("other"))), "@debug\n");
    EXPECT_EQ(RunProcess({"/bin/bash", "-c", "readlink /proc/$PPID/fd/* | grep -c '" + folder() + "'"}).output, "1\n");
}

TEST_F(LoggerTest, AFileIsContinuedAndRotatedPastFiveMebibytes) {
    // Up to the limit with the next line, and one byte more.
    for (const std::uintmax_t size : {kBiggest, kBiggest + 1}) {
        fs::remove(At("log"));
        Write(At("log"), "");
        fs::resize_file(At("log"), size - kStamp - 6);
        Open();
        Log("first");
        EXPECT_EQ(fs::exists(At("log_0")), size > kBiggest);
        EXPECT_EQ(fs::file_size(At(size > kBiggest ? "log_0" : "log")), size);
    }
    // The new file counts from its own beginning.
    Log(std::string(kBiggest - kStamp - 1, 'x'));
    EXPECT_FALSE(fs::exists(At("log_1")));
    errno = EXDEV;
    Log("");
    EXPECT_EQ(errno, EXDEV);
    EXPECT_EQ(fs::file_size(At("log_0")), kBiggest + kStamp + 1);
    Log("new");
    EXPECT_EQ(TakeLog(), "@new\n");
    EXPECT_EQ(Files().size(), 3U);
    const Outcome child = RunProcess({"/bin/bash", "-c", "readlink /proc/$$/fd/*"});
    EXPECT_EQ(child.output.find(folder()), std::string::npos) << "children inherit it: " << child.output;

    // A file of an earlier run near the end of 31 bits.
    fs::resize_file(At("log"), INT32_MAX);
    Open();
    Log("last");
    EXPECT_EQ(fs::file_size(At("log_0")), std::uintmax_t{INT32_MAX} + kStamp + 5);
    fs::remove_all(At("log_0"));
}

TEST_F(LoggerTest, GenerationsForEachCount) {
    const std::pair<int, int> cases[] = {{-1, 1}, {0, 1}, {1, 1}, {2, 1}, {3, 2}, {5, 4}};
    for (const auto& [count, generations] : cases) {
        for (const auto& [name, line] : Files()) {
            fs::remove(At("log" + name));
        }
        std::map<std::string, std::string> expected = {{"", ""}, {"_70", "@far\n"}};
        Write(At("log_70"), "2023-11-14T22:13:20 far\n");  // of a run with a greater count
        for (int rotation = 0; rotation < 8; ++rotation) {
            Rotate(count, std::to_string(rotation));
        }
        for (int number = 0; number < generations; ++number) {
            expected["_" + std::to_string(number)] = std::to_string(7 - number) + "\n";
        }
        EXPECT_EQ(Files(), expected) << count;
    }
    // A gap in the row stays none of the others' business.
    fs::remove(At("log_1"));
    Rotate(5, "8");
    EXPECT_EQ(Files()["_1"] + Files()["_2"] + Files()["_3"], "7\n5\n");
}

TEST_F(LoggerTest, AFailedRotationTurnsLoggingOffUntilTheNextStart) {
    for (const char* about : {"the file is gone", "a folder in the way", "no file can be opened"}) {
        SCOPED_TRACE(about);
        rlimit before = {};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none = {3, before.rlim_max};
        Write(At("log"), "");
        fs::resize_file(At("log"), kBiggest);
        Open(1);
        if (about[0] == 't') {
            fs::remove(At("log"));
        } else if (about[0] == 'a') {
            Write(At("log_0/in the way"), "");
        } else {
            fs::remove_all(At("log_0"));
            setrlimit(RLIMIT_NOFILE, &none);
        }
        Log("last");
        setrlimit(RLIMIT_NOFILE, &before);
        const auto files = Files();
        Log("lost");
        EXPECT_EQ(Files(), files);
        EXPECT_TRUE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, "c"));
        fs::remove(At("log"));
        Open();
        Log("back");
        EXPECT_EQ(TakeLog(), "@back\n");
    }
}

TEST_F(LoggerTest, EightThreadsLoseNoLineWhileFilesRotate) {
    constexpr int kThreads = 8;
    constexpr int kMessages = 400;
    Open();
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([thread] {
            // A filler of the thread's own, so that a line mixed from two is seen.
            const std::string filler(static_cast<std::size_t>(10000 + thread), static_cast<char>('a' + thread));
            for (int message = 0; message < kMessages; ++message) {
                Log(std::to_string(thread) + " " + std::to_string(message) + " " + filler);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    ASSERT_EQ(Files().size(), 7U) << "32 megabytes";
    // From the oldest to the newest, each thread's lines must come whole and in order.
    std::map<char, int> next;
    for (const char* name : {"log_5", "log_4", "log_3", "log_2", "log_1", "log_0", "log"}) {
        std::istringstream lines(Read(At(name)));
        for (std::string line; std::getline(lines, line);) {
            const char thread = line.size() > kStamp ? line[kStamp] : '0';
            const auto filler = static_cast<std::size_t>(10000 + thread - '0');
            ASSERT_EQ(line.substr(kStamp), std::string(1, thread) + " " + std::to_string(next[thread]++) + " " +
                                               std::string(filler, static_cast<char>('a' + thread - '0')));
        }
    }
    for (char thread = '0'; thread < '0' + kThreads; ++thread) {
        EXPECT_EQ(next[thread], kMessages);
    }
}

}  // namespace
