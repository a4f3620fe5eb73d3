#include "platform/exchange.h"

#include <stdio.h>  // NOLINT(modernize-deprecated-headers): renamex_np is not in namespace std

namespace platform {

int ExchangePaths(const std::string& one, const std::string& other) {
    return renamex_np(one.c_str(), other.c_str(), RENAME_SWAP);
}

}  // namespace platform
