#include "logger-test.h"

#include <regex.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>

#include "fake-system.h"
#include "log/log-statement.h"

namespace {

namespace fs = std::filesystem;
using State = LoggerInspector;

constexpr Logger::Type kTypeAboveFile = static_cast<Logger::Type>(7);
constexpr const char* kStamp = "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2} ";

template <typename Action>
std::string StandardOutputOf(Action action) {
    ::testing::internal::CaptureStdout();
    action();
    return ::testing::internal::GetCapturedStdout();
}

// Whether the whole text matches an extended regular expression of POSIX.
bool Matches(const std::string& text, const std::string& pattern) {
    regex_t compiled;
    if (regcomp(&compiled, ("^(" + pattern + ")$").c_str(), REG_EXTENDED | REG_NOSUB) != 0) {
        return false;
    }
    const bool matches = regexec(&compiled, text.c_str(), 0, nullptr, 0) == 0;
    regfree(&compiled);
    return matches;
}

// Whether the whole text is time stamp and text in turn; `texts` holds a regular expression for each.
::testing::AssertionResult IsStamped(const std::string& text, const std::vector<std::string>& texts) {
    std::string pattern;
    for (const std::string& one : texts) {
        pattern += kStamp + one;
    }
    if (Matches(text, pattern)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << '"' << text << "\" is not " << pattern;
}

// Sets TZ, or unsets it with null, and puts back what it was.
class TimeZone {
public:
    explicit TimeZone(const char* zone) {
        if (const char* before = std::getenv("TZ")) {
            before_ = before;
            was_set_ = true;
        }
        Set(zone);
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() { Set(was_set_ ? before_.c_str() : nullptr); }

    static void Set(const char* zone) {
        if (zone != nullptr) {
            setenv("TZ", zone, 1);
        } else {
            unsetenv("TZ");
        }
    }

private:
    std::string before_;
    bool was_set_ = false;
};

__attribute__((format(printf, 3, 4))) void ThroughList(Logger::Level level, const char* component, const char* format,
                                                       ...) {
    std::va_list arguments;
    va_start(arguments, format);
    Logger::LogMsg2(level, component, format, arguments);
    va_end(arguments);
}

__attribute__((format(printf, 3, 4))) void ThroughC(int level, const char* component, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    LogMSG_c(level, component, format, arguments);
    va_end(arguments);
}

// Start-up

TEST_F(LoggerTest, StartsOpenWithWarningsToStandardError) {
    EXPECT_TRUE(State::log_initialized());
    EXPECT_EQ(State::log_fp(), stderr);
    EXPECT_EQ(State::config().type, Logger::TYPE_STDOUT);
    EXPECT_EQ(State::config().rotate_count, 50);
    EXPECT_EQ(State::config().safety_scope, Logger::SCOPE_THREAD);
    EXPECT_TRUE(State::log_level().empty());
    EXPECT_EQ(State::log_size(), nullptr);
    EXPECT_EQ(State::log_lock(), nullptr);
    EXPECT_EQ(State::shared_count(), nullptr);

    std::string output;
    const std::string error = StandardErrorOf([&] {
        output = StandardOutputOf([] {
            KQ_LOG_INFO("launcher_debug", "info\n");
            KQ_LOG_WARNING("launcher_debug", "warning\n");
            KQ_LOG_ERROR("launcher_debug", "error\n");
        });
    });
    EXPECT_EQ(output, "");
    EXPECT_TRUE(IsStamped(error, {"[^\n]*warning\n", "[^\n]*error\n"}));
}

// Destinations

TEST_F(LoggerTest, StandardStreams) {
    const auto log = [] { Logger::LogMsg(Logger::LEVEL_ERROR, "c", "one %s\n", "message"); };
    for (const Logger::Type type : {Logger::TYPE_STDOUT, Logger::TYPE_STDERR}) {
        EXPECT_EQ(Logger::Initialize(type, LogPath(), "", 50, Logger::SCOPE_PROCESS), 0);
        std::string output;
        const std::string error = StandardErrorOf([&] { output = StandardOutputOf(log); });
        const bool to_output = type == Logger::TYPE_STDOUT;
        EXPECT_TRUE(IsStamped(to_output ? output : error, {"one message\n"}));
        EXPECT_EQ(to_output ? error : output, "");

        EXPECT_EQ(State::config().safety_scope, Logger::SCOPE_NONE);
        EXPECT_EQ(State::log_lock(), nullptr);
        EXPECT_EQ(State::log_path(), "");
        EXPECT_EQ(*State::log_size(), -1);
        EXPECT_FALSE(fs::exists(LogPath()));
    }
}

TEST_F(LoggerTest, SystemLogGetsEveryLevelAsAnErrorWithoutTimeStamp) {
    Write(At("levels"), "c=7\n");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_SYSLOG, LogPath(), At("levels"), 50, Logger::SCOPE_THREAD), 0);
    EXPECT_EQ(State::log_fp(), nullptr);
    EXPECT_EQ(State::config().safety_scope, Logger::SCOPE_NONE);
    EXPECT_EQ(*State::log_size(), -1);

    SystemLog().clear();
    errno = E2BIG;
    Logger::LogMsg(Logger::LEVEL_DEBUG, "c", "debug %d\n", 1);
    EXPECT_EQ(errno, E2BIG);
    Logger::LogMsg(Logger::LEVEL_ERROR, "c", "error %d\n", 2);
    Logger::LogMsg(Logger::LEVEL_INFO, "other", "info\n");
    EXPECT_EQ(SystemLog(), (std::vector<std::pair<int, std::string>>{{3, "debug 1\n"}, {3, "error 2\n"}}));
}

TEST_F(LoggerTest, ATypeAboveFileOpensItsFileAndWritesToStandardError) {
    ASSERT_EQ(Logger::Initialize(kTypeAboveFile, LogPath(), "", 50, Logger::SCOPE_THREAD), 0);
    EXPECT_EQ(State::config().safety_scope, Logger::SCOPE_NONE);
    EXPECT_EQ(State::log_path(), LogPath());
    *State::log_size() = kThreshold;
    EXPECT_EQ(StandardErrorOf([] { Logger::LogMsg(Logger::LEVEL_ERROR, "c", "bare %d\n", 9); }), "bare 9\n");
    EXPECT_EQ(Read(LogPath()), "");
    EXPECT_EQ(*State::log_size(), kThreshold);
    EXPECT_FALSE(fs::exists(At("launcher.log_0")));

    EXPECT_EQ(Logger::Initialize(kTypeAboveFile, "", "", 50, Logger::SCOPE_THREAD), -1);
}

TEST_F(LoggerTest, FileIsContinuedAndCounted) {
    Write(LogPath(), "of an earlier run\n");
    OpenLog();
    EXPECT_EQ(*State::log_size(), 18);
    EXPECT_EQ(State::log_path(), LogPath());
    Logger::LogMsg(Logger::LEVEL_WARNING, "c", "%s\n", "of this run");
    EXPECT_TRUE(Matches(Read(LogPath()), "of an earlier run\n" + std::string(kStamp) + "of this run\n"));
    EXPECT_EQ(*State::log_size(), 18 + kStampSize + 12);
}

TEST_F(LoggerTest, AMutexForEveryScopeButNone) {
    OpenLog(50, Logger::SCOPE_NONE);
    EXPECT_EQ(State::log_lock(), nullptr);
    OpenLog(50, Logger::SCOPE_THREAD);
    EXPECT_NE(State::log_lock(), nullptr);
    OpenLog(50, Logger::SCOPE_PROCESS);
    EXPECT_NE(State::log_lock(), nullptr);
}

// Lines

TEST_F(LoggerTest, ALineFieldByField) {
    Write(At("levels"), "file_op_debug=7\n");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, LogPath(), At("levels"), 50, Logger::SCOPE_THREAD), 0);
    const int line = __LINE__ + 1;
    KQ_LOG_ERROR("file_op_debug", "text\n");
    KQ_LOG_WARNING("file_op_debug", "%s of %d\n", "text", 2);
    KQ_LOG_NOTE("file_op_debug", "text\n");
    KQ_LOG_INFO("file_op_debug", "100%%\n");
    KQ_LOG_DEBUG("file_op_debug", "text\n");

    char origin[64];
    std::snprintf(origin, sizeof(origin), "\\(%5d:%5d\\) ", getpid(),
                  static_cast<int>(reinterpret_cast<std::uintptr_t>(reinterpret_cast<void*>(pthread_self())) % 100000));
    const auto field = [&](const char* tag, int at, const char* text) {
        return origin + std::string("\\[") + tag + "\\] logger-test\\.cpp\\(" + std::to_string(at) + "\\): " + text;
    };
    EXPECT_TRUE(IsStamped(Read(LogPath()), {field("ERROR", line, "text\n"), field("WARNING", line + 1, "text of 2\n"),
                                            field("NOTE", line + 2, "text\n"), field("INFO", line + 3, "100%\n"),
                                            field("DEBUG", line + 4, "text\n")}));
}

