#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr std::int64_t kWidth = 40;

// Where the total is not known, so many steps make a new number.
constexpr std::int64_t kStep = 1000;

}  // namespace

Progress::Progress(std::string label) : label_(std::move(label)), on_(isatty(STDERR_FILENO) == 1) {
}

Progress::~Progress() {
    if (shown_ >= 0) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
    }
}

void Progress::Update(std::int64_t total, std::int64_t current) {
    if (!on_) {
        return;
    }
    const std::int64_t now = total > 0 ? std::min<std::int64_t>(100, current * 100 / total) : current / kStep;
    if (now == shown_) {
        return;
    }
    shown_ = now;
    if (total <= 0) {
        std::fprintf(stderr, "\r%s %lld", label_.c_str(), static_cast<long long>(current));
    } else {
        const auto done = static_cast<std::size_t>(now * kWidth / 100);
        const std::string bar = std::string(done, '#') + std::string(kWidth - done, '.');
        std::fprintf(stderr, "\r%s [%s] %3lld%%", label_.c_str(), bar.c_str(), static_cast<long long>(now));
    }
    std::fflush(stderr);
}
