// The scale of a screen.
#pragma once

namespace platform {

// The logical dots per inch of a screen that is not scaled: 72 on macOS, where a point is 1/72 of an inch, and the 96
// of the windowing systems on Linux.
extern const double kUnscaledDotsPerInch;

}  // namespace platform