TEST_F(LoggerTest, TextIsNeitherEndedNorCut) {
    OpenLog();
    const std::string long_text(100'000, 'x');
    Logger::LogMsg(Logger::LEVEL_ERROR, "c", "no newline");
    Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%s\n", long_text.c_str());
    const std::string text = Read(LogPath());
    EXPECT_TRUE(IsStamped(text.substr(0, 2 * kStampSize + 10), {"no newline", ""}));
    EXPECT_EQ(text.substr(2 * kStampSize + 10), long_text + "\n");
}

TEST_F(LoggerTest, TheTimeStampIsLocalTimeAndFollowsClockAndTimeZone) {
    constexpr std::time_t kSecond = 1'700'000'000;
    const struct {
        const char* zone;
        std::time_t second;
        const char* stamp;
    } moments[] = {
        {"UTC0", kSecond, "2023-11-14T22:13:20 "},
        {"UTC0", kSecond, "2023-11-14T22:13:20 "},
        {"UTC0", kSecond + 1, "2023-11-14T22:13:21 "},
        {"AAA-5:30", kSecond + 1, "2023-11-15T03:43:21 "},
        {"BBB8", kSecond + 1, "2023-11-14T14:13:21 "},
        {"BBB8", kSecond, "2023-11-14T14:13:20 "},  // the clock was put back
        {"", kSecond, "2023-11-14T22:13:20 "},
        // A zone too long to be remembered, twice.
        {"AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA-1", kSecond, "2023-11-14T23:13:20 "},
        {"AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA-2", kSecond, "2023-11-15T00:13:20 "},
    };
    const TimeZone keeper("UTC0");
    OpenLog();
    const StoppedClock clock(kSecond);
    for (const auto& [zone, second, stamp] : moments) {
        SCOPED_TRACE(zone);
        TimeZone::Set(zone);
        StoppedClock::Set(second);
        fs::resize_file(LogPath(), 0);
        Logger::LogMsg(Logger::LEVEL_ERROR, "c", "\n");
        EXPECT_EQ(Read(LogPath()), stamp + std::string("\n"));
    }
}

TEST_F(LoggerTest, AnArgumentListAndPlainTextPointers) {
    OpenLog();
    ThroughList(Logger::LEVEL_ERROR, "c", "%s %d\n", "list", 2);
    ThroughC(4, "c", "%s %d\n", "text", 3);
    ThroughList(Logger::LEVEL_INFO, "c", "%d\n", 4);
    ThroughC(5, "c", "%d\n", 5);
    EXPECT_TRUE(IsStamped(Read(LogPath()), {"list 2\n", "text 3\n"}));
}

TEST_F(LoggerTest, ACollectedStream) {
    OpenLog();
    errno = ENOENT;
    char platform_text[128];  // what "%m" gives on this platform
    std::snprintf(platform_text, sizeof(platform_text), "%m");
    const std::string with_errno = "hex ff, err=2:";
    const struct {
        int flags;
        int error;
        std::string stream;
        std::string line;
    } cases[] = {
        {0, ENOENT, "hex ff", "hex ff"},
        {Logger::FLAG_NEWLINE, ENOENT, "hex ff", "hex ff\n"},
        {Logger::FLAG_ERRNO, ENOENT, with_errno, with_errno + platform_text},
        {Logger::FLAG_ERRNO | Logger::FLAG_NEWLINE | 1, ENOENT, with_errno, with_errno + platform_text + "\n"},
        {Logger::FLAG_ERRNO | Logger::FLAG_NEWLINE, 0, "hex ff", "hex ff\n"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.flags);
        fs::resize_file(LogPath(), 0);
        std::stringstream stream;
        stream << "hex " << std::hex << 255;
        errno = one.error;
        Logger::LogMsg3(Logger::LEVEL_ERROR, "c", stream, static_cast<Logger::ConfigFlag>(one.flags));
        EXPECT_EQ(stream.str(), one.stream);
        EXPECT_EQ(Read(LogPath()).substr(kStampSize), one.line);
    }
}

TEST_F(LoggerTest, AMessageThatCanNotBeFormattedCountsOneLess) {
    OpenLog();
    const wchar_t no_character[] = {static_cast<wchar_t>(0xD800), L'\0'};  // half a pair
    Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%ls", no_character);
    EXPECT_EQ(*State::log_size(), kStampSize - 1);
}

// The callers of a statement rely on the errno that they had before it.
TEST_F(LoggerTest, AMessageLeavesErrnoAsItWas) {
    const auto log = [] {
        errno = EXDEV;
        KQ_LOG_ERROR("c", "text\n");
        return errno;
    };
    const char* const zones[] = {nullptr, "", "UTC0", ":/missing/zone", "No/Such/Zone", ":"};
    for (const char* zone : zones) {
        SCOPED_TRACE(zone != nullptr ? zone : "unset");
        const TimeZone keeper(zone);
        for (const Logger::Type type : {Logger::TYPE_FILE, Logger::TYPE_STDOUT, Logger::TYPE_STDERR}) {
            ASSERT_EQ(Logger::Initialize(type, LogPath(), "", 3, Logger::SCOPE_PROCESS), 0);
            StandardErrorOf([&] { StandardOutputOf([&] { EXPECT_EQ(log(), EXDEV); }); });
        }
        State::StartUp();
        StandardErrorOf([&] { EXPECT_EQ(log(), EXDEV); });
    }
    // A device may be asked on the first write whether it is a terminal.
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, "/dev/null", "", 3, Logger::SCOPE_THREAD), 0);
    EXPECT_EQ(log(), EXDEV);

    OpenLog(3, Logger::SCOPE_PROCESS);
    *State::log_size() = kThreshold;
    EXPECT_EQ(log(), EXDEV);
    ASSERT_TRUE(fs::exists(At("launcher.log_0")));
    *State::shared_count() += 1;
    EXPECT_EQ(log(), EXDEV);
    EXPECT_EQ(State::private_count(), *State::shared_count());
}

