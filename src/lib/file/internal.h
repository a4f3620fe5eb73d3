// What the families of the library share and nobody else sees.
#pragma once

#include <cstdint>
#include <string>

// The component of every log statement of the library.
inline constexpr const char* kLogComponent = "file_op_debug";

struct _FILE_INFO_tag;

// As GetFileInfo, for an entry of a listing: `spelled`, the folder's own spelling and the name as listed, is how the
// file system spells `path`, so that nobody has to be asked. A walk costs one lstat an entry by it.
int GetEntryInfo(const std::string& path, const std::string& spelled, _FILE_INFO_tag& info);

// Says that FSMKDirP is given no mode: levels are made with 0777 under the umask that stands.
inline constexpr std::uint16_t kNoDirMode = 0xFFFF;

// Walks `path` from the front and creates each missing level, links followed.
//
// With a `dirMode` other than kNoDirMode levels get exactly that mode; the umask of the whole process is 0 meanwhile,
// so that other threads' files are made without it. With `replaceFile` a file in the way of a level is removed first.
//
// 0, or -1 with errno set; levels made before stay. `failedAt`, if not null, receives the place in the text of `path`
// where the walk ended: the "/" or the terminator that closes the level. Empty path: -1, `failedAt` untouched.
int FSMKDirP(const std::string& path, const char** failedAt, bool replaceFile, std::uint16_t dirMode);
