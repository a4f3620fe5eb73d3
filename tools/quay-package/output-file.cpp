#include "output-file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "file/file-op.h"
#include "tree-scan.h"

namespace {

constexpr std::size_t kBlockSize = 1 << 16;

std::string HiddenPattern(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
    return folder + "." + FSBaseName(path) + ".XXXXXX";
}

}  // namespace

bool WriteAll(int descriptor, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(descriptor, bytes, size);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

mode_t Umask() {
    const mode_t mask = umask(0);
    umask(mask);
    return mask;
}

std::string SystemError(const std::string& path) {
    const int error = errno;
    return path + ": " + std::strerror(error);
}

OutputFile::~OutputFile() {
    Discard();
}

void OutputFile::Discard() {
    if (!temporary_.empty()) {
        unlink(temporary_.c_str());
        temporary_.clear();
    }
}

std::string OutputFile::Open() {
    struct stat info = {};
    if (lstat(path_.c_str(), &info) == 0 && !S_ISREG(info.st_mode)) {
        return path_ + ": stands there already, and is no file that could be replaced";
    }
    std::string name = HiddenPattern(path_);
    file_ = Fd(mkstemp(name.data()));
    if (!file_) {
        return SystemError(path_);
    }
    temporary_ = name;
    return {};
}

std::string OutputFile::Commit() {
    if (fchmod(file_.get(), 0666 & ~Umask()) != 0 || fsync(file_.get()) != 0 || file_.close() != 0 ||
        rename(temporary_.c_str(), path_.c_str()) != 0) {
        return SystemError(path_);
    }
    temporary_.clear();
    return {};
}

std::string MakeFolderBeside(const std::string& path) {
    std::string name = HiddenPattern(path);
    if (mkdtemp(name.data()) == nullptr) {
        return {};
    }
    chmod(name.c_str(), 0777 & ~Umask());
    return name;
}

bool RemoveTree(const std::string& path) {
    struct stat info = {};
    if (lstat(path.c_str(), &info) != 0) {
        return errno == ENOENT;
    }
    if (!S_ISDIR(info.st_mode)) {
        return unlink(path.c_str()) == 0;
    }
    if ((info.st_mode & S_IRWXU) != S_IRWXU) {
        chmod(path.c_str(), S_IRWXU);
    }
    std::vector<std::string> names;
    bool removed = ListFolder(path, names);
    const std::string prefix = path + "/";
    for (const std::string& name : names) {
        removed = RemoveTree(prefix + name) && removed;
    }
    return rmdir(path.c_str()) == 0 && removed;
}

std::string WriteWholeFile(const std::string& path, const std::string& bytes, unsigned mode) {
    Fd file(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode));
    if (!file || !WriteAll(file.get(), bytes.data(), bytes.size()) || file.close() != 0) {
        return SystemError(path);
    }
    return {};
}

std::string CopyWholeFile(const std::string& from, const std::string& to, unsigned mode) {
    const Fd source(open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source) {
        return SystemError(from);
    }
    Fd target(open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!target) {
        return SystemError(to);
    }
    std::vector<char> block(kBlockSize);
    for (;;) {
        const ssize_t got = read(source.get(), block.data(), block.size());
        if (got < 0) {
            return SystemError(from);
        }
        if (got == 0) {
            break;
        }
        if (!WriteAll(target.get(), block.data(), static_cast<std::size_t>(got))) {
            return SystemError(to);
        }
    }
    return fsync(target.get()) == 0 && target.close() == 0 ? std::string() : SystemError(to);
}

bool ReadWholeFile(const std::string& path, std::size_t limit, std::string& bytes) {
    const Fd file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file) {
        return false;
    }
    bytes.clear();
    std::vector<char> block(kBlockSize);
    while (bytes.size() < limit) {
        const ssize_t got = read(file.get(), block.data(), std::min(block.size(), limit - bytes.size()));
        if (got < 0) {
            return false;
        }
        if (got == 0) {
            break;
        }
        bytes.append(block.data(), static_cast<std::size_t>(got));
    }
    return true;
}
