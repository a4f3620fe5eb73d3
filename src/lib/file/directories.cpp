#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "file/file-op.h"
#include "file/internal.h"
#include "log/log-statement.h"

namespace {

constexpr mode_t kFolderMode = 0777;

bool IsFolder(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// If active, keeps the umask of the process at 0 for as long as it lives.
class NoUmask {
public:
    explicit NoUmask(bool active) : active_(active), old_(active ? umask(0) : mode_t{0}) {}
    ~NoUmask() {
        if (active_) {
            umask(old_);
        }
    }
    NoUmask(const NoUmask&) = delete;
    NoUmask& operator=(const NoUmask&) = delete;

private:
    const bool active_;
    const mode_t old_;
};

// Makes a folder, or finds that another process has made it meanwhile. 0, or the errno.
int MakeLevel(const std::string& path, mode_t mode) {
    if (mkdir(path.c_str(), mode) == 0) {
        return 0;
    }
    const int error = errno;
    return error == EEXIST && IsFolder(path) ? 0 : error;
}

// Makes one level of a walk unless a folder, or a link to one, is there. 0, or the errno that ends the walk.
int WalkLevel(const std::string& path, bool isLast, bool replaceFile, mode_t mode) {
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode)) {
            return 0;
        }
        if (replaceFile) {
            // Where this fails, so does the mkdir that follows.
            static_cast<void>(std::remove(path.c_str()));
        } else if (isLast) {
            KQ_LOG_INFO(kLogComponent, "FSMKDirP: path: %s is existing file or symbolic link pointed to file\n",
                        path.c_str());
            return EEXIST;
        } else {
            // It is no folder, and the text is wrong about it, deliberately: the log's readers know the line so. The
            // walk fails at the next level.
            KQ_LOG_INFO(kLogComponent, "FSMKDirP: path: %s is symbolic link pointed to folder\n", path.c_str());
            return 0;
        }
    }
    return MakeLevel(path, mode);
}

// The FileType of a d_type. All systems that have the field use these numbers, though not all name them.
FileType TypeOfEntry(unsigned char type) {
    switch (type) {
        case 1: return FILE_TYPE_FIFO;
        case 2: return FILE_TYPE_DEVICE;  // character
        case 4: return FILE_TYPE_DIRECTORY;
        case 6: return FILE_TYPE_DEVICE;  // block
        case 8: return FILE_TYPE_REGULAR;
        case 10: return FILE_TYPE_SYMLINK;
        case 12: return FILE_TYPE_SOCKET;
        default: return FILE_TYPE_NONE;
    }
}

}  // namespace

int FSMKDirP(const std::string& path, const char** failedAt, bool replaceFile, std::uint16_t dirMode) {
    if (path.empty()) {
        return -1;
    }
    const bool hasMode = dirMode != kNoDirMode;
    const NoUmask noUmask(hasMode);
    const mode_t mode = hasMode ? dirMode : kFolderMode;

    int error = 0;
    std::size_t end = path[0] == '/' ? 1 : 0;  // the root is never tested
    for (;;) {
        end = std::min(path.find('/', end), path.size());
        // A "/" at the very end makes no further, empty level.
        const bool isLast = end + 1 >= path.size();
        error = WalkLevel(path.substr(0, end), isLast, replaceFile, mode);
        if (error != 0 || isLast) {
            break;
        }
        ++end;
    }
    if (failedAt != nullptr) {
        *failedAt = path.c_str() + end;
    }
    if (error != 0) {
        errno = error;
        return -1;
    }
    return 0;
}

int FSMKDir(const std::string& path, bool recursive) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        KQ_LOG_ERROR(kLogComponent, "FSMKDir: Failed to to file info '%s'\n", path.c_str());
        return -1;
    }
    if (info.exist) {
        if (info.type == FILE_TYPE_DIRECTORY) {
            return 0;
        }
        // A link to a folder is refused as well, deliberately.
        KQ_LOG_ERROR(kLogComponent, "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
                     path.c_str(), info.type);
        return -1;
    }
    int error = 0;
    if (recursive) {
        error = FSMKDirP(path, nullptr, false, kNoDirMode) == 0 ? 0 : errno;
    } else {
        error = MakeLevel(path, kFolderMode);
    }
    if (error != 0) {
        KQ_LOG_ERROR(kLogComponent, "path = %s errno : %s\n", path.c_str(), std::strerror(error));
        errno = error;
        return -2;
    }
    return 0;
}

int FSMKDirFromRoot(const std::string& target, const std::string& root) {
    if (root.size() > target.size()) {
        KQ_LOG_ERROR(kLogComponent, "Giving a root '%s' whose length is larger then target's '%s'.\n", root.c_str(),
                     target.c_str());
        return -1;
    }
    if (!FSIsParentFolder(root, target)) {
        KQ_LOG_ERROR(kLogComponent, "root '%s' is not a parent folder of target '%s'\n", root.c_str(), target.c_str());
        return -1;
    }
    const std::string rest = target.substr(root.size());
    std::string current;
    while (current != rest) {
        current = rest.substr(0, rest.find('/', current.size() + 1));
        KQ_LOG_DEBUG(kLogComponent, "FSMKDirFromRoot: create %s\n", current.c_str());
        if (FSMKDir(root + current, false) < 0) {
            return -1;
        }
    }
    return 0;
}

bool FSIsParentFolder(const std::string& parent, const std::string& child) {
    if (child.size() < parent.size()) {
        return false;
    }
    if (child.size() > parent.size() && child[parent.size()] != '/') {
        return false;
    }
    return child.compare(0, parent.size(), parent) == 0;
}

int FSOpenDir(const std::string& path, int flags, DIR_HANDLE& handle) {
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "FSOpenDir: Failed to open directory '%s'. %s\n", path.c_str(),
                     std::strerror(error));
        return -1;
    }
    handle.dir = dir;
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    const dirent* read = readdir(handle.dir);
    if (read == nullptr) {
        return 0;
    }
    // Stays 0 for an entry that has vanished meanwhile, or whose folder was opened under another spelling.
    _FILE_INFO_tag info;
    if ((handle.flags & 1) != 0) {
        const std::string path = handle.path + "/" + read->d_name;
        if (FSStat(path, info, true) < 0) {
            KQ_LOG_ERROR(kLogComponent, "FSOpenDir: Failed to get info for '%s'\n", path.c_str());
            return -1;
        }
    }
    entry.mtime = info.mtime;
    entry.size = info.size;
    entry.name = read->d_name;
    entry.type = TypeOfEntry(read->d_type);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    closedir(handle.dir);
    handle.dir = nullptr;
    handle.path.clear();
}
