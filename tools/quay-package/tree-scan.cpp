#include "tree-scan.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "posix/handles.h"

bool ListFolder(const std::string& folder, std::vector<std::string>& names) {
    const DirStream stream(opendir(folder.c_str()));
    if (!stream) {
        return false;
    }
    errno = 0;
    while (const dirent* entry = readdir(stream.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
        errno = 0;
    }
    if (errno != 0) {
        return false;
    }
    // By unsigned bytes: std::string compares so.
    std::sort(names.begin(), names.end());
    return true;
}

bool ReadLink(const std::string& path, std::string& target) {
    std::string buffer(256, '\0');
    for (;;) {
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0) {
            return false;
        }
        if (static_cast<std::size_t>(length) < buffer.size()) {
            target.assign(buffer, 0, static_cast<std::size_t>(length));
            return true;
        }
        buffer.resize(buffer.size() * 2);
    }
}

bool TreeScan::Fail(const char* what, const std::string& path) {
    const int error = errno;
    error_ = std::string(what) + " " + (path.empty() ? root_ : path) + ": " + std::strerror(error);
    return false;
}

bool TreeScan::Describe(TreeEntry& entry) {
    const std::string path = root_ + "/" + entry.path;
    entry.info = {};
    entry.link.clear();
    if (lstat(path.c_str(), &entry.info) != 0) {
        return Fail("can't look at", entry.path);
    }
    if (S_ISLNK(entry.info.st_mode) && !ReadLink(path, entry.link)) {
        return Fail("can't read the link", entry.path);
    }
    return true;
}

bool TreeScan::WalkFolder(const std::string& folder, const Visitor& visit, const FolderVisitor& visitFolder) {
    std::vector<std::string> names;
    if (!ListFolder(folder.empty() ? root_ : root_ + "/" + folder, names)) {
        return Fail("can't list", folder);
    }
    if (visitFolder) {
        visitFolder(folder, names);
    }
    const std::string prefix = folder.empty() ? "" : folder + "/";
    for (const std::string& name : names) {
        TreeEntry entry;
        entry.path = prefix + name;
        if (!Describe(entry)) {
            return false;
        }
        const Answer answer = visit(entry);
        stopped_ = stopped_ || answer == Stop;
        if (stopped_) {
            return true;
        }
        if (answer == Continue && S_ISDIR(entry.info.st_mode) && !WalkFolder(entry.path, visit, visitFolder)) {
            return false;
        }
        if (stopped_) {
            return true;
        }
    }
    return true;
}

bool TreeScan::Walk(const Visitor& visit, const FolderVisitor& visitFolder) {
    stopped_ = false;
    error_.clear();
    return WalkFolder("", visit, visitFolder);
}