TEST_F(LoggerTest, ErrnoInAMessageIsTheCallers) {
    const TimeZone keeper(":/another/missing/zone");
    OpenLog();
    errno = EXDEV;
    Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%m\n");
    errno = EXDEV;
    char expected[128];
    std::snprintf(expected, sizeof(expected), "%m\n");
    EXPECT_EQ(Read(LogPath()).substr(kStampSize), expected);
}

// Levels

TEST_F(LoggerTest, LevelFiles) {
    const struct {
        const char* text;  // null: no file
        int launcher;
        int service;
        int extractor;
    } files[] = {
        {nullptr, 4, 4, 4},
        {"", 4, 4, 4},
        {"launcher_debug=7\n", 7, 4, 4},
        {"launcher_debug = 7\nservice_debug=3 # errors\n", 7, 3, 4},
        {"launcher_debug=7 # on\n", 7, 4, 4},
        {"launcher_debug=5\nlauncher_debug=6\n", 6, 4, 4},
        {"default_component=7\n", 4, 4, 4},
        {"Launcher_debug=7\nsomething=7\n", 4, 4, 4},
        {"extractor_debug=0\nservice_debug=2\nlauncher_debug=all\n", 0, 2, 0},
        {"extractor_debug=-1\nlauncher_debug='6'\n", 6, 4, -1},
        {"launcher_debug=\n", 4, 4, 4},
        {"launcher_debug=7\nservice_debug=7\nextractor_debug 7\n", 4, 4, 4},
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file.text != nullptr ? file.text : "no file");
        State::StartUp();
        if (file.text != nullptr) {
            Write(At("levels"), file.text);
        }
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, LogPath(), At("levels"), 50, Logger::SCOPE_THREAD), 0);
        for (int number = Logger::LEVEL_ERROR; number <= Logger::LEVEL_DEBUG; ++number) {
            const auto level = static_cast<Logger::Level>(number);
            EXPECT_EQ(Logger::IsNeedToLog(level, "launcher_debug"), number <= file.launcher);
            EXPECT_EQ(Logger::IsNeedToLog(level, "service_debug"), number <= file.service);
            // LogMsg asks once more by itself.
            fs::resize_file(LogPath(), 0);
            Logger::LogMsg(level, "extractor_debug", "text\n");
            EXPECT_EQ(fs::file_size(LogPath()) != 0, number <= file.extractor);
        }
    }
}

