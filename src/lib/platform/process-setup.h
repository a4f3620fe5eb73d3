// What a program settles about its own process before it works: paths and texts are UTF-8 throughout, whatever the
// user's locale says, and a failed write is a result. Main thread, before any other.
#pragma once

namespace platform {

// Makes Qt take the bytes of paths and of the environment for UTF-8. Call before the application object is built.
// Source: QTextCodec::setCodecForLocale; Qt 6 does so by itself.
void UsePathsInUtf8();

// Drops Qt's warnings. It warns of what it finds odd about the machine: no XDG_RUNTIME_DIR, a character set that is not
// UTF-8. That is none of the user's business, and a program that goes on well says nothing. What ends the program is
// still told. Call before the application object is built, which is when Qt takes its first look.
void DropQtWarnings();

// Call after setlocale(LC_ALL, ""): where the locale's character set is not UTF-8 (LANG unset or "C"), the character
// set alone is switched to it, so that libarchive takes names outside ASCII; the rest of the locale stays. Does nothing
// where no UTF-8 locale exists. Source: setlocale(3), nl_langinfo(3), archive_entry(3).
void EnsureUtf8CharacterSet();

// Has the system's time zone looked up once. Linux: the C library looks whether it has changed whenever a local time is
// worked out, and libarchive does that four times for each entry of a zip; where TZ is set, it does not look. What
// StartApplication starts gets an environment without that. macOS: nothing, the library there is told of a change.
// Source: tzset(3).
void KeepTimeZone();

// Makes a write to a pipe without a reader, or beyond the limit for a file's size, a failure like any other in place of
// the process's end (SIGPIPE, SIGXFSZ). StartApplication gives both back to what it starts. Source: signal(7).
void IgnoreWriteSignals();

}  // namespace platform
