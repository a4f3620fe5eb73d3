// How far a long step is, and whether it is to go on.
#pragma once

#include <cstdint>
#include <string>

#include "finding.h"

// From here on the first SIGINT, SIGTERM or SIGHUP only sets a mark, so that nothing half-made is left behind; a second
// one ends the process. Main thread, once.
void TakeInterruptions();

// Whether one has come.
bool IsInterrupted();

// Ends the process by the signal that has come, as its caller expects of an interrupted program, once all is cleaned
// up.
[[noreturn]] void EndInterrupted();

// A bar on the terminal, drawn on standard error if that is one; it removes itself at the end. One thread.
class Progress {
public:
    // `total` counts whatever Advance() counts.
    Progress(std::string label, std::int64_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Draws where a percentage has changed. An error after an interruption: every long loop goes through here.
    Error Advance(std::int64_t amount);

private:
    const std::string label_;
    const std::int64_t total_;
    const bool isOn_;
    std::int64_t done_ = 0;
    std::int64_t shown_ = -1;
};
