// What the launcher needs to know of a desktop entry.
#pragma once

#include <QString>

namespace platform {

// Whether the desktop entry file's Exec or TryExec names a program inside `folder` (absolute, cleaned). A file that
// can't be read, or is no desktop entry, does not. Source: the Desktop Entry standard of freedesktop.org, "The Exec
// key".
bool DesktopEntryRunsFrom(const QString& file, const QString& folder);

// The program of an Exec value: its first argument, with the value's string escapes and the argument's quoting undone.
// Empty for a value that names none.
QString ProgramOfExec(const QString& value);

}  // namespace platform
