// Names of entries: how they are spelled, shown and compared.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "finding.h"

// The two entries that say that a client is complete.
constexpr char kBinaryEntry[] = "Contents/MacOS/cloud-quay-ui";
constexpr char kInfoEntry[] = "Contents/Resources/INFO";

// For people and JSON: control characters, and bytes that are not UTF-8, as "\xNN"; a backslash doubled.
std::string Printable(const std::string& bytes);

// The same key for all names that a volume takes for one that ignores letter case and Unicode form: case folded and
// decomposed. `name` is UTF-8. Source: u_strFoldCase.
std::string FoldedName(const std::string& name);

// Whether two names that fold to the same key differ in form only, letter case aside from it being the same.
bool DifferInFormOnly(const std::string& left, const std::string& right);

// The elements of a path between its "/", empty ones included.
std::vector<std::string> Elements(const std::string& path);

// Whether it is "._NAME" or lies below "__MACOSX".
bool IsAppleDouble(const std::string& path);

// Whether file managers, version control systems or editors leave a file of that name. `element` is the last element.
bool IsLitter(const std::string& element);

// A running hash over a path's bytes (FNV-1a, 64 bits), so that the hash of each parent falls out on the way. Not made
// to withstand somebody who looks for collisions: what rests on it alone is said where it is used.
class PathHash {
public:
    void Add(const std::string& bytes);
    void Add(char byte);
    std::uint64_t value() const { return value_; }
    static std::uint64_t Of(const std::string& bytes);

private:
    std::uint64_t value_ = 14695981039346656037U;
};

// Checks one name by itself and adds what is wrong with it. `path` has no trailing "/".
void CheckName(const std::string& path, Findings& findings);

// What a path leads to, as far as a walk along symbolic links needs to know.
enum class NodeKind { Absent, Folder, Link, Other };

// Looks a path up, which has no link among its parents; of a link `target` is set.
using NodeLookup = std::function<NodeKind(const std::string& path, std::string& target)>;

// Follows the symbolic link at `path`, whose content is `target`, one element at a time, links on the way included, and
// adds what is wrong. The folder's top has the empty path.
void CheckLink(const std::string& path, const std::string& target, const NodeLookup& lookup, Findings& findings);
