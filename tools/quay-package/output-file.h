// Output that appears under its name when it is complete, and not before.
#pragma once

#include <sys/types.h>

#include <string>

#include "posix/handles.h"

// A file that is written beside its place, under a hidden name, and then renamed over what stands there. Without
// Commit() the destructor removes it, and what stood there stays. Each operation returns an empty text or what failed.
class OutputFile {
public:
    explicit OutputFile(std::string path) : path_(std::move(path)) {}
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    std::string Open();
    int descriptor() const { return file_.get(); }

    // Flushes it to disk and renames it. Its mode is 0666 less the umask. Source: fsync(2), rename(2).
    std::string Commit();

    // Removes it. Nothing follows.
    void Discard();

private:
    const std::string path_;
    std::string temporary_;  // empty when there is none
    Fd file_;
};

// A fresh hidden folder in the folder of `path`, to be renamed later: its path, or an empty text with errno set.
std::string MakeFolderBeside(const std::string& path);

// Removes a file or a folder with all that it holds, folders without rights for the owner included. Links are not
// followed. True when nothing is left.
bool RemoveTree(const std::string& path);

// Writes a whole file with a mode less the umask, replacing what is there. An empty text or what failed.
std::string WriteWholeFile(const std::string& path, const std::string& bytes, unsigned mode);

// Copies a file's content, links followed, into a new file with a mode less the umask. An empty text or what failed.
std::string CopyWholeFile(const std::string& from, const std::string& to, unsigned mode);

// A file's bytes, up to `limit`. False with errno set.
bool ReadWholeFile(const std::string& path, std::size_t limit, std::string& bytes);

// Writes all the bytes, in as many portions as it takes. False with errno set. Source: write(2).
bool WriteAll(int descriptor, const char* bytes, std::size_t size);

// The umask. It is set for a moment, which is safe in a program of one thread. Source: umask(2).
mode_t Umask();

// "PATH: " and the system's message for errno.
std::string SystemError(const std::string& path);
