#include "log/log-statement.h"

#include <unistd.h>

#include <cstring>

int log_statement::ProcessId() {
    return getpid();
}

int log_statement::ThreadNumber() {
    // On Linux a number, on macOS a pointer: only its 64 bits count.
    const pthread_t thread = pthread_self();
    std::uint64_t number = 0;
    static_assert(sizeof(thread) == sizeof(number));
    std::memcpy(&number, &thread, sizeof(number));
    return static_cast<int>(number % 100000);
}
