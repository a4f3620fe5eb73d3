// The process's character set.
#pragma once

namespace platform {

// Paths and texts are UTF-8 throughout, whatever the user's locale says. Call after setlocale(LC_ALL, ""): where the
// locale's character set is another one (LANG unset or "C"), the character set alone is switched to UTF-8, so that
// libarchive takes names outside ASCII; the rest of the locale stays. Does nothing where no UTF-8 locale exists.
// Not thread-safe: main thread, before any other thread. Source: setlocale(3), nl_langinfo(3), archive_entry(3).
void EnsureUtf8CharacterSet();

}  // namespace platform
