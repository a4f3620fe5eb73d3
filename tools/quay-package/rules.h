// What a package may hold: the one list of rules, for a folder that is to be packed and for an archive alike.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "entry.h"
#include "error.h"
#include "finding.h"
#include "version-info.h"

// 4 GiB less one byte: what a zip archive holds without the extensions that not every reader knows.
inline constexpr std::int64_t kLargestPackage = 0xffffffff;
inline constexpr std::size_t kMostEntries = 1000000;

// The defect of what file managers, version control systems and editors leave behind, and of AppleDouble files, which
// macOS takes for attributes of others: `pack` leaves them out, with all that they hold. Null for anything else.
const Defect* LeftoverKind(const std::string& path);

// How much of a file CheckContents() has to see.
std::size_t WantedContent(const std::string& path);

// Names, kinds, modes, links, order, and the sum of the sizes: all that can be told without any content. What passes
// unpacks into its folder and nowhere else, to `limit` bytes at the most, on every system.
void CheckTree(const std::vector<Entry>& entries, std::int64_t limit, Findings& findings);

// The client's binary and other programs, INFO and the property list, in entries that have passed. Tells the versions
// and what the binary is.
enum class Program;
Error CheckContents(const std::vector<Entry>& entries, Findings& findings, VersionInfo& versions, Program& client);
