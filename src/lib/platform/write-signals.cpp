#include "write-signals.h"

#include <csignal>

namespace platform {

void IgnoreWriteSignals() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace platform
