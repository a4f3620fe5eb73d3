#include "log/logger.h"

#include <sys/stat.h>
#include <syslog.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>

#include "log/config.h"
#include "log/log-file.h"
#include "platform/inheritance.h"

namespace {

// Warnings and errors: the level of a component that the level file doesn't name.
constexpr std::int32_t kDefaultLevel = Logger::LEVEL_WARNING;

constexpr std::size_t kTimeStampBuffer = 512;

// Puts errno back at the end of a scope: library calls may set it although nothing went wrong.
class ErrnoKeeper {
public:
    ErrnoKeeper() = default;
    ErrnoKeeper(const ErrnoKeeper&) = delete;
    ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;
    ~ErrnoKeeper() { errno = errno_before_; }

private:
    const int errno_before_ = errno;
};

// Writes the local time in whole seconds, with a blank behind it, to `text`. Source: localtime(3), strftime(3).
void FormatTimeStamp(std::time_t now, char (&text)[kTimeStampBuffer]) {
    // localtime leaves ENOENT where the machine has no time zone file; but the message may show the caller's errno
    // ("%m"), and the caller may read it afterwards.
    const ErrnoKeeper keeper;
    const std::tm* const local = std::localtime(&now);
    if (local == nullptr || std::strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%S ", local) == 0) {
        text[0] = '\0';
    }
}

// A time stamp and what it was made from.
struct TimeStamp {
    bool valid;
    std::time_t second;
    bool zone_is_set;
    char zone[64];  // the value of TZ
    char text[kTimeStampBuffer];
};

// The time stamp of this moment, valid until this thread's next call.
//
// It is kept while the second and TZ stay the same: with TZ unset, localtime looks at the machine's time zone file on
// each call, which takes longer than to write the message. Each thread keeps its own, since a logger without a mutex
// may serve several.
const char* CurrentTimeStamp() {
    static thread_local TimeStamp kept;
    const std::time_t now = std::time(nullptr);
    const char* const set = std::getenv("TZ");
    const char* const zone = set != nullptr ? set : "";
    if (kept.valid && kept.second == now && kept.zone_is_set == (set != nullptr) && std::strcmp(kept.zone, zone) == 0) {
        return kept.text;
    }
    FormatTimeStamp(now, kept.text);
    const std::size_t length = std::strlen(zone);
    kept.valid = length < sizeof(kept.zone);
    if (kept.valid) {
        kept.second = now;
        kept.zone_is_set = set != nullptr;
        std::memcpy(kept.zone, zone, length + 1);
    }
    return kept.text;
}

}  // namespace

Logger::InitConfig Logger::config;
std::unordered_map<std::string, std::int32_t> Logger::log_level;
// Not the stream that `config.type` names, deliberately: what is logged before Initialize() goes to standard error.
std::atomic<std::FILE*> Logger::log_fp{stderr};
std::string Logger::log_path;
std::atomic<bool> Logger::log_initialized{true};
std::int32_t* Logger::log_size = nullptr;
pthread_mutex_t* Logger::log_lock = nullptr;
std::uint64_t* Logger::log_rotated_count_shared = nullptr;
std::uint64_t Logger::log_rotated_count_private = 0;
std::int32_t Logger::log_flock = -1;

// Set-up and destinations

int Logger::Initialize(Type type, const std::string& path, const std::string& debug_conf_path, int rotate_count,
                       SafetyScope scope) {
    InitConfig init_config;
    init_config.type = type;
    init_config.path = path;
    init_config.debug_conf_path = debug_conf_path;
    init_config.rotate_count = rotate_count;
    init_config.safety_scope = scope;
    return Initialize(init_config);
}

int Logger::Initialize(const InitConfig& init_config) {
    Destroy();
    config = init_config;
    const std::string path = toXString(config.path);
    const std::string debug_conf_path = toXString(config.debug_conf_path);
    log_path = path;
    if (config.type != TYPE_FILE) {
        config.safety_scope = SCOPE_NONE;
    }
    InitializeLock();
    InitializeSharedData();
    if (log_size == nullptr || log_rotated_count_shared == nullptr) {
        return -1;
    }
    ReadLevels(debug_conf_path);
    if (OpenDestination(path) != 0) {
        return -1;
    }
    log_initialized = true;
    return 0;
}

void Logger::ReadLevels(const std::string& debug_conf_path) {
    // Has no effect, deliberately: no statement logs under this name, and GetCompLevel() doesn't fall back to it.
    log_level["default_component"] = kDefaultLevel;
    if (debug_conf_path.empty()) {
        return;
    }
    Config levels;
    // A file that is missing or malformed has no entries, and every component keeps its level.
    static_cast<void>(levels.read(debug_conf_path));
    for (const auto& [component, level] : levels) {
        log_level[component] = levels.get_int(component);
    }
}

int Logger::OpenDestination(const std::string& path) {
    switch (config.type) {
        case TYPE_SYSLOG: UseStream(nullptr); return 0;
        case TYPE_STDOUT: UseStream(stdout); return 0;
        case TYPE_STDERR: UseStream(stderr); return 0;
        case TYPE_FILE: break;
    }
    // For a number above TYPE_FILE as well, deliberately: its file stays empty, as LogMsg2 writes to standard error.
    if (path.empty()) {
        return -1;
    }
    std::FILE* const file = xfopen<char>(path);
    if (file == nullptr) {
        return -1;
    }
    SetHandleFlagInheritFalse(file);
    log_fp = file;
    log_path = path;
    *log_rotated_count_shared = 0;
    log_rotated_count_private = 0;
    // A file continued from an earlier run counts in full toward rotation.
    *log_size = GetFileSize(path);
    return 0;
}

