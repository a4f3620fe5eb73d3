#include <sys/resource.h>
#include <syslog.h>

#include <cctype>
#include <cerrno>
#include <climits>
#include <cstring>
#include <ctime>
#include <future>
#include <regex>

#include "log/config.h"
#include "log/log-statement.h"
#include "process.h"
#include "test-folder.h"

// This program's own vsyslog(3) and time(2) take the place of the system's.
static std::string systemLog;
static std::time_t now = 1'700'000'000;

extern "C" void vsyslog(int priority, const char* format, std::va_list arguments) {
    char text[1024];
    std::vsnprintf(text, sizeof(text), format, arguments);
    systemLog += std::to_string(priority) + " " + text;
    errno = ENOTSOCK;
}

// Some systems promise that theirs throws nothing.
extern "C" std::time_t time(std::time_t* /*result*/) noexcept(noexcept(std::time(nullptr))) {
    return now;
}

namespace {

constexpr std::uintmax_t kBiggest = 5'242'880;  // bytes; the biggest log file that isn't rotated
constexpr std::size_t kStamp = 20;              // bytes of a time stamp

class LogTest : public FolderTest {
protected:
    // What `config_` holds after it has read a file with this text: "key=value;" each, and "!" in front of a failure.
    std::string Held(const std::string& text, const Config& before = Config()) {
        config_ = before;
        Write(At("file"), text);
        std::string held = config_.read(At("file")) == 0 ? "" : "!";
        for (const auto& [key, value] : config_) {
            held += key + "=" + value + ";";
        }
        fs::remove(At("file"));
        return held;
    }

    void Open(std::uintmax_t size = 0, int count = 50, const std::string& levels = "", int type = 3) const {
        Write(At("log"), "");
        fs::resize_file(At("log"), size);
        Write(At("levels"), levels);
        EXPECT_EQ(0, Logger::Initialize({static_cast<Logger::Type>(type), At("log"), At("levels"), count}));
        fs::remove(At("levels"));
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

    std::map<std::string, std::uintmax_t> Files() const {
        std::map<std::string, std::uintmax_t> files;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder())) {
            files[entry.path().filename()] = entry.file_size();
        }
        return files;
    }

    Config config_;
};

TEST_F(LogTest, ConfigTellsBytesApart) {
    for (int code = 1; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        const bool isBlank = code != '\n' && std::isspace(code) != 0;
        const bool isText = code > 31 && code != 127;
        const bool isOfKey = code < 128 && (std::isalnum(code) != 0 || std::strchr("-_.", code) != nullptr);
        if (byte != "#" && byte != "=") {
            const std::string expected = isOfKey ? "k" + byte + "=v;" : isBlank ? "k=v;" : "!";
            EXPECT_EQ(Held("k" + byte + "=v\n"), expected) << code;
        }
        EXPECT_EQ(Held("k=a" + byte + "c\n"), isText && !isBlank ? "k=a" + byte + "c;" : "!") << code;
        EXPECT_EQ(Held("k='a" + byte + "c'\n"), isText && code != '\'' ? "k=a" + byte + "c;" : "!") << code;
        const std::string aside = isBlank ? byte : "";
        EXPECT_EQ(Held(aside + "k" + aside + "=" + aside + "\"v\"" + aside + "# comment"), "k=v;") << code;
    }
}

TEST_F(LogTest, OddConfigFiles) {
    for (const std::string value : {"a#b", "#x", "=b", "a\"b'c"}) {
        EXPECT_EQ(Held("key=" + value + " # comment\nlast=1"), "key=" + value + ";last=1;");
    }
    for (const char* text : {"", "\n   # comment\n#", "key#anything\n", "  key"}) {
        EXPECT_EQ(Held(text), "") << text;
    }
    for (const char* text : {"key\n", "key ", "key value\n", "key=\n", "key=", "key=  # c\n", "key=a b\n",
                             "key=\"a\" b\n", "key=\"a\n", "key=\"a'\n", "\"key\"=a\n", "a=1\nbad\n", "bad\na=1\n"}) {
        EXPECT_EQ(Held(text), "!") << text;
    }
    EXPECT_EQ(Held("=a\nB=\"\"\n=3\n"), "=3;B=;") << "the later one stands";
    const std::string piece(8189, 'v');  // with "k=" one piece of a line
    EXPECT_EQ(Held("k=" + piece + "z=1\n"), "k=" + piece + ";z=1;");
    EXPECT_EQ(Held("k=" + piece + "z\n") + Held("k=\"" + piece + "\"\n"), "!!");
    // Quotes stay on request. A file that can't be read changes nothing, a second one adds, a bad one clears.
    config_.keep_quotes = true;
    EXPECT_EQ(Held("a=\"a b\"\nb='a'\nc=a\n", config_), "a=\"a b\";b='a';c=a;");
    EXPECT_EQ(config_.read("") + config_.read("/no/such/file") + config_.read("/dev/zero"), -3);
    EXPECT_EQ(Held("b=2\n", config_), "a=\"a b\";b=2;c=a;");
    EXPECT_EQ(Held("d=4\nbad\n", config_), "!");
    // To look a missing key up inserts it.
    for (const char* number : {"-3", "+8", "12abc", "abc", "0x10", " 5", "1,000", "2147483648", "-2147483649"}) {
        config_["key"] = number;
        EXPECT_EQ(config_.get_int("key"), std::clamp<long>(std::strtol(number, nullptr, 10), INT_MIN, INT_MAX));
    }
    EXPECT_EQ(config_.get_int("Key"), 0);
    EXPECT_EQ(std::distance(config_.begin(), config_.end()), 2);
}

