// The scale of an unscaled screen, for dpi-info.cpp.
#pragma once

// A point of macOS is 1/72 of an inch.
constexpr double kUnscaledDotsPerInch = 72.0;
