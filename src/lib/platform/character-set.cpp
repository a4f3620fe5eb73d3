#include "character-set.h"

#include <langinfo.h>
#include <strings.h>

#include <clocale>
#include <initializer_list>

namespace platform {

void EnsureUtf8CharacterSet() {
    if (strcasecmp(nl_langinfo(CODESET), "UTF-8") == 0) {
        return;
    }
    // The first is in every glibc since 2.35 and in Debian's before; the second is macOS's own name.
    for (const char* name : {"C.UTF-8", "UTF-8", "en_US.UTF-8"}) {
        if (std::setlocale(LC_CTYPE, name) != nullptr) {
            return;
        }
    }
}

}  // namespace platform
