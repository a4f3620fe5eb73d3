#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>

namespace {

constexpr std::int64_t kWidth = 40;

volatile std::sig_atomic_t taken = 0;

void Take(int number) {
    taken = number;
    std::signal(number, SIG_DFL);
}

}  // namespace

void TakeInterruptions() {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        std::signal(number, Take);
    }
}

bool IsInterrupted() {
    return taken != 0;
}

void EndInterrupted() {
    raise(taken);
    _exit(2);
}

Progress::Progress(std::string label, std::int64_t total)
    : label_(std::move(label)), total_(std::max<std::int64_t>(total, 1)), isOn_(isatty(STDERR_FILENO) == 1) {
}

Progress::~Progress() {
    if (shown_ >= 0) {
        std::fputs("\r\033[K", stderr);
    }
}

Error Progress::Advance(std::int64_t amount) {
    done_ += amount;
    const std::int64_t now = std::min<std::int64_t>(100, done_ * 100 / total_);
    if (isOn_ && now != shown_) {
        shown_ = now;
        const auto bar = static_cast<std::size_t>(now * kWidth / 100);
        std::fprintf(stderr, "\r%s [%s%s] %3lld%%", label_.c_str(), std::string(bar, '#').c_str(),
                     std::string(kWidth - bar, '.').c_str(), static_cast<long long>(now));
        std::fflush(stderr);
    }
    return IsInterrupted() ? Error("interrupted") : Error();
}
