#include "checks.h"

#include <QRegularExpression>
#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "product-layout.h"
#include "text.h"

using namespace std::string_literals;

namespace {

// A name's limit on every file system of ours, and macOS's PATH_MAX without the zero byte, less room for the home
// folder and the application folder in front of an entry.
constexpr std::size_t kLongestName = 255;
constexpr std::size_t kLongestPath = 1023 - 200;
constexpr std::size_t kLongestTarget = 1023;

// Links that a system follows in one lookup, at the least (macOS has 32, Linux 40).
constexpr int kMostLinks = 32;

void CheckName(const std::string& path, Findings& findings) {
    const std::string framed = "/" + path + "/";
    const bool isUtf8 = IsUtf8(path);
    const bool isAbsolute = path[0] == '/';
    const auto has = [&framed](const char* part, std::size_t from) {
        return framed.find(part, from) != std::string::npos;
    };
    std::size_t longest = 0;
    for (std::size_t from = 1, to = 0; (to = framed.find('/', from)) != std::string::npos; from = to + 1) {
        longest = std::max(longest, to - from);
    }
    const struct {
        bool isBroken;
        Defect defect;
    } rules[] = {
        {!isUtf8, Defect::NameNotUtf8},
        {isUtf8 && Composed(path) != path, Defect::NameNotComposed},
        {isAbsolute, Defect::NameAbsolute},
        {has("/../", 0), Defect::NameDotDot},
        {has("/./", 0) || has("//", isAbsolute ? 2 : 0), Defect::NameOddElement},
        {path.size() > kLongestPath || longest > kLongestName, Defect::NameTooLong},
        {HasControl(path), Defect::NameControl},
        {has("\\", 0), Defect::NameBackslash},
        {!isAbsolute && framed.find("/"s + kContentsFolder + "/") != 0 && !has("/./", 0) && !has("/__MACOSX/", 0),
         Defect::NameOutsideContents},
    };
    for (const auto& rule : rules) {
        if (rule.isBroken) {
            findings.Add(rule.defect, path);
        }
    }
    if (const std::optional<Defect> leftover = LeftoverKind(path)) {
        findings.Add(*leftover, path);
    }
}

void CheckKindAndMode(const Entry& entry, Findings& findings) {
    const bool isLink = entry.kind == Kind::Link;
    const bool isFolder = entry.kind == Kind::Folder;
    const unsigned needed = isFolder ? S_IRWXU : S_IRUSR;
    if (entry.kind == Kind::Other) {
        findings.Add(Defect::SpecialFile, entry.path);
    } else if (isLink ? entry.mode != 0777 : entry.mode != 0755 && (entry.mode != 0644 || isFolder)) {
        findings.Add((entry.mode & 07000) != 0                ? Defect::SetIdBit
                     : (entry.mode & needed) != needed        ? Defect::UnreadableMode
                     : (entry.mode & S_IWOTH) != 0 && !isLink ? Defect::WorldWritable
                                                              : Defect::OddMode,
                     entry.path, Octal(entry.mode));
    }
}

// What stands under each path.
using Paths = std::unordered_map<std::string_view, const Entry*>;

void CheckParent(const Entry& entry, const Paths& paths, Findings& findings) {
    const std::string parent = ParentOf(entry.path);
    if (parent.empty()) {
        return;
    }
    const auto found = paths.find(parent);
    if (found == paths.end()) {
        findings.Add(Defect::FolderMissing, entry.path);
    } else if (found->second->kind != Kind::Folder) {
        findings.Add(found->second->kind == Kind::Link ? Defect::BehindLink : Defect::ParentIsNoFolder, entry.path);
    }
}

// Follows a link one element at a time, links on the way included. Tells what is wrong with it.
std::optional<Defect> FollowLink(const Entry& link, const Paths& paths) {
    if (link.target.empty() || link.target.size() > kLongestTarget || !IsUtf8(link.target) ||
        Composed(link.target) != link.target || HasControl(link.target)) {
        return Defect::LinkTargetOdd;
    }
    if (link.target[0] == '/') {
        return Defect::LinkAbsolute;
    }
    std::string here = ParentOf(link.path);
    std::string rest = link.target + "/";
    for (int links = 1; !rest.empty();) {
        const std::string element = rest.substr(0, rest.find('/'));
        rest.erase(0, element.size() + 1);
        if (element == ".." && here.empty()) {
            return Defect::LinkLeaves;
        }
        if (element.empty() || element == "." || element == "..") {
            here = element == ".." ? ParentOf(here) : here;
            continue;
        }
        const std::string path = here.empty() ? element : here + "/" + element;
        const auto found = paths.find(path);
        if (found == paths.end() || (!rest.empty() && found->second->kind == Kind::File)) {
            return Defect::LinkDangling;
        }
        const Entry& next = *found->second;
        if (next.kind != Kind::Link) {
            here = path;
        } else if (++links > kMostLinks || next.target.empty() || next.target.size() > kLongestTarget) {
            return Defect::LinkLoop;
        } else if (next.target[0] == '/') {
            return Defect::LinkLeaves;
        } else {
            rest.insert(0, next.target + "/");
        }
    }
    return {};
}

// The client's two last entries say that it is complete: a start that is killed before sees it as unfinished.
void CheckRequired(const std::vector<Entry>& entries, Findings& findings) {
    const auto behind = [&entries](auto at) {
        return std::to_string(entries.end() - at - 1) + " entries come behind it";
    };
    const auto binary = FindEntry(entries, kClientFile);
    const auto info = FindEntry(entries, kInfoFile);
    if (info == entries.end() || info->kind != Kind::File) {
        findings.Add(Defect::InfoMissing, kInfoFile, info == entries.end() ? "" : "what stands there is no file");
    } else if (info + 1 != entries.end()) {
        findings.Add(Defect::InfoNotLast, kInfoFile, behind(info));
    } else if (info->size > static_cast<std::int64_t>(kLargestInfo)) {
        findings.Add(Defect::InfoTooLarge, kInfoFile, SizeText(info->size));
    }
    if (binary == entries.end()) {
        findings.Add(Defect::BinaryMissing, kClientFile);
        return;
    }
    const auto last = info != entries.end() && binary < info ? 2 : 1;
    if (entries.end() - binary > last) {
        findings.Add(Defect::BinaryNotSecondToLast, kClientFile, behind(binary));
    }
    if (binary->kind != Kind::File) {
        findings.Add(Defect::BinaryNoProgram, kClientFile, "what stands there is no file");
    } else if ((binary->mode & S_IXUSR) == 0) {
        findings.Add(Defect::BinaryNotExecutable, kClientFile);
    }
}

}  // namespace

