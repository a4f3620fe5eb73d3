// What the tests of the logger share.
#pragma once

#include <test-folder.h>

#include <string>

#include "log/logger.h"

// The logger's state, as tests read and preset it.
struct LoggerInspector {
    static Logger::InitConfig& config() { return Logger::config; }
    static std::unordered_map<std::string, std::int32_t>& log_level() { return Logger::log_level; }
    static std::FILE* log_fp() { return Logger::log_fp; }
    static const std::string& log_path() { return Logger::log_path; }
    static bool log_initialized() { return Logger::log_initialized; }
    static std::int32_t* log_size() { return Logger::log_size; }
    static pthread_mutex_t* log_lock() { return Logger::log_lock; }
    static std::uint64_t* shared_count() { return Logger::log_rotated_count_shared; }
    static std::uint64_t private_count() { return Logger::log_rotated_count_private; }

    static void Destroy() { Logger::Destroy(); }
    static int Rotate() { return Logger::Rotate(); }
    static int RotateIfFileBig(int written) { return Logger::RotateIfFileBig(written); }
    static std::int32_t GetFileSize(const std::string& path) { return Logger::GetFileSize(path); }

    // Presets the counted size while other threads log.
    static void SetSize(std::int32_t size) {
        Logger::Lock();
        *Logger::log_size = size;
        Logger::Unlock();
    }

    // Back to what the process started with.
    static void StartUp() {
        Logger::Destroy();
        Logger::config = Logger::InitConfig();
        Logger::log_level.clear();
        Logger::log_fp = stderr;
        Logger::log_path.clear();
        Logger::log_initialized = true;
        Logger::log_rotated_count_private = 0;
    }
};

constexpr std::int32_t kThreshold = 5'242'880;  // bytes; the biggest log file that isn't rotated
constexpr int kStampSize = 20;                  // bytes of a time stamp

// Every test leaves the logger as the process started with it, so that the next one finds it so.
class LoggerTest : public FolderTest {
protected:
    ~LoggerTest() override { LoggerInspector::StartUp(); }

    // Opens launcher.log in the test's folder.
    void OpenLog(int rotate_count = 50, Logger::SafetyScope scope = Logger::SCOPE_THREAD) const {
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, LogPath(), "", rotate_count, scope), 0);
    }

    std::string LogPath() const { return At("launcher.log"); }
};
