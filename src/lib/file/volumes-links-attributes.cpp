#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "file/file-op.h"
#include "file/internal.h"
#include "log/log-statement.h"
#include "platform/file-reference.h"
#include "platform/volume-type.h"

namespace {

// A content that fills the buffer may have been cut, so that it counts as too long.
constexpr int kLinkBuffer = 1024;

}  // namespace

bool isMountPoint(const std::string& path) {
    const std::optional<std::string> type = platform::VolumeTypeName(path);
    if (!type) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "isMountPoint: Failed to get file system info '%s'. %s\n", path.c_str(),
                     std::strerror(error));
        return false;
    }
    return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const std::string& path) {
    const std::optional<std::string> type = platform::VolumeTypeName(path);
    if (!type) {
        const int error = errno;
        // The message names another function, deliberately: the log's readers know the line so.
        KQ_LOG_ERROR(kLogComponent, "IsSupportLargeFile: Failed to get file system info '%s'. %s\n", path.c_str(),
                     std::strerror(error));
        return false;
    }
    if (type != "msdos") {
        return false;
    }
    KQ_LOG_WARNING(kLogComponent, "Detect a MSDOS platform for path '%s'.\n", path.c_str());
    return true;
}

int FSGetRealPath(std::string& path) {
    KQ_LOG_DEBUG(kLogComponent, " org path [%s]\n", path.c_str());
    std::string spelled;
    if (platform::SpelledPath(path, platform::Leaf::Follow, spelled) != 0) {
        return -1;
    }
    path = std::move(spelled);
    KQ_LOG_DEBUG(kLogComponent, " get full path [%s]\n", path.c_str());
    return 0;
}

int FSCreateSymbolicLink(const std::string& target, const std::string& linkPath) {
    if (symlink(target.c_str(), linkPath.c_str()) < 0) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent,
                     "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: %s)\n",
                     target.c_str(), linkPath.c_str(), error, std::strerror(error));
        return -1;
    }
    return 0;
}

int FSReadSymbolicLink(const std::string& path, std::string& outTarget) {
    char buffer[kLinkBuffer] = {};
    const ssize_t length = readlink(path.c_str(), buffer, sizeof(buffer));
    if (length < 0) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n",
                     path.c_str(), error, std::strerror(error));
        return -1;
    }
    if (length >= kLinkBuffer) {
        KQ_LOG_ERROR(kLogComponent, "FSReadSymbolicLink: path of '%s' is more than %d\n", path.c_str(), kLinkBuffer);
        return -1;
    }
    outTarget.assign(buffer, static_cast<std::size_t>(length));
    return 0;
}

int FSChown(const std::string& path, std::uint32_t uid, std::uint32_t gid) {
    if (lchown(path.c_str(), uid, gid) < 0) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(), error,
                     std::strerror(error));
        return -1;
    }
    return 0;
}

// Follows a link, deliberately, though FSChown does not.
int FSChmod(const std::string& path, std::uint16_t mode) {
    if (chmod(path.c_str(), mode) < 0) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "FSChmod: Failed to chmod '%s' (code: %d, msg: %s)\n", path.c_str(), error,
                     std::strerror(error));
        return -1;
    }
    return 0;
}
