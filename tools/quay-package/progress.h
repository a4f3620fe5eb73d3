// A progress bar on the terminal.
#pragma once

#include <cstdint>
#include <string>

// Draws on standard error, if that is a terminal, and removes itself at the end; else it does nothing. One thread.
class Progress {
public:
    explicit Progress(std::string label);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Draws where a percentage has changed. A `total` of 0 or less counts as not known: the number is shown then.
    void Update(std::int64_t total, std::int64_t current);

private:
    const std::string label_;
    const bool on_;
    std::int64_t shown_ = -1;
};