TEST_F(LoggerTest, ADisabledStatementDoesNotEvaluateItsArguments) {
    OpenLog();
    int evaluated = 0;
    KQ_LOG_DEBUG("service_debug", "%d\n", ++evaluated);
    EXPECT_EQ(evaluated, 0);
    KQ_LOG_WARNING("service_debug", "%d\n", ++evaluated);
    EXPECT_EQ(evaluated, 1);
}

// Again and in vain

TEST_F(LoggerTest, ASecondInitializeKeepsLevelsAndClosesTheFirstFile) {
    Write(At("levels"), "launcher_debug=7\nservice_debug=7\n");
    Write(At("other-levels"), "service_debug=3\n");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, LogPath(), At("levels"), 50, Logger::SCOPE_THREAD), 0);
    const int descriptor = fileno(State::log_fp());
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, At("second.log"), At("other-levels"), 9, Logger::SCOPE_THREAD), 0);
    EXPECT_EQ(fileno(State::log_fp()), descriptor);  // it was free again
    Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "debug\n");
    Logger::LogMsg(Logger::LEVEL_WARNING, "service_debug", "warning\n");
    EXPECT_EQ(Read(LogPath()), "");
    EXPECT_TRUE(IsStamped(Read(At("second.log")), {"debug\n"}));
    EXPECT_EQ(State::config().rotate_count, 9);
}

