// What the content of a few files must be.
#pragma once

#include <cstdint>
#include <string>

#include "error.h"
#include "version-info.h"

// How much of a program Recognise() looks at, and how large the other files may be.
inline constexpr std::size_t kProgramFront = 1 << 16;
inline constexpr std::size_t kLargestInfo = 1 << 16;
inline constexpr std::size_t kLargestText = 1 << 20;

enum class Program { None, Script, Elf, MachO };

// What a file is whose first bytes, up to kProgramFront, are `front`. A file of `size` bytes that is shorter than its
// own headers say is None. Sources: elf(5), <mach-o/loader.h>, <mach-o/fat.h>, execve(2).
Program Recognise(const std::string& front, std::int64_t size);

// Whether it begins as one, cut short or not.
bool BeginsAsProgram(const std::string& front);

// The text of a key in the top dictionary of a property list, in XML or in binary form. False if there is none, or it
// is no such list. Source: libplist.
bool PropertyListValue(const std::string& bytes, const std::string& key, std::string& value);

// Whether the bytes are a PNG image that can be decoded and is of a size for a dialog.
bool IsIcon(const std::string& bytes);

// What is wrong with a desktop entry that is to start `program`, a path's end; empty if nothing is. What
// desktop-file-validate refuses is refused. Source: freedesktop.org, Desktop Entry 1.5.
std::string DesktopEntryFault(const std::string& bytes, const std::string& program);

// Reads the versions that the launcher will read in an INFO of these bytes.
Error ReadVersions(const std::string& bytes, VersionInfo& versions);

// Whether the text is a build number that means the same to everyone: digits only, 1 to 2147483647, no leading zero.
bool IsBuildNumber(const std::string& text);
