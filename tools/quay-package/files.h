// Files and folders on disk. Paths are UTF-8.
#pragma once

#include <QFile>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry.h"
#include "finding.h"

inline constexpr std::size_t kBlockSize = 1 << 16;

// Opens a regular file to read. Anything else is an error, and is never waited for: a FIFO does not block. The follow
// flag is for what a user names; what lies in a tree is taken as it is.
Error OpenFile(const std::string& path, bool followsLinks, QFile& file);

// The first bytes of a regular file, up to `limit`.
Error ReadFile(const std::string& path, std::size_t limit, std::string& bytes);

// Hands the rest of what is open over in blocks of up to kBlockSize. Stops at the first error of either side.
Error ReadBlocks(QIODevice& source, const std::function<Error(std::string_view block)>& take);

// Writes a new file below folders that are made where they are missing. The mode is as given, whatever the umask.
Error WriteFile(const std::string& path, QIODevice& source, unsigned mode);

// Describes an object below a folder, links not followed. False, with errno set, if there is none.
bool Look(const std::string& root, const std::string& path, Entry& entry);

// What stands at a path, if anything does, links not followed.
std::optional<Kind> KindAt(const std::string& path);
bool IsEmptyFolder(const std::string& path);

// The bytes that the user may still write to a folder's volume, or -1 where that is not known.
std::int64_t FreeBytes(const std::string& folder);

// Lists all that lies below a folder in the order in which a package holds it: by the bytes of the names, a folder
// before what it holds. `wanted` says how much of a file's content is read, or kSkip to leave a folder's inside out.
inline constexpr std::size_t kSkip = static_cast<std::size_t>(-1);
Error ScanTree(const std::string& root, const std::function<std::size_t(const std::string& path)>& wanted,
               std::vector<Entry>& entries);

// A path beside `path` that starts with "." and its name: a template for QTemporaryFile and QTemporaryDir.
QString HiddenTemplate(const std::string& path);
