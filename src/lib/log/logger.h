// The log facility of the process: levels per component, one destination, and a log file that rotates itself.
// Code that logs includes log-statement.h and uses KQ_LOG_ERROR and its siblings.
#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <sstream>
#include <string>
#include <unordered_map>

#if defined(__GNUC__)
#define LOGGER_PRINTF(format_at, arguments_at) __attribute__((format(printf, format_at, arguments_at)))
#else
#define LOGGER_PRINTF(format_at, arguments_at)
#endif

// Static members only: one state per process, no objects.
//
// It works from the first line of main on. Until Initialize() runs, warnings and errors go with a time stamp to
// standard error, without a lock. After a failed Initialize() every message is dropped without a word until another
// one succeeds. Logging never stops the work of the program: no operation here tells its caller that a message was
// lost.
//
// Threads: any thread may call LogMsg and its siblings once Initialize() has returned with a scope of at least
// SCOPE_THREAD. Initialize() itself needs the process to be single-threaded. Paths are bytes as the file system takes
// them.
class Logger {
public:
    Logger() = delete;

    // The underlying type is fixed so that a number above TYPE_FILE is a value like any other.
    enum Type : int {
        TYPE_SYSLOG = 0,
        TYPE_STDOUT = 1,
        TYPE_STDERR = 2,
        TYPE_FILE = 3,
    };

    // The syslog priorities; a smaller number is more severe.
    enum Level : int {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7,
    };

    // Each scope includes what the smaller ones do. Only TYPE_FILE has one; for any other type it is SCOPE_NONE.
    enum SafetyScope : int {
        SCOPE_NONE = 0,
        SCOPE_THREAD = 1,   // a mutex serialises the threads of this process
        SCOPE_PROCESS = 2,  // the file is reopened when the shared rotation counter says that it was rotated
    };

    // Bits for LogMsg3.
    enum ConfigFlag : int {
        FLAG_NEWLINE = 2,
        FLAG_ERRNO = 4,
    };

    struct InitConfig {
        Type type = TYPE_STDOUT;
        std::string path;                         // the log file, for TYPE_FILE and above
        std::string debug_conf_path;              // the level file; empty: none is read
        std::int32_t rotate_count = 50;           // a number of files, not a size
        SafetyScope safety_scope = SCOPE_THREAD;  // as asked for; forced to SCOPE_NONE unless the type is TYPE_FILE
    };

    // Closes what an earlier call opened and opens the destination. 0 on success; -1, with logging shut, if the log
    // file has an empty path or can't be opened for appending, or memory is short. A level file that is missing or
    // malformed counts as an empty one. Component levels of an earlier call stay unless they are set again.
    // Source: fopen(3), pthread_mutex_init(3).
    static int Initialize(const InitConfig& init_config);
    static int Initialize(Type type, const std::string& path, const std::string& debug_conf_path, int rotate_count,
                          SafetyScope scope);

    // Whether a message of this level would go out. False while logging is shut. Takes no lock and allocates nothing.
    static bool IsNeedToLog(Level level, const std::string& component);

    // The level up to which a component's messages go out: what the level file says of it, else 4 (warnings and
    // errors).
    static int GetCompLevel(const std::string& component);

    // Writes a message in the manner of printf(3), behind a time stamp unless it goes to the system log; it supplies
    // its own newline. A message that is written without trouble leaves errno as it was. Source: vfprintf(3),
    // vsyslog(3).
    static void LogMsg(Level level, const std::string& component, const char* format, ...) LOGGER_PRINTF(3, 4);

    // The same with a ready argument list, which is indeterminate afterwards.
    static void LogMsg2(Level level, const std::string& component, const char* format, std::va_list arguments)
        LOGGER_PRINTF(3, 0);

    // Writes the text collected in `stream`, which stays the caller's and is not emptied. With FLAG_ERRNO and a
    // non-zero errno, ", err=<number>:" is added to the stream itself and the platform's text of "%m" to the message;
    // with FLAG_NEWLINE a newline ends the message. Flags combine by "|" and a cast.
    static void LogMsg3(Level level, const std::string& component, std::stringstream& stream, ConfigFlag flags);

private:
    // Shuts logging and closes the log file; the first step of Initialize().
    static void Destroy();

    // The steps of Initialize(). OpenDestination returns as Initialize() does.
    static void ReadLevels(const std::string& debug_conf_path);
    static int OpenDestination(const std::string& path);
    static void UseStream(std::FILE* stream);

    // Takes and releases `log_lock` if there is one. Not recursive: nothing between the two logs through LogMsg.
    static void Lock();
    static void Unlock();
    static void InitializeLock();
    static void DestroyLock();

    // Empty: the seam for a lock between processes.
    static void InitializeFileLock();
    static void DestroyFileLock();

    // Allocates and frees `log_size` and `log_rotated_count_shared`. They stay null if memory is short.
    static void InitializeSharedData();
    static void DestroySharedData();

    // Under the lock. Reopens the log file if another holder has rotated it (SCOPE_PROCESS). If it can't be opened,
    // `log_fp` is null afterwards.
    static void ReloadLogFile();

    // Under the lock, behind each message. Counts the bytes that it took and rotates the log file once it holds more
    // than 5 MiB. Returns what Rotate() returns, else 0.
    static int RotateIfFileBig(int written);

    // Under the lock. Moves every generation one number up, drops the oldest, makes the live file generation 0 and
    // opens a new one. 0 on success; -1 if the live file can't be moved or the new one can't be opened, with logging
    // off (`log_fp` null) from then on. Source: rename(2), remove(3), fopen(3).
    static int Rotate();
    static void MoveGenerations();

    // Under the lock, once the old stream is closed. Sets `log_fp` to the file at `log_path`, opened anew, or to null
    // where that fails, with a result of false.
    static bool ReopenLogFile();

    // Write to `log_fp`, flush, and return the number of bytes written, time stamp included; 0 if it is null. The
    // caller holds the lock. A negative result of vfprintf(3) is added in.
    static int PrintToFilePointer(const char* format, ...) LOGGER_PRINTF(1, 2);
    static int PrintToFilePointerV(const char* format, std::va_list arguments) LOGGER_PRINTF(1, 0);
    static void FlushFileStream(long written);

    // The file's size cut to 32 bits, or 0, with a line in the log, when it can't be read. Source: stat(2).
    static std::int32_t GetFileSize(const std::string& path);

    // Outside the lock `log_initialized`, `log_fp`, `config` and `log_level` are read. The first two change while
    // threads run (rotation), hence atomic; the others change in Initialize() alone.
    static InitConfig config;
    static std::unordered_map<std::string, std::int32_t> log_level;
    static std::atomic<std::FILE*> log_fp;  // null: messages are dropped, unless they go to the system log
    static std::string log_path;            // empty unless the type is TYPE_FILE or above
    static std::atomic<bool> log_initialized;

    // Heap blocks that outlive static destruction, since a thread may still log while the process exits.
    static std::int32_t* log_size;  // bytes in the live file, -1 where there is none
    static pthread_mutex_t* log_lock;
    static std::uint64_t* log_rotated_count_shared;
    static std::uint64_t log_rotated_count_private;

    static std::int32_t log_flock;  // the state of a lock between processes; nothing uses it
};

// LogMsg2 for callers without a string type. `component` and `format` are zero-terminated and not null.
void LogMSG_c(int level, const char* component, const char* format, std::va_list arguments) LOGGER_PRINTF(3, 0);
