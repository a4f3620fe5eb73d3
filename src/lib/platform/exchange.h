// Two paths that change places.
#pragma once

#include <string>

namespace platform {

// Lets two objects of one volume change places in one step, so that at no time either path is missing. Paths are UTF-8;
// both must exist. 0, or -1 with errno set, ENOSYS, EINVAL or ENOTSUP where the system or the volume knows no such
// step. No state; any thread. Sources: renameat2(2) with RENAME_EXCHANGE; renamex_np(2) with RENAME_SWAP on macOS.
int ExchangePaths(const std::string& one, const std::string& other);

}  // namespace platform
