#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "file/file-op.h"
#include "file/internal.h"
#include "log/log-statement.h"
#include "posix/handles.h"

namespace {

constexpr mode_t kCopyMode = 0644;
constexpr std::size_t kCopyBlock = 8192;

// The next name in a stream other than "." and "..", valid until the next read. Null at its end or on a read error.
const char* NextName(const DirStream& stream) {
    while (const dirent* entry = readdir(stream.get())) {
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0) {
            return entry->d_name;
        }
    }
    return nullptr;
}

Fd OpenForCopy(const std::string& path, int flags, mode_t mode) {
    Fd file(open(path.c_str(), flags | O_CLOEXEC, mode));
    if (!file) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "CopyFile: open(%s): %s (%d)\n", path.c_str(), std::strerror(error), error);
    }
    return file;
}

// Writes all of the block. 0, -2 if the disk or the quota is full, or -1.
int WriteBlock(const Fd& file, const char* block, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(file.get(), block, size);
        if (written <= 0) {
            const int error = errno;
            KQ_LOG_ERROR(kLogComponent, "CopyFile: write: %s (%d)\n", std::strerror(error), error);
            return error == ENOSPC || error == EDQUOT ? -2 : -1;
        }
        block += written;
        size -= static_cast<std::size_t>(written);
    }
    return 0;
}

// Copies from where `source` stands to its end, with the results of WriteBlock. An interrupted call is a failure.
int CopyContent(const Fd& source, const Fd& destination) {
    char block[kCopyBlock];
    for (;;) {
        const ssize_t size = read(source.get(), block, sizeof(block));
        if (size < 0) {
            const int error = errno;
            KQ_LOG_ERROR(kLogComponent, "CopyFile: read: %s (%d)\n", std::strerror(error), error);
            return -1;
        }
        if (size == 0) {
            return 0;
        }
        if (const int result = WriteBlock(destination, block, static_cast<std::size_t>(size)); result != 0) {
            return result;
        }
    }
}

// Moves a folder to another volume: what it holds one by one, then the folder itself. The results are FSRename's.
int MoveFolder(const std::string& oldPath, const std::string& newPath, bool exactPath) {
    if (FSMKDir(newPath, true) != 0) {
        return -3;
    }
    DirStream stream(opendir(oldPath.c_str()));
    if (!stream) {
        return -3;
    }
    while (const char* name = NextName(stream)) {
        if (FSRename(oldPath + "/" + name, newPath + "/" + name, exactPath) != 0) {
            return -3;
        }
    }
    stream.reset();
    return std::remove(oldPath.c_str()) == 0 ? 0 : -3;
}

int RemoveFolder(const std::string& path, const std::string& spelled);

// Removes an object that GetFileInfo has described. The results are FSRemove's.
int RemoveKnown(const std::string& path, const _FILE_INFO_tag& info) {
    if (!info.exist) {
        return 0;
    }
    if (info.type == FILE_TYPE_DIRECTORY) {
        return RemoveFolder(path, info.path);
    }
    return std::remove(path.c_str()) == 0 ? 0 : -3;
}

// Removes a folder, which the file system spells as `spelled`. The results are FSRemove's.
int RemoveFolder(const std::string& path, const std::string& spelled) {
    DirStream stream(opendir(path.c_str()));
    if (!stream) {
        // A success, deliberately: callers go on where a folder can't be listed.
        return 0;
    }
    const std::string prefix = spelled == "/" ? spelled : spelled + "/";
    while (const char* name = NextName(stream)) {
        const std::string child = path + "/" + name;
        _FILE_INFO_tag info;
        if (GetEntryInfo(child, prefix + name, info) != 0 || RemoveKnown(child, info) != 0) {
            return -3;
        }
    }
    stream.reset();
    return std::remove(path.c_str()) == 0 ? 0 : -3;
}

}  // namespace

int FSCopy(const std::string& src, const std::string& dst, bool removeSource, bool keepMode) {
    Fd source = OpenForCopy(src, O_RDONLY, 0);
    if (!source) {
        return -1;
    }
    mode_t mode = kCopyMode;
    if (keepMode) {
        _FILE_INFO_tag info;
        if (FSStat(src, info, true) < 0) {
            KQ_LOG_ERROR(kLogComponent, "FSStat: check state (%s) failed\n", src.c_str());
            return -1;
        }
        // A source under another spelling counts as absent here, deliberately: its mode is 0, and so is the copy's.
        mode = static_cast<std::uint16_t>(info.mode);
    }
    Fd destination = OpenForCopy(dst, O_WRONLY | O_CREAT | O_TRUNC, mode);
    if (!destination) {
        return -1;
    }
    if (const int result = CopyContent(source, destination); result != 0) {
        return result;
    }
    if (removeSource) {
        source.close();
        if (std::remove(src.c_str()) != 0) {
            return -1;
        }
    }
    // What closing the destination reports is not part of the result; a copy that must be on disk takes FSFsync.
    return 0;
}

int FSRename(const std::string& oldPath, const std::string& newPath, bool exactPath) {
    if (oldPath.empty() || newPath.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (FSStat(oldPath, info, exactPath) < 0 || !info.exist) {
        return -2;
    }
    if (std::rename(oldPath.c_str(), newPath.c_str()) == 0) {
        return 0;
    }
    if (errno == ENAMETOOLONG) {
        return -100;
    }
    if (errno != EXDEV) {
        return -3;
    }
    switch (info.type) {
        case FILE_TYPE_REGULAR:
            // Without the mode, deliberately: a file that moves to another volume loses it, and its time. A full disk
            // is a failed move like any other.
            return FSCopy(oldPath, newPath, true, false) < 0 ? -3 : 0;
        case FILE_TYPE_DIRECTORY: return MoveFolder(oldPath, newPath, exactPath);
        default: return -3;
    }
}

int FSRemove(const std::string& path, bool /*ignoredFlag*/) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        return -1;
    }
    return RemoveKnown(path, info);
}

int FSFsync(const std::string& path) {
    Fd file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file) {
        const int error = errno;
        if (error == ENOENT) {
            return 1;
        }
        KQ_LOG_ERROR(kLogComponent, "FSFsync: open(%s): %s (%d)\n", path.c_str(), std::strerror(error), error);
        return -1;
    }
    if (fsync(file.get()) < 0) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "FSFsync: fsync(%s): %s (%d)\n", path.c_str(), std::strerror(error), error);
        return -1;
    }
    return 0;
}