TEST_F(LogTest, EachDestination) {
    EXPECT_EQ(Stamped(StandardErrorOf([] { Log("early"); })), "@early\n") << "before it is set up";
    // What goes to the system log, standard output, standard error and the file, of each type by its number.
    for (const auto& [type, expected] :
         {std::pair(0, "3 one\n|||"), {1, "|@one\n||"}, {2, "||@one\n|"}, {3, "|||@one\n"}, {7, "||one\n|"}}) {
        Open(0, 50, "c=7\n", type);
        systemLog.clear();
        ::testing::internal::CaptureStdout();
        const std::string errors = StandardErrorOf([] {
            errno = E2BIG;
            Logger::LogMsg(Logger::LEVEL_DEBUG, "c", "%s\n", "one");
            EXPECT_EQ(errno, E2BIG) << "the caller's own";
        });
        const std::string output = ::testing::internal::GetCapturedStdout();
        EXPECT_EQ(systemLog + "|" + Stamped(output + "|" + errors) + "|" + Taken(), expected);
    }
}

TEST_F(LogTest, WholeLinesAndStreams) {
    Open();
    const std::string text(100000, 'x');
    KQ_LOG_WARNING("c", "%s 100%%\n", text.c_str());
    const std::string line = Taken();
    EXPECT_EQ(line.substr(line.find(") [")),
              ") [WARNING] log-test.cpp(" + std::to_string(__LINE__ - 3) + "): " + text + " 100%\n");
    for (const auto& [flags, error] : {std::pair(0, ENOENT), {2, ENOENT}, {4, ENOENT}, {7, ENOENT}, {6, 0}}) {
        std::stringstream stream;
        stream << "hex " << std::hex << 255;
        errno = error;
        Logger::LogMsg3(Logger::LEVEL_ERROR, "c", stream, static_cast<Logger::ConfigFlag>(flags));
    }
    const std::string reason = ", err=2:" + std::string(std::strerror(ENOENT));
    EXPECT_EQ(Taken(), "@hex ff@hex ff\n@hex ff" + reason + "@hex ff" + reason + "\n@hex ff\n");
}

TEST_F(LogTest, TheTimeStampFollowsClockAndTimeZone) {
    const std::string longZone(70, 'A');  // too long to be remembered
    const std::tuple<std::string, int, const char*> moments[] = {
        {"UTC0", 20, "14T22:13:20"},          {"UTC0", 21, "14T22:13:21"},          {"AAA-5:30", 21, "15T03:43:21"},
        {longZone + "-1", 20, "14T23:13:20"}, {longZone + "-2", 20, "15T00:13:20"}, {":/no/zone", 20, "14T22:13:20"}};
    for (const auto& [zone, second, stamp] : moments) {
        setenv("TZ", zone.c_str(), 1);
        now = 1'699'999'980 + second;
        Open();
        // The caller's errno may be in the message, and is what it was afterwards.
        errno = EXDEV;
        Logger::LogMsg(Logger::LEVEL_ERROR, "c", "%m\n");
        EXPECT_EQ(errno, EXDEV) << zone;
        EXPECT_EQ(Read(At("log")), std::string("2023-11-") + stamp + " " + std::strerror(EXDEV) + "\n") << zone;
    }
}

