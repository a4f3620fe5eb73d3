// Stands in for two functions of the system: this program's own vsyslog(3) and time(2) take their place.
#pragma once

#include <ctime>
#include <string>
#include <utility>
#include <vector>

// The priorities and texts that were sent to the system log, until the test clears them. Like the system's own,
// vsyslog leaves any errno.
std::vector<std::pair<int, std::string>>& SystemLog();

// While it lives, the clock stands at a given second.
class StoppedClock {
public:
    explicit StoppedClock(std::time_t second);
    StoppedClock(const StoppedClock&) = delete;
    StoppedClock& operator=(const StoppedClock&) = delete;
    ~StoppedClock();

    static void Set(std::time_t second);
};
