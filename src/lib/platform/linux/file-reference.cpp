#include "platform/file-reference.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <utility>

#include "platform/linux/name-spelling.h"
#include "posix/handles.h"

namespace platform {

namespace {

static_assert(kLongestPath == PATH_MAX - 1, "PATH_MAX counts the terminator");

// Writes the absolute path of what `path` leads to. 0, or the errno.
int Resolve(const std::string& path, std::string& resolved) {
    char buffer[PATH_MAX];
    if (realpath(path.c_str(), buffer) == nullptr) {
        return errno;
    }
    resolved = buffer;
    return 0;
}

// As Resolve, but does not follow a symbolic link at the end, where the path has a name.
int ResolveParent(const std::string& path, std::size_t nameAt, std::string& resolved) {
    const std::string parent = nameAt == 0 ? "." : path.substr(0, std::max<std::size_t>(nameAt - 1, 1));
    if (const int error = Resolve(parent, resolved); error != 0) {
        return error;
    }
    if (resolved.back() != '/') {
        resolved += '/';
    }
    resolved.append(path, nameAt);
    struct stat status = {};
    return lstat(resolved.c_str(), &status) == 0 ? 0 : errno;
}

// Whether the folder, a path with a "/" at its end, has an object under another spelling of `name`: it takes the two
// for one, or holds both. `folder` comes back as it was.
bool HasOtherSpelling(std::string& folder, const std::string& name) {
    const std::size_t length = folder.size();
    const std::vector<std::string> others = OtherSpellings(name);
    const bool found = std::any_of(others.begin(), others.end(), [&](const std::string& other) {
        folder.replace(length, std::string::npos, other);
        struct stat status = {};
        return lstat(folder.c_str(), &status) == 0;
    });
    folder.resize(length);
    return found;
}

// The name under which the folder lists the object that it finds as `name`. That is `name` itself if it is listed;
// else, of the names that are like it, the one with the object's inode, and after that the one in the same Unicode
// form, since some volumes ignore case but keep two forms apart. `name` where none fits or the folder can't be listed.
std::string ListedName(const std::string& folder, const std::string& name) {
    const DirStream stream(opendir(folder.c_str()));
    struct stat status = {};
    if (!stream || lstat((folder + name).c_str(), &status) != 0) {
        return name;
    }
    std::string listed = name;
    std::pair<bool, Likeness> best = {false, Likeness::None};  // same inode, likeness
    while (const dirent* entry = readdir(stream.get())) {
        if (name == entry->d_name) {
            return name;
        }
        const Likeness likeness = CompareNames(name, entry->d_name);
        if (const std::pair rank = {entry->d_ino == status.st_ino, likeness};
            likeness != Likeness::None && rank > best) {
            best = rank;
            listed = entry->d_name;
        }
    }
    return listed;
}

// The absolute path with each name as its folder lists it.
//
// Each folder is asked whether it takes two spellings for one: by one lstat of a name that it finds only if so. The
// kind of the volume would not tell: ext4, F2FS, tmpfs and others have single folders that ignore case, XFS volumes
// may, FUSE serves both kinds. To ask for it would also cost more calls a folder. The inode of what is found decides
// nothing: a FUSE server may give each spelling a number of its own.
std::string SpellNames(const std::string& path) {
    std::string spelled = "/";
    for (std::size_t at = 1; at < path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        const std::string name = path.substr(at, end - at);
        spelled += HasOtherSpelling(spelled, name) ? ListedName(spelled, name) : name;
        if (end < path.size()) {
            spelled += '/';
        }
        at = end + 1;
    }
    return spelled;
}

}  // namespace

int SpelledPath(const std::string& path, Leaf leaf, std::string& spelled) {
    const std::size_t nameAt = path.rfind('/') + 1;  // 0 where there is no "/"
    const std::string name = path.substr(nameAt);
    const bool isWhole = leaf == Leaf::Follow || name.empty() || name == "." || name == "..";

    std::string resolved;
    if (const int error = isWhole ? Resolve(path, resolved) : ResolveParent(path, nameAt, resolved); error != 0) {
        return error;
    }
    resolved = SpellNames(resolved);
    if (resolved.size() > kLongestPath) {
        return ENAMETOOLONG;
    }
    spelled = std::move(resolved);
    return 0;
}

}  // namespace platform
