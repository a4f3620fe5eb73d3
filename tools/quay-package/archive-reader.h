// A package, read entry by entry.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

struct archive;
struct archive_entry;

// What a header tells.
struct Entry {
    std::string path;       // without trailing "/"; empty if the archive's name can't be had as bytes at all
    mode_t type = 0;        // S_IFREG and its like
    unsigned mode = 0;      // permission bits, set-id bits included
    std::int64_t size = 0;  // bytes; -1 if the header does not tell
    std::string link;       // the target of a symbolic or a hard link
    bool isHardLink = false;
    bool isEncrypted = false;
};

// One pass over an archive, by the same calls and with the same formats and filters as Extractor makes it, so that what
// is seen here is what will be installed. Memory does not grow with the number of entries but for what libarchive keeps
// of a zip file's directory. One thread. Source: libarchive(3).
class ArchiveReader {
public:
    enum Result { Header, End, Damaged };

    ArchiveReader();
    ~ArchiveReader();
    ArchiveReader(const ArchiveReader&) = delete;
    ArchiveReader& operator=(const ArchiveReader&) = delete;

    // Opens a file (UTF-8). False: error() tells why.
    bool Open(const std::string& file);

    // Reads the next header; the data of the one before is skipped. Damaged: error() tells why, and nothing can be read
    // behind it.
    Result Next(Entry& entry);

    // Hands the current entry's data over, block by block; `take` returns false to have no more. False: the data is
    // damaged, and error() tells how.
    bool ReadData(const std::function<bool(const char* bytes, std::size_t size)>& take);

    // Gives up what is held of the archive.
    void Close();

    const std::string& error() const { return error_; }

    // After the first header.
    std::string FormatText() const;
    bool IsPackageFormat() const;

private:
    void TakeError(const char* fallback);

    struct Free {
        void operator()(archive* handle) const;
    };
    std::unique_ptr<archive, Free> handle_;
    std::string error_;
};