void Logger::UseStream(std::FILE* stream) {
    log_fp = stream;
    log_path.clear();
    *log_size = -1;
    *log_rotated_count_shared = 0;
    log_rotated_count_private = 0;
}

void Logger::Destroy() {
    log_initialized = false;
    // The file of a type above it stays open, deliberately.
    if (config.type == TYPE_FILE) {
        std::FILE* const file = log_fp;
        // After an Initialize() that could not open its file, the stream is still one of the process's own.
        if (file != nullptr && file != stdout && file != stderr) {
            std::fclose(file);
        }
        // Stream and type do not agree, deliberately, and nobody sees it: logging is shut until Initialize() sets both.
        log_fp = stdout;
        config.type = TYPE_STDERR;
        log_path.clear();
        config.rotate_count = 32;
    }
    DestroySharedData();
    DestroyLock();
}

void Logger::InitializeSharedData() {
    if (log_size == nullptr || log_rotated_count_shared == nullptr) {
        DestroySharedData();
        log_size = new (std::nothrow) std::int32_t(0);
        log_rotated_count_shared = new (std::nothrow) std::uint64_t(0);
    }
}

void Logger::DestroySharedData() {
    delete log_size;
    log_size = nullptr;
    delete log_rotated_count_shared;
    log_rotated_count_shared = nullptr;
}

void Logger::InitializeLock() {
    InitializeFileLock();
    if (config.safety_scope < SCOPE_THREAD || log_lock != nullptr) {
        return;
    }
    log_lock = new (std::nothrow) pthread_mutex_t;
    if (log_lock != nullptr) {
        pthread_mutex_init(log_lock, nullptr);
    }
}

void Logger::DestroyLock() {
    if (log_lock != nullptr) {
        pthread_mutex_destroy(log_lock);
        delete log_lock;
        log_lock = nullptr;
    }
    DestroyFileLock();
}

void Logger::InitializeFileLock() {
}

void Logger::DestroyFileLock() {
}

void Logger::Lock() {
    if (log_lock != nullptr) {
        pthread_mutex_lock(log_lock);
    }
}

void Logger::Unlock() {
    if (log_lock != nullptr) {
        pthread_mutex_unlock(log_lock);
    }
}

std::int32_t Logger::GetFileSize(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        const int error = errno;
        PrintToFilePointer("stat(%s): %s (%d)\n", path.c_str(), std::strerror(error), error);
        return 0;
    }
    return static_cast<std::int32_t>(status.st_size);
}

// Messages

bool Logger::IsNeedToLog(Level level, const std::string& component) {
    return log_initialized && level <= GetCompLevel(component);
}

int Logger::GetCompLevel(const std::string& component) {
    const auto found = log_level.find(component);
    return found == log_level.end() ? kDefaultLevel : found->second;
}

void Logger::LogMsg(Level level, const std::string& component, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    LogMsg2(level, component, format, arguments);
    va_end(arguments);
}

void Logger::LogMsg2(Level level, const std::string& component, const char* format, std::va_list arguments) {
    if (!log_initialized) {
        return;
    }
    if (config.type != TYPE_SYSLOG && log_fp == nullptr) {
        return;
    }
    if (level > GetCompLevel(component)) {
        return;
    }
    Lock();
    ReloadLogFile();
    int written = 0;
    switch (config.type) {
        case TYPE_SYSLOG: {
            const ErrnoKeeper keeper;
            // An error, whatever the message's level, deliberately: even a system log that keeps errors alone keeps it.
            vsyslog(LOG_ERR, format, arguments);
            break;
        }
        case TYPE_STDOUT:
        case TYPE_STDERR:
        case TYPE_FILE: written = PrintToFilePointerV(format, arguments); break;
        // No destination has this number; without a time stamp, a flush or a count, deliberately.
        default: std::vfprintf(stderr, format, arguments); break;
    }
    RotateIfFileBig(written);
    Unlock();
}

void LogMSG_c(int level, const char* component, const char* format, std::va_list arguments) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), component, format, arguments);
}

void Logger::LogMsg3(Level level, const std::string& component, std::stringstream& stream, ConfigFlag flags) {
    const int error = errno;
    std::string format = "%s";
    if ((flags & FLAG_ERRNO) != 0 && error != 0) {
        // As text: the caller's stream may be set to hexadecimal.
        stream << ", err=" + std::to_string(error) + ":";
        format += "%m";
    }
    if ((flags & FLAG_NEWLINE) != 0) {
        format += "\n";
    }
    const std::string text = stream.str();
    errno = error;  // for "%m"
// The format is one of the four that are put together above; none of them takes more than the one argument.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    LogMsg(level, component, format.c_str(), text.c_str());
#pragma GCC diagnostic pop
}

int Logger::PrintToFilePointer(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int written = PrintToFilePointerV(format, arguments);
    va_end(arguments);
    return written;
}

int Logger::PrintToFilePointerV(const char* format, std::va_list arguments) {
    // Null where another thread failed to rotate the file while this one waited for the lock.
    std::FILE* const stream = log_fp;
    if (stream == nullptr) {
        return 0;
    }
    long written = std::fprintf(stream, "%s", CurrentTimeStamp());
    written += std::vfprintf(stream, format, arguments);
    FlushFileStream(written);
    return static_cast<int>(written);
}

void Logger::FlushFileStream(long /*written*/) {
    std::fflush(log_fp);
}
