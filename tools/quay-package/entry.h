// One object of a client.
#pragma once

#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <string>

enum class Kind { File, Folder, Link, Other };

inline Kind KindOf(unsigned mode) {
    return S_ISREG(mode) ? Kind::File : S_ISDIR(mode) ? Kind::Folder : S_ISLNK(mode) ? Kind::Link : Kind::Other;
}
inline unsigned TypeOf(Kind kind) {
    return kind == Kind::Folder ? S_IFDIR : kind == Kind::Link ? S_IFLNK : S_IFREG;
}

// What a zip archive says of an entry, in front of its data and in its directory alike, as it lies in the file. Sizes
// are bytes. The names are those of the format's description, in short.
#pragma pack(push, 1)
struct ZipForm {
    std::uint16_t needed = 20;  // version of the reader
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint16_t time = 0;
    std::uint16_t date = 0;
    std::uint32_t sum = 0;  // CRC-32 of the data
    std::uint32_t packed = 0;
    std::uint32_t size = 0;
    std::uint16_t name = 0;   // length
    std::uint16_t extra = 0;  // length of further fields
};
#pragma pack(pop)

// In a folder or in a package. Names and targets are bytes as they stand there.
struct Entry {
    std::string path;  // without trailing "/"
    Kind kind = Kind::Other;
    unsigned mode = 0;         // permission bits, set-id bits included
    std::int64_t size = 0;     // bytes of a file
    std::string target = {};   // of a link
    std::string content = {};  // of a file, as much as is looked at
    ZipForm form = {};         // in a package alone

    // In a folder alone.
    std::uint64_t inode = 0;
    std::uint64_t names = 0;  // hard links
};

// The first one of this path, or the end.
template <typename Entries>
auto FindEntry(Entries& entries, const char* path) {
    return std::find_if(entries.begin(), entries.end(), [path](const Entry& entry) { return entry.path == path; });
}
