// The scale of an unscaled screen, for dpi-info.cpp.
#pragma once

// What the windowing systems of Linux take for an unscaled screen.
constexpr double kUnscaledDotsPerInch = 96.0;
