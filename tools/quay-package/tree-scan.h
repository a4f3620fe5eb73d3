// A folder on disk, walked in the order in which a package holds it.
#pragma once

#include <sys/stat.h>

#include <functional>
#include <string>
#include <vector>

// One object of a folder.
struct TreeEntry {
    std::string path;  // below the folder, bytes as the file system has them
    struct stat info;  // lstat's
    std::string link;  // the target of a symbolic link
};

// Walks a folder: in each folder the names in ascending order of their bytes, a folder before what it holds. The order
// depends on the names alone. Symbolic links are not followed. Memory grows with the longest listing and the depth, not
// with the number of entries.
class TreeScan {
public:
    explicit TreeScan(std::string root) : root_(std::move(root)) {}

    // Called for each object; false ends the walk. Of a folder the answer Skip leaves its inside out.
    enum Answer { Continue, Skip, Stop };
    using Visitor = std::function<Answer(const TreeEntry& entry)>;

    // Called for each folder with its sorted names, before any of them is visited. `folder` is "" for the root.
    using FolderVisitor = std::function<void(const std::string& folder, const std::vector<std::string>& names)>;

    // True when the walk came to its end or was stopped; false when something could not be read: error() tells what.
    bool Walk(const Visitor& visit, const FolderVisitor& visitFolder = {});

    const std::string& error() const { return error_; }

private:
    bool WalkFolder(const std::string& folder, const Visitor& visit, const FolderVisitor& visitFolder);
    bool Describe(TreeEntry& entry);
    bool Fail(const char* what, const std::string& path);

    const std::string root_;
    std::string error_;
    bool stopped_ = false;
};

// The sorted names in a folder, without "." and "..". False with errno set if it can't be read.
bool ListFolder(const std::string& folder, std::vector<std::string>& names);

// The target of a symbolic link of any length. False with errno set.
bool ReadLink(const std::string& path, std::string& target);
