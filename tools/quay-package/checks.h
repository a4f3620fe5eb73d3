// A package, a bundle and what is installed: read, judged and compared.
#pragma once

#include <string>
#include <vector>

#include "content.h"
#include "entry.h"
#include "finding.h"

struct Package {
    std::string file;
    std::vector<Entry> entries;  // as far as the archive could be read
    std::int64_t bytes = 0;      // unpacked
    VersionInfo versions;
    Program client = Program::None;  // what its binary is
};

// Reads a package's directory, holds it against the rules, and only then reads its data, by libarchive with all that
// Extractor lets it recognise: what it sees must be the same entries. Data is unpacked in memory, block by block, and
// no more of it than the directory has told. An error: the file can't be read at all.
Error CheckPackage(const std::string& file, std::int64_t limit, Package& package, Findings& findings);

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

// Adds what is wrong with a bundle: kinds and rights of all that lies in it, what the launcher and the systems read of
// it, and the package, which is read as CheckPackage() does where `package` names no file yet; null leaves it out.
// Where the package is not good, what depends on it is not looked at. `versions` are the bundle's own.
Error CheckBundle(const std::string& bundle, std::int64_t limit, Package* package, VersionInfo& versions,
                  Findings& findings);

// Unpacks a package that has passed by the launcher's own extractor into a home that is made in `scratch`, and compares
// what is there with the package. Then asks the launcher's own decision whether a start of `bundle` (or, where that is
// empty, of what is installed) would install again. Main thread.
Error Rehearse(const Package& package, const std::string& bundle, const std::string& scratch, Findings& findings);

// Whether a start of the launcher in `binaries` would install or upgrade in this home. Fills the path table for the
// two. The INFO files of both must be regular files or missing: the launcher waits for a FIFO without end. Main thread.
bool IsUpgradeDue(const std::string& home, const std::string& binaries);
