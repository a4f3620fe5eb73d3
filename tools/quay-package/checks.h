// What a package and a bundle may hold, and what is installed: one list of rules, for a folder that is to be packed and
// for an archive alike.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "content.h"
#include "entry.h"
#include "finding.h"

// 4 GiB less one byte: what a zip archive holds without the extensions that not every reader knows.
inline constexpr std::int64_t kLargestPackage = 0xffffffff;
inline constexpr std::size_t kMostEntries = 1000000;

struct Package {
    std::string file;
    std::vector<Entry> entries;  // as far as the archive could be read
    std::int64_t bytes = 0;      // unpacked
    VersionInfo versions;
    Program client = Program::None;  // what its binary is
};

// The defect of what file managers, version control systems and editors leave behind, and of AppleDouble files, which
// macOS takes for attributes of others: `pack` leaves them out, with all that they hold. None for anything else.
std::optional<Defect> LeftoverKind(const std::string& path);

// How much of a file CheckContents() has to see.
std::size_t WantedContent(const std::string& path);

// Whether a package may have so many entries.
bool CheckCount(std::size_t count, Findings& findings);

// Names, kinds, modes, links, order, and the sum of the sizes: all that can be told without any content. What passes
// unpacks into its folder and nowhere else, to `limit` bytes at the most, on every system.
void CheckTree(const std::vector<Entry>& entries, std::int64_t limit, Findings& findings);

// The client's binary and other programs, INFO and the property list, in entries that have passed. Tells the versions
// and what the binary is.
Error CheckContents(Package& package, Findings& findings);

// Reads a package's directory, holds it against the rules, and only then reads its data, by libarchive with all that
// Extractor lets it recognise: what it sees must be the same entries. Data is unpacked in memory, block by block, and
// no more of it than the directory has told. An error: the file can't be read at all.
Error CheckPackage(const std::string& file, std::int64_t limit, Package& package, Findings& findings);

// What Compare() says of what it finds.
struct Differences {
    Defect missing;
    Defect differs;
    Defect added;
    Defect mode;
};

// Compares what lies in a folder with a package that has passed, entry by entry and byte by byte. A mode may lack bits
// for group and others, which is the umask's affair. Changes nothing, and waits for nothing that lies there.
Error Compare(const Package& package, const std::string& folder, const Differences& differences, Findings& findings);

// Adds what is wrong with a bundle: kinds and rights of all that lies in it, what the launcher and the systems read of
// it, and the package, which is read as CheckPackage() does where `package` names no file yet; null leaves it out.
// Where the package is not good, what depends on it is not looked at. `versions` are the bundle's own.
Error CheckBundle(const std::string& bundle, std::int64_t limit, Package* package, VersionInfo& versions,
                  Findings& findings);
