#pragma once

// What the windowing systems of Linux take for an unscaled screen.
constexpr double kUnscaledDotsPerInch = 96.0;
