#include "rules.h"

#include <QRegularExpression>
#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "content.h"
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
        const Defect& defect;
    } rules[] = {
        {!isUtf8, defects::NameNotUtf8},
        {isUtf8 && Composed(path) != path, defects::NameNotComposed},
        {isAbsolute, defects::NameAbsolute},
        {has("/../", 0), defects::NameDotDot},
        {has("/./", 0) || has("//", isAbsolute ? 2 : 0), defects::NameOddElement},
        {path.size() > kLongestPath || longest > kLongestName, defects::NameTooLong},
        {HasControl(path), defects::NameControl},
        {has("\\", 0), defects::NameBackslash},
        {!isAbsolute && framed.find("/"s + kContentsFolder + "/") != 0 && !has("/./", 0) && !has("/__MACOSX/", 0),
         defects::NameOutsideContents},
    };
    for (const auto& rule : rules) {
        if (rule.isBroken) {
            findings.Add(rule.defect, path);
        }
    }
    if (const Defect* leftover = LeftoverKind(path)) {
        findings.Add(*leftover, path);
    }
}

void CheckKindAndMode(const Entry& entry, Findings& findings) {
    const bool isLink = entry.kind == Kind::Link;
    const bool isFolder = entry.kind == Kind::Folder;
    const unsigned needed = isFolder ? S_IRWXU : S_IRUSR;
    if (entry.kind == Kind::Other) {
        findings.Add(defects::SpecialFile, entry.path);
    } else if (isLink ? entry.mode != 0777 : entry.mode != 0755 && (entry.mode != 0644 || isFolder)) {
        findings.Add((entry.mode & 07000) != 0                ? defects::SetIdBit
                     : (entry.mode & needed) != needed        ? defects::UnreadableMode
                     : (entry.mode & S_IWOTH) != 0 && !isLink ? defects::WorldWritable
                                                              : defects::OddMode,
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
        findings.Add(defects::FolderMissing, entry.path);
    } else if (found->second->kind != Kind::Folder) {
        findings.Add(found->second->kind == Kind::Link ? defects::BehindLink : defects::ParentIsNoFolder, entry.path);
    }
}

// Follows a link one element at a time, links on the way included. Null, or what is wrong with it.
const Defect* FollowLink(const Entry& link, const Paths& paths) {
    if (link.target.empty() || link.target.size() > kLongestTarget || !IsUtf8(link.target) ||
        Composed(link.target) != link.target || HasControl(link.target)) {
        return &defects::LinkTargetOdd;
    }
    if (link.target[0] == '/') {
        return &defects::LinkAbsolute;
    }
    std::string here = ParentOf(link.path);
    std::string rest = link.target;
    for (int links = 1; !rest.empty();) {
        const std::size_t slash = rest.find('/');
        const std::string element = rest.substr(0, slash);
        const bool isLast = slash == std::string::npos;
        rest = isLast ? "" : rest.substr(slash + 1);
        if (element.empty() || element == ".") {
            continue;
        }
        if (element == "..") {
            if (here.empty()) {
                return &defects::LinkLeaves;
            }
            here = ParentOf(here);
            continue;
        }
        std::string path = here;
        path.append(here.empty() ? "" : "/").append(element);
        const auto found = paths.find(path);
        if (found == paths.end() || (!isLast && found->second->kind == Kind::File)) {
            return &defects::LinkDangling;
        }
        const Entry& next = *found->second;
        if (next.kind == Kind::Link) {
            if (++links > kMostLinks || next.target.empty() || next.target.size() > kLongestTarget) {
                return &defects::LinkLoop;
            }
            if (next.target[0] == '/') {
                return &defects::LinkLeaves;
            }
            rest.insert(0, isLast ? "" : "/").insert(0, next.target);
        } else {
            here = path;
        }
    }
    return nullptr;
}

// The client's two last entries say that it is complete: a start that is killed before sees it as unfinished.
void CheckRequired(const std::vector<Entry>& entries, Findings& findings) {
    const auto find = [&entries](const char* path) {
        return std::find_if(entries.begin(), entries.end(), [path](const Entry& entry) { return entry.path == path; });
    };
    const auto behind = [&entries](auto at) {
        return std::to_string(entries.end() - at - 1) + " entries come behind it";
    };
    const auto binary = find(kClientFile);
    const auto info = find(kInfoFile);
    if (info == entries.end() || info->kind != Kind::File) {
        findings.Add(defects::InfoMissing, kInfoFile, info == entries.end() ? "" : "what stands there is no file");
    } else if (info + 1 != entries.end()) {
        findings.Add(defects::InfoNotLast, kInfoFile, behind(info));
    } else if (info->size > static_cast<std::int64_t>(kLargestInfo)) {
        findings.Add(defects::InfoTooLarge, kInfoFile, SizeText(info->size));
    }
    if (binary == entries.end()) {
        findings.Add(defects::BinaryMissing, kClientFile);
        return;
    }
    const auto last = info != entries.end() && binary < info ? 2 : 1;
    if (entries.end() - binary > last) {
        findings.Add(defects::BinaryNotSecondToLast, kClientFile, behind(binary));
    }
    if (binary->kind != Kind::File) {
        findings.Add(defects::BinaryNoProgram, kClientFile, "what stands there is no file");
    } else if ((binary->mode & S_IXUSR) == 0) {
        findings.Add(defects::BinaryNotExecutable, kClientFile);
    }
}

}  // namespace

