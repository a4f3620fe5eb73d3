#include <array>
#include <cerrno>

#include "log/log-file.h"
#include "log/logger.h"
#include "platform/inheritance.h"

namespace {

constexpr std::int32_t kRotationThreshold = 0x500000;  // bytes; a file of exactly this size is not rotated

// The name of a rotated file, zero-terminated.
using GenerationName = std::array<char, 1024>;

// Number 0 is the newest generation. A name that doesn't fit is cut.
GenerationName NameOfGeneration(const std::string& log_path, std::int32_t number) {
    GenerationName name;
    std::snprintf(name.data(), name.size(), "%s_%d", log_path.c_str(), number);
    return name;
}

}  // namespace

int Logger::RotateIfFileBig(int written) {
    if (config.type != TYPE_FILE || written < 0) {
        return 0;
    }
    // In 64 bits: the file of an earlier run may be as large as 32 bits can say.
    const std::int64_t size = std::int64_t{*log_size} + written;
    if (size <= kRotationThreshold) {
        *log_size = static_cast<std::int32_t>(size);
        return 0;
    }
    const int result = Rotate();
    // After a failure too, or each thread that waits for the lock would try again.
    *log_size = 0;
    return result;
}

int Logger::Rotate() {
    // A generation that doesn't exist sets errno, and is no failure that a caller should see.
    const int errno_before = errno;
    MoveGenerations();
    // Closed, but still in `log_fp`: other threads look at that without the lock, and drop their message if it is null.
    // It is set once, to the new stream, or to null where logging is off from here on.
    if (std::FILE* const old_file = log_fp; old_file != nullptr) {
        std::fclose(old_file);
    }
    if (std::rename(log_path.c_str(), NameOfGeneration(log_path, 0).data()) != 0) {
        log_fp = nullptr;
        return -1;
    }
    if (!ReopenLogFile()) {
        return -1;
    }
    ++*log_rotated_count_shared;
    ++log_rotated_count_private;
    errno = errno_before;
    return 0;
}

bool Logger::ReopenLogFile() {
    std::FILE* const file = xfopen<char>(log_path);
    if (file != nullptr) {
        SetHandleFlagInheritFalse(file);
    }
    log_fp = file;
    return file != nullptr;
}

void Logger::MoveGenerations() {
    for (std::int32_t number = config.rotate_count - 2; number >= 0; --number) {
        std::rename(NameOfGeneration(log_path, number).data(), NameOfGeneration(log_path, number + 1).data());
    }
    // The first step above has just moved the oldest generation there. With a count of 1 it is generation 0, whose
    // place the live file takes.
    std::remove(NameOfGeneration(log_path, config.rotate_count - 1).data());
}

void Logger::ReloadLogFile() {
    if (config.type != TYPE_FILE || config.safety_scope < SCOPE_PROCESS ||
        log_rotated_count_private == *log_rotated_count_shared) {
        return;
    }
    // As in Rotate(), `log_fp` is set once.
    if (std::FILE* const old_file = log_fp; old_file != nullptr) {
        std::fclose(old_file);
    }
    if (!ReopenLogFile()) {
        return;
    }
    *log_size = GetFileSize(log_path);
    log_rotated_count_private = *log_rotated_count_shared;
}
