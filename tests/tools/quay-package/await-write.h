// Tells a test when a program writes.
#pragma once

#include <functional>
#include <string>

// Calls `start` and waits until something is written to a file in the folder, be it one without a name yet. A body for
// each system, as there is no common way to be told.
void AwaitWrite(const std::string& folder, const std::function<void()>& start);
