#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <tuple>
#include <utility>

#include "file/file-op.h"
#include "file/internal.h"
#include "log/log-statement.h"
#include "platform/file-reference.h"
#include "text/string-helper.h"

using kelvanequay::utils::StringHelper;

namespace {

// The FileType of the format bits of an st_mode; FILE_TYPE_NONE for any that is not known.
FileType TypeOfMode(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG: return FILE_TYPE_REGULAR;
        case S_IFDIR: return FILE_TYPE_DIRECTORY;
        case S_IFCHR:
        case S_IFBLK: return FILE_TYPE_DEVICE;
        case S_IFLNK: return FILE_TYPE_SYMLINK;
        case S_IFIFO: return FILE_TYPE_FIFO;
        case S_IFSOCK: return FILE_TYPE_SOCKET;
        default: return FILE_TYPE_NONE;
    }
}

// What does not fit the record's widths is cut.
void TakeStatus(const struct stat& status, _FILE_INFO_tag& info) {
    info.mtime = static_cast<std::int32_t>(status.st_mtime);
    info.size = static_cast<std::int64_t>(status.st_size);
    info.uid = static_cast<std::int32_t>(status.st_uid);
    info.gid = static_cast<std::int32_t>(status.st_gid);
    info.mode = static_cast<std::int32_t>(static_cast<std::uint16_t>(status.st_mode));
    info.dev = static_cast<std::int64_t>(static_cast<std::int32_t>(status.st_dev));
}

// GetFileInfo, where find(path, spelled) finds the spelling and returns as platform::SpelledPath does.
template <typename Find>
int FillInfo(const std::string& path, _FILE_INFO_tag& info, Find find) {
    struct stat status = {};
    const bool found = lstat(path.c_str(), &status) == 0;
    if (!found && errno != ENOENT) {
        return -1;
    }
    info.exist = found;
    // `path` may be one of the record's own strings, and is not read from here on.
    info.path = path;
    info.name = FSBaseName(info.path);
    TakeStatus(status, info);
    if (!found) {
        info.type = FILE_TYPE_NONE;
        return 0;
    }
    const FileType type = TypeOfMode(status.st_mode);
    if (type == FILE_TYPE_NONE) {
        return -1;
    }
    info.type = type;

    KQ_LOG_DEBUG(kLogComponent, "Input file path = [%s].\n", info.path.c_str());
    std::string spelled;
    if (const int failure = find(info.path, spelled); failure != 0) {
        KQ_LOG_ERROR(kLogComponent, "FSPathMakeRef: %d\n", failure);
        return -1;
    }
    KQ_LOG_DEBUG(kLogComponent, "FSRefMakePath outTargetPath path = [%s].\n", spelled.c_str());
    info.name = FSBaseName(spelled);
    info.path = std::move(spelled);
    return 0;
}

int FindSpelling(const std::string& path, std::string& spelled) {
    return platform::SpelledPath(path, platform::Leaf::Keep, spelled);
}

}  // namespace

int GetFileInfo(const std::string& path, _FILE_INFO_tag& info) {
    return FillInfo(path, info, FindSpelling);
}

int GetEntryInfo(const std::string& path, const std::string& spelled, _FILE_INFO_tag& info) {
    return FillInfo(path, info, [&spelled](const std::string& input, std::string& out) {
        if (spelled.size() > platform::kLongestPath) {
            return FindSpelling(input, out);  // has a status for it
        }
        out = spelled;
        return 0;
    });
}

bool IsFileExist(const std::string& path, bool exactPath) {
    if (path.empty()) {
        return false;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) < 0 || !info.exist) {
        return false;
    }
    // The whole path counts, deliberately, not only its last name: what is reached through a link counts as absent. Two
    // paths that are not UTF-8 count as the same.
    return !exactPath ||
           StringHelper::Normalize(info.path, StringHelper::NFC) == StringHelper::Normalize(path, StringHelper::NFC);
}

int FSStat(const std::string& path, _FILE_INFO_tag& info, bool exactPath) {
    if (path.empty()) {
        return -1;
    }
    if (!IsFileExist(path, exactPath)) {
        // Nothing else is set: FSCopy and FSReadDir count on the zeros of a fresh record.
        info.exist = false;
        return 0;
    }
    return GetFileInfo(path, info) < 0 ? -2 : 0;
}

std::string FSParentPath(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos || slash == 0 ? "/" : path.substr(0, slash);
}

std::string FSBaseName(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool FSTimeEqual(std::int64_t left, std::int64_t right) {
    return left == right;
}

int FSUTime(const std::string& path, std::int64_t accessTime, std::int64_t modificationTime) {
    struct timeval times[2] = {};
    times[0].tv_sec = static_cast<time_t>(accessTime);
    times[1].tv_sec = static_cast<time_t>(modificationTime);
    return lutimes(path.c_str(), times) < 0 ? -1 : 0;
}

bool isFileLocked(const std::string& path, int accessMode) {
    return access(path.c_str(), accessMode) == -1 && (errno == EACCES || errno == EPERM);
}

bool hasFilePermission(const std::string& path, int accessMode) {
    return !isFileLocked(path, accessMode);
}

bool operator==(const _FILE_INFO_tag& left, const _FILE_INFO_tag& right) {
    // Without owner, mode and device, deliberately.
    return std::tie(left.exist, left.size, left.mtime, left.type, left.path, left.name) ==
           std::tie(right.exist, right.size, right.mtime, right.type, right.path, right.name);
}

bool operator!=(const _FILE_INFO_tag& left, const _FILE_INFO_tag& right) {
    return !(left == right);
}
