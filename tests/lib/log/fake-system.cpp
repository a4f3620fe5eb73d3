#include "fake-system.h"

#include <syslog.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <cstdio>

namespace {

std::atomic<std::time_t> stopped_at{-1};

}  // namespace

std::vector<std::pair<int, std::string>>& SystemLog() {
    static std::vector<std::pair<int, std::string>> messages;
    return messages;
}

StoppedClock::StoppedClock(std::time_t second) {
    Set(second);
}

StoppedClock::~StoppedClock() {
    Set(-1);
}

void StoppedClock::Set(std::time_t second) {
    stopped_at = second;
}

extern "C" {

void vsyslog(int priority, const char* format, std::va_list arguments) {
    char text[1024];
    std::vsnprintf(text, sizeof(text), format, arguments);
    SystemLog().emplace_back(priority, text);
    errno = ENOTSOCK;
}

std::time_t time(std::time_t* result) noexcept {
    std::time_t now = stopped_at;
    if (now == -1) {
        now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    }
    if (result != nullptr) {
        *result = now;
    }
    return now;
}
}
