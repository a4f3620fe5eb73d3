// What the content of a few files must be.
#pragma once

#include <cstdint>
#include <string>

#include "finding.h"
#include "version-info.h"

// How much of a program Recognise() looks at, and how large the other files may be.
inline constexpr std::size_t kProgramFront = 1 << 16;
inline constexpr std::size_t kLargestInfo = 1 << 16;
inline constexpr std::size_t kLargestText = 1 << 20;

enum class Program { None, Broken, Script, Elf, MachO };

// What a file of so many bytes is whose first ones, up to kProgramFront, are `front`. One that begins as a program and
// is shorter than its own headers say is Broken. Sources: elf(5), <mach-o/loader.h>, <mach-o/fat.h>, execve(2).
Program Recognise(const std::string& front, std::int64_t bytes);

// The program that an application's property list names, in XML or in binary form; empty if it names none, or is no
// such list. Source: libplist.
std::string ExecutableOf(const std::string& propertyList);

// Whether the bytes are a PNG image that can be decoded and is of a size for a dialog.
bool IsIcon(const std::string& bytes);

// What is wrong with a desktop entry that is to start `program`, a path's end; empty if nothing is. What
// desktop-file-validate refuses is refused. Source: freedesktop.org, Desktop Entry 1.5.
std::string DesktopEntryFault(const std::string& bytes, const std::string& program);

// Reads the versions that the launcher will read in an INFO of these bytes.
Error ReadVersions(const std::string& bytes, VersionInfo& versions);

// Whether the text is a build number that means the same to everyone: digits only, 1 to 2147483647, no leading zero.
bool IsBuildNumber(const std::string& text);
