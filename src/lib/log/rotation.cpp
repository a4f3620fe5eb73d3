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
    // In 64 bits, since a file continued from an earlier run may already fill 31 of them.
    const std::int64_t size = std::int64_t{*log_size} + written;
    if (size <= kRotationThreshold) {
        *log_size = static_cast<std::int32_t>(size);
        return 0;
    }
    const int result = Rotate();
    // Deliberately after a failure too. The stream is null then, and logging is off; the threads that already wait for
    // the lock would otherwise try again, each of them.
    *log_size = 0;
    return result;
}

int Logger::Rotate() {
    // A generation that doesn't exist yet is no trouble, so that the callers of the statement that rotates find errno
    // as they left it.
    const int errno_before = errno;
    MoveGenerations();
    // The other threads test `log_fp` without the lock and drop their message where it is null. It is therefore left
    // in place, closed and unused, and set once: to the new stream, or to null when logging is off from here on.
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
    // The oldest generation, which the first step above has just moved there, goes by its own removal and isn't
    // overwritten. With a count of 1 that is generation 0 itself, which the live file then replaces.
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
