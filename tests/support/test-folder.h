// A fresh folder for each test, the packages and trees in it, and what a machine must be able to do for some tests.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace fs = std::filesystem;

// Gives each test an empty folder of its own, removed when the test has passed; that of a failed one is kept and named.
class FolderTest : public ::testing::Test {
public:
    // Writes a file, parents included; reads one. Fail the test when they can't.
    static void Write(const std::string& path, const std::string& bytes);
    static std::string Read(const std::string& path);

protected:
    FolderTest();
    ~FolderTest() override;

    // The folder's absolute path, UTF-8, symbolic links resolved, without a trailing "/"; and a path below it.
    const std::string& folder() const { return folder_; }
    std::string At(const std::string& name) const { return folder_ + "/" + name; }

    // What `action` writes to the standard error stream of this process.
    static std::string StandardErrorOf(const std::function<void()>& action);

private:
    std::string folder_;
};

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

// What not every machine and every user can do: be another user; see and change a program's system calls, by strace(1);
// and tell those calls from a sanitizer's.
enum class Ability { Root, Tracing, OwnCalls };

// The reason why it can't be done here, empty if it can.
std::string WhyNot(Ability ability);

// Skips the test, whose body it must stand in, with the reason if there is one: KQ_NEED(Ability::Root).
#define KQ_NEED(what)                                               \
    if (const std::string reason = WhyNot(what); !reason.empty()) { \
        GTEST_SKIP() << reason;                                     \
    }