std::optional<Defect> LeftoverKind(const std::string& path) {
    static const QRegularExpression leftover(
        QStringLiteral("/\\._[^/]|^/__MACOSX(/|$)|"
                       "(?<litter>/(\\.DS_Store|\\.Spotlight-V100|\\.Trashes|\\.fseventsd|\\.directory|Thumbs\\.db|"
                       "desktop\\.ini|\\.git|\\.gitignore|\\.gitattributes|\\.gitmodules|\\.svn|\\.hg|"
                       "[^/]+(~|\\.swp|\\.orig|\\.rej))$)"));
    const QRegularExpressionMatch match = leftover.match(QString::fromStdString("/" + path));
    const Defect kind =
        match.capturedLength(QStringLiteral("litter")) > 0 ? Defect::NameLitter : Defect::NameAppleDouble;
    return match.hasMatch() ? std::optional(kind) : std::nullopt;
}

std::size_t WantedContent(const std::string& path) {
    return path == kInfoFile                   ? kLargestInfo
           : path == kPropertyListFile         ? kLargestText
           : ParentOf(path) == kBinariesFolder ? kProgramFront
                                               : 0;
}

bool CheckCount(std::size_t count, Findings& findings) {
    if (count > kMostEntries) {
        findings.Add(Defect::TooLarge, "",
                     std::to_string(count) + " entries, the limit is " + std::to_string(kMostEntries));
    }
    return count <= kMostEntries;
}

