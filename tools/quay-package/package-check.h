// A package as a whole: read, judged, and compared with a folder.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "content.h"
#include "entry.h"
#include "error.h"
#include "finding.h"
#include "progress.h"
#include "version-info.h"

struct Package {
    std::string file;
    std::vector<Entry> entries;  // as far as the archive could be read
    std::int64_t bytes = 0;      // unpacked
    VersionInfo versions;
    Program client = Program::None;  // what its binary is
};

// Reads a package's directory, holds it against the rules, and only then reads its data, by the reader that the
// launcher has: what another reader would make of it is never asked. Data is unpacked in memory, block by block, and no
// more of it than the directory has told. An error: the file can't be read at all.
Error CheckPackage(const std::string& file, std::int64_t limit, Package& package, Findings& findings);

// Gives each entry's data to `take`, with its index, block by block, in the archive's order, by libarchive with all
// that Extractor lets it recognise. What differs from the entries is added to `findings`; nothing is read behind it.
using TakeBlock = std::function<Error(std::size_t at, std::string_view block)>;
Error ReadData(const Package& package, const char* label, const TakeBlock& take, Findings& findings);

// What Compare() says of what it finds.
struct Differences {
    const Defect& missing;
    const Defect& differs;
    const Defect& added;
    const Defect& mode;
};

// Compares what lies in a folder with a package that has passed, entry by entry and byte by byte. A mode may lack bits
// for group and others, which is the umask's affair. Changes nothing, and waits for nothing that lies there.
Error Compare(const Package& package, const std::string& folder, const Differences& differences, Findings& findings);
