// Packages and folder trees, made and compared.
#pragma once

#include <sys/stat.h>

#include <map>
#include <string>
#include <vector>

// One entry of an archive.
struct PackageEntry {
    std::string path;
    std::string content;      // of a file; the target of a link
    unsigned type = S_IFREG;  // S_IFREG, S_IFDIR, S_IFLNK or S_IFIFO
    unsigned mode = 0644;     // permission bits
};

// Writes an archive with the entries in the given order. `format` is one that libarchive's writer knows by name: "zip",
// "pax", "gnutar", "7zip"; `filter` is "gzip", "xz" or nothing. Fails the test when it can't.
void WritePackage(const std::string& file, const std::vector<PackageEntry>& entries, const std::string& format = "zip",
                  const std::string& filter = "");

// What lies below a folder: for each relative path a line that tells its type, its permission bits and, for a file or a
// link, its content (long ones by a digest). Two trees are the same if their maps are.
using Tree = std::map<std::string, std::string>;
Tree ReadTree(const std::string& folder);