TEST_F(LogTest, LevelFiles) {
    // A malformed file is as good as none, and a component that is not named keeps its level.
    for (const auto& [text, level] : {std::pair("L=7\ndefault_component=7\n", 4),
                                      {"l = 5\n", 5},
                                      {"l=-1\n", -1},
                                      {"l=7\nm 7\n", -1},
                                      {"l=all\n", 0}}) {
        Open(0, 50, text);
        for (int number = Logger::LEVEL_ERROR; number <= Logger::LEVEL_DEBUG; ++number) {
            EXPECT_EQ(Logger::IsNeedToLog(static_cast<Logger::Level>(number), "l"), number <= level) << text;
            Logger::LogMsg(static_cast<Logger::Level>(number), "l", "text\n");  // asks once more by itself
            EXPECT_EQ(Taken(), number <= level ? "@text\n" : "") << text;
        }
    }
    int evaluated = 0;
    KQ_LOG_INFO("l", "%d", ++evaluated);
    EXPECT_EQ(evaluated, 0);
}

TEST_F(LogTest, AFileIsContinuedAndRotatedPastFiveMebibytes) {
    // Up to the limit with the next line, and one byte more. The file is open once, and is no other program's.
    for (const std::uintmax_t size : {kBiggest, kBiggest + 1}) {
        Open(size - kStamp - 6);
        Log("first");
        EXPECT_EQ(Files().size(), size - kBiggest + 1);
        const std::string count = "readlink /proc/$PPID/fd/* /proc/$$/fd/* | grep --count '" + folder() + "'";
        EXPECT_EQ(RunProcess({"/bin/bash", "-c", count}).output, "1\n");
    }
    Log(std::string(kBiggest - kStamp - 1, 'x'));
    EXPECT_EQ(Files().at("log"), kBiggest);
    errno = EXDEV;
    Log("");
    EXPECT_EQ(errno, EXDEV);
    EXPECT_EQ(Files().at("log_0"), kBiggest + kStamp + 1);
    // A file of an earlier run near the end of 31 bits.
    Open(INT32_MAX);
    Log("");
    EXPECT_EQ(Files().at("log"), 0U);
}

TEST_F(LogTest, GenerationsForEachCount) {
    Write(At("log_70"), "far");  // of a run with a greater count
    std::map<std::string, std::uintmax_t> expected = {{"log", 0}, {"log_70", 3}};
    for (const int count : {-1, 1, 2, 3, 5}) {
        for (unsigned rotation = 0; rotation < 8; ++rotation) {
            Open(kBiggest + rotation, count);
            Log("");
        }
        for (int number = 0; number < std::max(count - 1, 1); ++number) {
            expected["log_" + std::to_string(number)] = kBiggest + kStamp + 8 - static_cast<unsigned>(number);
        }
        EXPECT_EQ(Files(), expected) << count;
    }
}

TEST_F(LogTest, AFailureShutsLoggingUntilTheNextStart) {
    rlimit before = {};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none = {3, before.rlim_max};
    const Logger::InitConfig bad = {static_cast<Logger::Type>(7), At("no/log"), ""};
    const std::function<void()> obstacles[] = {[&] { EXPECT_EQ(Logger::Initialize(bad), -1); },
                                               [&] { fs::remove(At("log")); },
                                               [&] { setrlimit(RLIMIT_NOFILE, &none); }};
    for (const auto& obstruct : obstacles) {
        Open(kBiggest, 1);
        obstruct();
        Log("last");
        setrlimit(RLIMIT_NOFILE, &before);
        const auto files = Files();
        EXPECT_EQ(StandardErrorOf([] { Log("lost"); }), "");
        EXPECT_EQ(Files(), files);
        Open();
        Log("back");
        EXPECT_EQ(Taken(), "@back\n");
    }
}

TEST_F(LogTest, EightThreadsLoseNoLineWhileFilesRotate) {
    Open();
    // Each thread has a filler of its own, so that a line mixed from two is seen.
    const auto line = [](char thread, int message) {
        return std::to_string(message) + std::string(static_cast<std::size_t>(9900 + thread), thread);
    };
    std::vector<std::future<void>> threads;
    for (char thread = 'a'; thread < 'i'; ++thread) {
        threads.push_back(std::async(std::launch::async, [&line, thread] {
            for (int message = 0; message < 400; ++message) {
                Log(line(thread, message));
            }
        }));
    }
    threads.clear();  // waits for each
    // From the oldest to the newest, each thread's lines must come whole and in order.
    int total = 0;
    std::map<char, int> next;
    for (const char* name : {"log_5", "log_4", "log_3", "log_2", "log_1", "log_0", "log"}) {
        std::istringstream lines(Read(At(name)));
        for (std::string text; std::getline(lines, text); ++total) {
            ASSERT_EQ(text.substr(kStamp), line(text.back(), next[text.back()]++));
        }
    }
    EXPECT_EQ(total, 3200);
}

}  // namespace