TEST_F(LoggerTest, AFailedInitializeShutsLoggingUntilTheNext) {
    fs::create_directory(At("folder"));
    for (const std::string& path : {std::string(), At("missing/launcher.log"), At("folder")}) {
        SCOPED_TRACE(path);
        for (const bool was_open : {false, true}) {
            State::StartUp();
            if (was_open) {
                OpenLog();
            }
            EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, path, "", 50, Logger::SCOPE_THREAD), -1);
            EXPECT_FALSE(State::log_initialized());
            EXPECT_FALSE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, "launcher_debug"));
            EXPECT_NE(State::log_lock(), nullptr);
            EXPECT_NE(State::log_size(), nullptr);
            std::string output;
            EXPECT_EQ(StandardErrorOf([&] {
                          output = StandardOutputOf([] { Logger::LogMsg(Logger::LEVEL_ERROR, "c", "lost\n"); });
                      }),
                      "");
            EXPECT_EQ(output, "");
        }
        // The standard streams outlive it.
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 50, Logger::SCOPE_THREAD), 0);
        EXPECT_TRUE(IsStamped(StandardErrorOf([] { Logger::LogMsg(Logger::LEVEL_ERROR, "c", "back\n"); }), {"back\n"}));
    }
}

TEST_F(LoggerTest, DestroyLeavesNothingOpen) {
    OpenLog(9);
    State::Destroy();
    EXPECT_FALSE(State::log_initialized());
    EXPECT_EQ(State::log_fp(), stdout);
    EXPECT_EQ(State::config().type, Logger::TYPE_STDERR);
    EXPECT_EQ(State::config().rotate_count, 32);
    EXPECT_EQ(State::log_path(), "");
    EXPECT_EQ(State::log_size(), nullptr);
    EXPECT_EQ(State::shared_count(), nullptr);
    EXPECT_EQ(State::log_lock(), nullptr);
}

TEST_F(LoggerTest, FileSizes) {
    OpenLog();
    Write(At("big"), "");
    fs::resize_file(At("big"), (std::uintmax_t{5} << 30) + 7);
    EXPECT_EQ(State::GetFileSize(At("big")), (1 << 30) + 7);
    EXPECT_EQ(Read(LogPath()), "");

    EXPECT_EQ(State::GetFileSize("/missing/file"), 0);
    EXPECT_TRUE(
        IsStamped(Read(LogPath()), {"stat\\(/missing/file\\): " + std::string(std::strerror(ENOENT)) + " \\(2\\)\n"}));
}

TEST_F(LoggerTest, ChildrenDoNotInheritTheLogFile) {
    if (!fs::exists("/proc/self/fd")) {
        GTEST_SKIP() << "no list of open files on this platform";
    }
    // What a program that is started now has open.
    const auto open_in_child = [] {
        std::FILE* const child = popen("ls -l /proc/self/fd", "r");
        std::string list;
        char line[1024];
        while (std::fgets(line, sizeof(line), child) != nullptr) {
            list += line;
        }
        EXPECT_EQ(pclose(child), 0);
        return list;
    };
    OpenLog(3, Logger::SCOPE_PROCESS);
    std::FILE* const inherited = std::fopen(At("inherited").c_str(), "a");
    std::string open = open_in_child();
    EXPECT_NE(open.find(At("inherited")), std::string::npos) << open;
    EXPECT_EQ(open.find(LogPath()), std::string::npos) << open;

    EXPECT_EQ(State::Rotate(), 0);
    EXPECT_EQ(open_in_child().find(LogPath()), std::string::npos);

    *State::shared_count() += 1;
    Logger::LogMsg(Logger::LEVEL_ERROR, "c", "reopens\n");
    ASSERT_EQ(State::private_count(), *State::shared_count());
    EXPECT_EQ(open_in_child().find(LogPath()), std::string::npos);
    std::fclose(inherited);
}

}  // namespace