void CheckTree(const std::vector<Entry>& entries, std::int64_t limit, Findings& findings) {
    std::int64_t bytes = 0;
    Paths paths;
    std::unordered_map<std::string, const Entry*> folded;
    for (const Entry& entry : entries) {
        CheckName(entry.path, findings);
        CheckKindAndMode(entry, findings);
        CheckParent(entry, paths, findings);
        bytes += entry.size;
        if (!paths.emplace(entry.path, &entry).second) {
            findings.Add(Defect::NameTwice, entry.path);
            continue;
        }
        // By the exact name of the folder: below two folders that fall together everything does, which is said once.
        const auto [other, isNew] =
            folded.emplace(ParentOf(entry.path) + "/" + FoldedName(LastName(entry.path.c_str())), &entry);
        if (!isNew && IsUtf8(entry.path)) {
            const bool isForm = Composed(entry.path) == Composed(other->second->path);
            findings.Add(isForm ? Defect::NameForm : Defect::NameCase, entry.path,
                         "the other is \"" + other->second->path + "\"");
        }
    }
    for (const Entry& entry : entries) {
        const bool isFollowed = entry.kind == Kind::Link && entry.path != kClientFile;
        if (const std::optional<Defect> wrong = isFollowed ? FollowLink(entry, paths) : std::nullopt) {
            findings.Add(*wrong, entry.path, "it leads to \"" + entry.target + "\"");
        }
    }
    if (bytes > limit) {
        findings.Add(Defect::TooLarge, "", SizeText(bytes) + ", the limit is " + SizeText(limit));
    }
    CheckCount(entries.size(), findings);
    if (entries.empty()) {
        findings.Add(Defect::NoEntries, "");
    } else {
        CheckRequired(entries, findings);
    }
}

Error CheckContents(Package& package, Findings& findings) {
    const Entry& binary = package.entries[package.entries.size() - 2];
    if (Error error = ReadVersions(package.entries.back().content, package.versions)) {
        return error;
    }
    const std::string build = package.versions.buildVersion.value_or("");
    package.client = Recognise(binary.content, binary.size);
    for (const Entry& entry : package.entries) {
        if (ParentOf(entry.path) == kBinariesFolder && (entry.mode & S_IXUSR) == 0 &&
            Recognise(entry.content, entry.size) != Program::None) {
            findings.Add(Defect::ProgramWithoutExecuteBit, entry.path);
        }
    }
    if (package.client <= Program::Broken) {
        findings.Add(Defect::BinaryNoProgram, kClientFile);
    }
    if (!IsBuildNumber(build)) {
        findings.Add(build.empty() ? Defect::InfoNoBuild : Defect::InfoBuildNoNumber, kInfoFile, "\"" + build + "\"");
    }
    for (const VersionKey& key : kVersionKeys) {
        if ((package.versions.*key.field).value_or("").empty() && key.field != &VersionInfo::buildVersion) {
            findings.Add(Defect::InfoIncomplete, kInfoFile, key.name);
        }
    }
    const auto list = FindEntry(package.entries, kPropertyListFile);
    const std::string program = list == package.entries.end() ? "" : ExecutableOf(list->content);
    if (list == package.entries.end() && package.client == Program::MachO) {
        findings.Add(Defect::PropertyListMissing, kPropertyListFile);
    } else if (list != package.entries.end() && program != LastName(kClientFile)) {
        findings.Add(Defect::PropertyListWrong, kPropertyListFile, "it names \"" + program + "\"");
    }
    return {};
}
