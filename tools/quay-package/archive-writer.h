// A package, written entry by entry.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <string>

struct archive;

// Writes an archive whose bytes depend on nothing but the calls: one fixed time for all entries, owner and group 0,
// modes 0755, 0644 and, of links, 0777. Each operation returns false on failure, and error() then tells why; nothing
// may follow but the destructor. One thread. Source: libarchive(3).
class ArchiveWriter {
public:
    explicit ArchiveWriter(std::time_t time) : time_(time) {}
    ~ArchiveWriter();
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    // Starts an archive of the format on a descriptor, which stays the caller's and must live until Close().
    // What is written after a failure goes nowhere.
    bool Open(int descriptor, const std::string& format);

    bool AddFolder(const std::string& path);
    bool AddLink(const std::string& path, const std::string& target);

    // A file's header; exactly `size` bytes by AddData must follow, in any portions.
    bool AddFile(const std::string& path, bool executable, std::int64_t size);
    bool AddData(const char* bytes, std::size_t size);

    // Completes the archive.
    bool Close();

    const std::string& error() const { return error_; }

private:
    static ssize_t WriteBlock(archive* handle, void* self, const void* block, std::size_t size);
    bool Check(int result);
    bool AddHeader(const std::string& path, unsigned type, unsigned mode, std::int64_t size, const char* target);

    struct Free {
        void operator()(archive* handle) const;
    };
    const std::time_t time_;
    int descriptor_ = -1;
    bool isDiscarding_ = false;
    std::string error_;
    std::unique_ptr<archive, Free> handle_;  // last: it writes into the others while it goes
};