const Defect* LeftoverKind(const std::string& path) {
    static const QRegularExpression appleDouble(QStringLiteral("(^|/)\\._[^/]|^__MACOSX(/|$)"));
    static const QRegularExpression litter(
        QStringLiteral("/(\\.DS_Store|\\.Spotlight-V100|\\.Trashes|\\.fseventsd|\\.directory|Thumbs\\.db|desktop\\.ini|"
                       "\\.git|\\.gitignore|"
                       "\\.gitattributes|\\.gitmodules|\\.svn|\\.hg|[^/]+(~|\\.swp|\\.orig|\\.rej))$"));
    const QString text = QString::fromStdString(path);
    return appleDouble.match(text).hasMatch()                 ? &defects::NameAppleDouble
           : litter.match(QLatin1Char('/') + text).hasMatch() ? &defects::NameLitter
                                                              : nullptr;
}

std::size_t WantedContent(const std::string& path) {
    return path == kInfoFile                   ? kLargestInfo
           : path == kPropertyListFile         ? kLargestText
           : ParentOf(path) == kBinariesFolder ? kProgramFront
                                               : 0;
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
            findings.Add(defects::NameTwice, entry.path);
            continue;
        }
        // By the exact name of the folder: below two folders that fall together everything does, which is said once.
        const auto [other, isNew] = folded.emplace(ParentOf(entry.path) + "/" + FoldedName(NameOf(entry.path)), &entry);
        if (!isNew && IsUtf8(entry.path)) {
            const bool isForm = Composed(entry.path) == Composed(other->second->path);
            findings.Add(isForm ? defects::NameForm : defects::NameCase, entry.path,
                         "the other is \"" + other->second->path + "\"");
        }
    }
    for (const Entry& entry : entries) {
        const Defect* wrong =
            entry.kind == Kind::Link && entry.path != kClientFile ? FollowLink(entry, paths) : nullptr;
        if (wrong != nullptr) {
            findings.Add(*wrong, entry.path, "it leads to \"" + entry.target + "\"");
        }
    }
    if (bytes > limit || entries.size() > kMostEntries) {
        findings.Add(
            defects::TooLarge, "",
            SizeText(bytes) + " in " + std::to_string(entries.size()) + " entries, the limit is " + SizeText(limit));
    }
    if (entries.empty()) {
        findings.Add(defects::NoEntries, "");
    } else {
        CheckRequired(entries, findings);
    }
}

Error CheckContents(const std::vector<Entry>& entries, Findings& findings, VersionInfo& versions, Program& client) {
    const std::string* list = nullptr;
    client = Program::None;
    for (const Entry& entry : entries) {
        if (entry.path == kClientFile) {
            client = Recognise(entry.content, entry.size);
        } else if (ParentOf(entry.path) == kBinariesFolder && (entry.mode & S_IXUSR) == 0 &&
                   BeginsAsProgram(entry.content)) {
            findings.Add(defects::ProgramWithoutExecuteBit, entry.path);
        } else if (entry.path == kPropertyListFile) {
            list = &entry.content;
        } else if (entry.path == kInfoFile) {
            if (Error error = ReadVersions(entry.content, versions)) {
                return error;
            }
        }
    }
    const std::string build = versions.buildVersion.value_or("");
    if (client == Program::None) {
        findings.Add(defects::BinaryNoProgram, kClientFile);
    }
    if (!IsBuildNumber(build)) {
        findings.Add(build.empty() ? defects::InfoNoBuild : defects::InfoBuildNoNumber, kInfoFile, "\"" + build + "\"");
    }
    for (const VersionKey& key : kVersionKeys) {
        if ((versions.*key.field).value_or("").empty() && key.field != &VersionInfo::buildVersion) {
            findings.Add(defects::InfoIncomplete, kInfoFile, key.name);
        }
    }
    std::string program;
    if (list == nullptr && client == Program::MachO) {
        findings.Add(defects::PropertyListMissing, kPropertyListFile);
    } else if (list != nullptr &&
               (!PropertyListValue(*list, "CFBundleExecutable", program) || program != LastName(kClientFile))) {
        findings.Add(defects::PropertyListWrong, kPropertyListFile, "it names \"" + program + "\"");
    }
    return {};
}
