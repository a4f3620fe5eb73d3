// How the file system itself spells a path.
#pragma once

#include <cstddef>
#include <string>

namespace platform {

// What to do about a symbolic link at the end of the path; links in the parent folders are always resolved.
enum class Leaf {
    Keep,    // the link itself
    Follow,  // what it leads to
};

// What a path has at most, in bytes without the terminator.
constexpr std::size_t kLongestPath = 4095;

// Finds the absolute path of an existing object in the spelling that the file system holds (letter case and Unicode
// form), parents resolved. `path` and `spelled` are UTF-8. Returns 0, or a status that is not 0 and that the platform
// defines, with `spelled` as it was. The result has at most kLongestPath bytes. No state; any thread.
//
// macOS: FSPathMakeRefWithOptions or FSPathMakeRef, then FSRefMakePath; the status is theirs.
// Linux: realpath(3) and, where a folder takes two spellings of a name for one, its listing; the status is an errno.
int SpelledPath(const std::string& path, Leaf leaf, std::string& spelled);

}  // namespace platform
