#include "files.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "progress.h"

namespace fs = std::filesystem;

Error Error::System(const std::string& what) {
    return Error(what + ": " + std::strerror(errno));
}

Error OpenFile(const std::string& path, bool followsLinks, QFile& file) {
    const int descriptor =
        open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (followsLinks ? 0 : O_NOFOLLOW));
    if (descriptor < 0) {
        return Error::System(path);
    }
    struct stat info = {};
    if (fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
        return {};
    }
    close(descriptor);
    return Error(path + ": is no regular file");
}

Error ReadFile(const std::string& path, std::size_t limit, std::string& bytes) {
    QFile file;
    Error error = OpenFile(path, false, file);
    bytes = error ? "" : file.read(static_cast<qint64>(limit)).toStdString();
    return error;
}

Error ReadBlocks(QIODevice& source, const std::function<Error(std::string_view block)>& take) {
    std::string block(kBlockSize, '\0');
    while (!IsInterrupted()) {
        const qint64 got = source.read(block.data(), static_cast<qint64>(block.size()));
        if (got <= 0) {
            return got == 0 ? Error() : Error(source.errorString().toStdString());
        }
        if (Error error = take(std::string_view(block).substr(0, static_cast<std::size_t>(got)))) {
            return error;
        }
    }
    return Error("interrupted");
}

Error WriteFile(const std::string& path, QIODevice& source, unsigned mode) {
    std::error_code failure;
    fs::create_directories(fs::path(path).parent_path(), failure);
    QFile file(QString::fromStdString(path));
    const auto fail = [&path] { return Error::System(path); };
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) ||
        fchmod(file.handle(), static_cast<mode_t>(mode)) != 0) {
        return fail();
    }
    Error error = ReadBlocks(source, [&](std::string_view block) {
        const auto size = static_cast<qint64>(block.size());
        return file.write(block.data(), size) == size ? Error() : fail();
    });
    return error || fsync(file.handle()) == 0 ? error : fail();
}

bool Look(const std::string& root, const std::string& path, Entry& entry) {
    const std::string full = root + "/" + path;
    struct stat info = {};
    std::error_code failure;
    if (lstat(full.c_str(), &info) != 0) {
        return false;
    }
    entry = {path, KindOf(info.st_mode), info.st_mode & 07777U, 0, {}, {}, {}, info.st_ino, info.st_nlink};
    entry.size = entry.kind == Kind::File ? info.st_size : 0;
    entry.target = entry.kind == Kind::Link ? fs::read_symlink(full, failure).string() : "";
    return !failure;
}

std::optional<Kind> KindAt(const std::string& path) {
    struct stat info = {};
    return lstat(path.c_str(), &info) == 0 ? std::optional(KindOf(info.st_mode)) : std::nullopt;
}

bool IsEmptyFolder(const std::string& path) {
    std::error_code failure;
    return KindAt(path) == Kind::Folder && fs::is_empty(path, failure);
}

Error ScanTree(const std::string& root, const std::function<std::size_t(const std::string& path)>& wanted,
               std::vector<Entry>& entries) {
    entries.clear();
    std::error_code failure;
    fs::recursive_directory_iterator walk(root, failure);
    for (; !failure && walk != fs::recursive_directory_iterator(); walk.increment(failure)) {
        Entry& entry = entries.emplace_back();
        const std::string path = walk->path().string();
        if (!Look(root, path.substr(root.size() + 1), entry)) {
            return Error::System(path);
        }
        const std::size_t size = wanted ? wanted(entry.path) : 0;
        if (entry.kind == Kind::Folder && size == kSkip) {
            walk.disable_recursion_pending();
        }
        if (entry.kind == Kind::File && size != 0 && size != kSkip) {
            if (Error error = ReadFile(path, size, entry.content)) {
                return error;
            }
        }
        if (IsInterrupted()) {
            return Error("interrupted");
        }
    }
    std::sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
        // So that a folder comes before what it holds, "/" counts less than any byte.
        const auto weight = [](char byte) { return byte == '/' ? 0 : static_cast<unsigned char>(byte) + 1; };
        return std::lexicographical_compare(left.path.begin(), left.path.end(), right.path.begin(), right.path.end(),
                                            [weight](char one, char other) { return weight(one) < weight(other); });
    });
    return failure ? Error(root + ": can't be read as a whole: " + failure.message()) : Error();
}

std::int64_t FreeBytes(const std::string& folder) {
    std::error_code unknown;  // the library then gives -1, unsigned
    return static_cast<std::int64_t>(fs::space(folder, unknown).available);
}

QString HiddenTemplate(const std::string& path) {
    const QFileInfo info(QString::fromStdString(path));
    return info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".XXXXXX");
}
