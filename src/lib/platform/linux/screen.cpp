#include "platform/screen.h"

#include <cstdlib>
#include <cstring>

namespace platform {
namespace {

std::string Setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

// What Qt would choose, and the other system's screen for the case that this one does not answer. Wayland is left out
// where nothing points to it: its library complains on standard error.
std::string UsualPlatforms() {
    if (Setting("WAYLAND_DISPLAY").empty()) {
        return "xcb";
    }
    // Qt prefers X on GNOME, whose Wayland leaves the frames of windows to the applications.
    const bool first = Setting("XDG_SESSION_TYPE") == "wayland" &&
                       strcasestr(Setting("XDG_CURRENT_DESKTOP").c_str(), "gnome") == nullptr;
    return first ? "wayland;xcb" : "xcb;wayland";
}

}  // namespace

const double kUnscaledDotsPerInch = 96.0;

std::vector<std::string> ScreenOptions() {
    const std::string chosen = Setting("QT_QPA_PLATFORM");
    return {"-platform",      (chosen.empty() ? UsualPlatforms() : chosen) + ";offscreen",
            "-platformtheme", "generic",
            "-style",         "fusion"};
}

}  // namespace platform
