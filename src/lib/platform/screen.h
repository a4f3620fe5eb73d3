// What the systems' screens have of their own.
#pragma once

#include <string>
#include <vector>

namespace platform {

// The logical dots per inch of a screen that is not scaled: 72 on macOS, where a point is 1/72 of an inch, and the 96
// of the windowing systems on Linux.
extern const double kUnscaledDotsPerInch;

// Options for a Qt application, to stand before the user's own, which so have the last word. UTF-8. Main thread, before
// the application object.
//
// macOS: none. Linux: the user's choice of screen, with "offscreen" behind it, since Qt aborts where no screen answers;
// no theme that the environment names, since one such as GTK's ends a process without a screen; and Qt's own style in
// place of the desktop's, so that the dialog looks alike everywhere. Source: QGuiApplication, "Supported Command Line
// Options".
std::vector<std::string> ScreenOptions();

}  // namespace platform
