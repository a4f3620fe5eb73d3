// What can be told of a package without unpacking it.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "archive-reader.h"
#include "finding.h"
#include "hash-table.h"
#include "names.h"

// What stands under one path of the package.
struct Node {
    NodeKind kind = NodeKind::Absent;
    bool isImplied = false;  // a folder without an entry, named by those below it
    bool isTwice = false;    // more than one entry
    std::uint32_t link = 0;  // of a link its number
};

// The paths of a package by the hash of their normal form. Two paths with the same hash are taken for one: with 64 bits
// and a hundred thousand entries that happens once in four billion packages.
using NodeTable = HashTable<Node>;

// An entry's path without "." and empty elements: where it lands below the folder.
std::string NormalPath(const std::string& path);

// Reads a package once, or, where two names fall together, a second time to tell which. Memory: about 100 bytes for
// each entry, and the text of each symbolic link; what libarchive keeps of a zip file's directory comes on top.
class ArchiveCheck {
public:
    // `advance` is called for each entry. With `readData` all the data is read, to see whether it is damaged.
    ArchiveCheck(std::string package, Findings& findings, std::function<void()> advance, bool readData);

    // True if the package could be read to its end.
    bool Run();

    // Whether an unpacking of it stays in its folder.
    bool IsSafeToUnpack() const;

    const std::string& format() const { return format_; }
    std::int64_t entries() const { return entries_; }
    std::int64_t bytes() const { return bytes_; }
    bool hasInfo() const { return info_.isThere; }
    const std::string& info() const { return info_.beginning; }
    NodeTable& nodes() { return nodes_; }

private:
    // An entry of which more than the header is looked at.
    struct Special {
        bool isThere = false;
        std::int64_t at = -1;  // the number of its last entry, from 0
        std::string beginning;
    };
    struct Link {
        std::string path;
        std::string target;
    };
    struct Collision {
        std::string path;
        std::uint64_t other;  // the hash of the path that was there first
    };

    bool ReadEntries();
    bool AddEntry(const Entry& entry);
    void AddTypeAndMode(const Entry& entry);
    void AddPath(const Entry& entry, const std::string& path);
    void AddParent(const Entry& entry, std::uint64_t parent, bool& isBehindLink, bool& isBelowFile);
    void AddNode(const Entry& entry, const std::string& path, std::uint64_t hash);
    bool AddFolded(const std::string& path, std::uint64_t folded, std::uint64_t exact);
    bool ReadContent(const Entry& entry);
    void CheckLinks();
    void CheckCollisions();
    void CheckRequired();

    const std::string package_;
    Findings& findings_;
    const std::function<void()> advance_;
    const bool readData_;
    ArchiveReader reader_;
    std::string format_;
    std::int64_t entries_ = 0;
    std::int64_t bytes_ = 0;
    Special info_;
    Special binary_;
    Special propertyList_;
    bool isBinaryFile_ = false;
    bool isBinaryExecutable_ = false;
    bool isInfoFile_ = false;
    NodeTable nodes_;
    HashTable<std::uint64_t> folded_;  // folded path to the exact path that came first
    std::vector<Link> links_;
    std::vector<Collision> collisions_;
    std::set<std::uint64_t> collided_;
};
