#include "platform/screen.h"

namespace platform {

const double kUnscaledDotsPerInch = 72.0;

std::vector<std::string> ScreenOptions() {
    return {};
}

}  // namespace platform
