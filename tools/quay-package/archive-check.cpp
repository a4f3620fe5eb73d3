#include "archive-check.h"

#include <sys/stat.h>

#include <algorithm>
#include <map>
#include <utility>

#include "content-check.h"
#include "text/string-helper.h"

using kelvanequay::utils::StringHelper;

namespace {

constexpr char kPropertyList[] = "Contents/Info.plist";

// How much of a text is looked at, and how much of a program.
constexpr std::size_t kLargestText = 1 << 20;
constexpr std::size_t kMagicSize = 4;

constexpr std::size_t kMostCollisions = 1000;

NodeKind KindOf(const Entry& entry) {
    if (entry.isHardLink) {
        return NodeKind::Other;
    }
    return entry.type == S_IFDIR ? NodeKind::Folder : entry.type == S_IFLNK ? NodeKind::Link : NodeKind::Other;
}

bool IsFolderOrAbsent(const Node& node) {
    return node.kind == NodeKind::Absent || node.kind == NodeKind::Folder;
}

}  // namespace

std::string NormalPath(const std::string& path) {
    std::string normal;
    for (const std::string& element : Elements(path)) {
        if (!element.empty() && element != ".") {
            normal += normal.empty() ? element : "/" + element;
        }
    }
    return normal;
}

ArchiveCheck::ArchiveCheck(std::string package, Findings& findings, std::function<void()> advance, bool readData)
    : package_(std::move(package)), findings_(findings), advance_(std::move(advance)), readData_(readData) {
}

bool ArchiveCheck::IsSafeToUnpack() const {
    for (const Code code : {Code::NameDotDot, Code::HardLink, Code::SpecialFile, Code::LinkAbsolute, Code::LinkLeaves,
                            Code::LinkTargetOdd}) {
        if (findings_.Has(code)) {
            return false;
        }
    }
    return true;
}

bool ArchiveCheck::Run() {
    if (!reader_.Open(package_)) {
        findings_.Add(Code::NotAnArchive, package_, reader_.error());
        return false;
    }
    const bool isComplete = ReadEntries();
    reader_.Close();
    CheckLinks();
    CheckCollisions();
    if (isComplete && entries_ == 0) {
        findings_.Add(Code::NoEntries, package_);
    } else if (isComplete) {
        CheckRequired();
    }
    return isComplete;
}

bool ArchiveCheck::ReadEntries() {
    Entry entry;
    for (;;) {
        const ArchiveReader::Result result = reader_.Next(entry);
        if (result == ArchiveReader::Header && entries_ == 0) {
            format_ = reader_.FormatText();
            if (!reader_.IsPackageFormat()) {
                findings_.Add(Code::UnusualFormat, package_, format_);
            }
        }
        if (result == ArchiveReader::End) {
            return true;
        }
        if (result == ArchiveReader::Damaged) {
            findings_.Add(entries_ == 0 ? Code::NotAnArchive : Code::Damaged, package_,
                          reader_.error() + ", behind " + std::to_string(entries_) + " entries");
            return false;
        }
        if (!AddEntry(entry)) {
            return false;
        }
        ++entries_;
        advance_();
    }
}

bool ArchiveCheck::AddEntry(const Entry& entry) {
    CheckName(entry.path, findings_);
    AddTypeAndMode(entry);
    const std::string path = NormalPath(entry.path);
    if (!path.empty()) {
        AddPath(entry, path);
    }
    if (entry.isEncrypted) {
        // Nothing can be read of it; that it is so is the finding.
        findings_.Add(Code::Encrypted, entry.path);
        return true;
    }
    return ReadContent(entry);
}

void ArchiveCheck::AddTypeAndMode(const Entry& entry) {
    if (entry.isHardLink) {
        findings_.Add(Code::HardLink, entry.path, "to \"" + Printable(entry.link) + "\"");
        return;
    }
    if (entry.type == S_IFLNK) {
        return;
    }
    if (entry.type != S_IFREG && entry.type != S_IFDIR) {
        findings_.Add(Code::SpecialFile, entry.path);
        return;
    }
    if (entry.type == S_IFREG && entry.size > 0) {
        bytes_ += entry.size;
    }
    if ((entry.mode & (S_ISUID | S_ISGID | S_ISVTX)) != 0) {
        findings_.Add(Code::SetIdBit, entry.path);
    }
    if ((entry.mode & S_IWOTH) != 0) {
        findings_.Add(Code::WorldWritable, entry.path);
    }
    const unsigned needed = entry.type == S_IFDIR ? S_IRWXU : S_IRUSR;
    if ((entry.mode & needed) != needed) {
        findings_.Add(Code::UnreadableMode, entry.path);
    }
}

// Enters a path with its parents, and finds out what stands in its way.
void ArchiveCheck::AddPath(const Entry& entry, const std::string& path) {
    PathHash exact;
    PathHash folded;
    bool isBehindLink = false;
    bool isBelowFile = false;
    bool isFolding = StringHelper::IsValid(path);
    const std::vector<std::string> elements = Elements(path);
    std::size_t length = 0;
    for (std::size_t at = 0; at < elements.size(); ++at) {
        if (at > 0) {
            exact.Add('/');
            folded.Add('/');
            ++length;
        }
        exact.Add(elements[at]);
        length += elements[at].size();
        if (isFolding) {
            folded.Add(FoldedName(elements[at]));
            // Below two names that fall together everything does: said once.
            isFolding = AddFolded(path.substr(0, length), folded.value(), exact.value());
        }
        if (at + 1 < elements.size()) {
            AddParent(entry, exact.value(), isBehindLink, isBelowFile);
        }
    }
    AddNode(entry, path, exact.value());
}

void ArchiveCheck::AddParent(const Entry& entry, std::uint64_t parent, bool& isBehindLink, bool& isBelowFile) {
    Node& node = nodes_[parent];
    if (node.kind == NodeKind::Absent) {
        node.kind = NodeKind::Folder;
        node.isImplied = true;
    } else if (node.kind == NodeKind::Link && !isBehindLink) {
        isBehindLink = true;
        findings_.Add(Code::BehindLink, entry.path);
    } else if (node.kind == NodeKind::Other && !isBelowFile) {
        isBelowFile = true;
        findings_.Add(Code::ParentIsNoFolder, entry.path);
    }
}

void ArchiveCheck::AddNode(const Entry& entry, const std::string& path, std::uint64_t hash) {
    Node& node = nodes_[hash];
    const NodeKind kind = KindOf(entry);
    if (node.kind != NodeKind::Absent && !node.isImplied) {
        node.isTwice = true;
        findings_.Add(Code::NameTwice, entry.path);
    } else if (!IsFolderOrAbsent(node) || (node.isImplied && kind != NodeKind::Folder)) {
        findings_.Add(Code::ParentIsNoFolder, entry.path, "other entries take it for a folder");
    }
    node.kind = kind;
    node.isImplied = false;
    if (kind == NodeKind::Link) {
        node.link = static_cast<std::uint32_t>(links_.size());
        links_.push_back({path, entry.link});
    }
}

// Notes the path if another one folds to the same. False if so.
bool ArchiveCheck::AddFolded(const std::string& path, std::uint64_t folded, std::uint64_t exact) {
    std::uint64_t& first = folded_[folded];
    if (first == 0) {
        first = exact;
    }
    if (first == exact) {
        return true;
    }
    if (collisions_.size() < kMostCollisions && collided_.insert(exact).second) {
        collisions_.push_back({path, first});
    }
    return false;
}

// Reads what is looked at of the entry's content. False: it is damaged.
bool ArchiveCheck::ReadContent(const Entry& entry) {
    Special* special = entry.path == kInfoEntry      ? &info_
                       : entry.path == kBinaryEntry  ? &binary_
                       : entry.path == kPropertyList ? &propertyList_
                                                     : nullptr;
    const bool isProgram = special == nullptr && entry.type == S_IFREG && IsProgramPlace(entry.path);
    if (special != nullptr) {
        special->isThere = true;
        special->at = entries_;
        special->beginning.clear();
    }
    if (special == &info_) {
        isInfoFile_ = entry.type == S_IFREG;
    } else if (special == &binary_) {
        isBinaryFile_ = entry.type == S_IFREG && entry.size != 0;
        isBinaryExecutable_ = (entry.mode & S_IXUSR) != 0;
    }
    if (special == nullptr && !isProgram && !readData_) {
        return true;
    }
    const std::size_t wanted = special == nullptr || special == &binary_ ? kMagicSize : kLargestText;
    std::string beginning;
    const bool isGood = reader_.ReadData([&](const char* bytes, std::size_t size) {
        if (beginning.size() < wanted) {
            beginning.append(bytes, std::min(size, wanted - beginning.size()));
        }
        return readData_ || beginning.size() < wanted;
    });
    if (!isGood) {
        findings_.Add(Code::Damaged, entry.path, reader_.error());
        return false;
    }
    if (isProgram && (entry.mode & S_IXUSR) == 0 && LooksLikeProgram(beginning)) {
        findings_.Add(Code::ProgramWithoutExecuteBit, entry.path);
    }
    if (special != nullptr) {
        special->beginning = beginning;
    }
    return true;
}

void ArchiveCheck::CheckLinks() {
    const auto lookup = [this](const std::string& path, std::string& target) {
        const Node* node = nodes_.Find(PathHash::Of(path));
        if (node == nullptr) {
            return NodeKind::Absent;
        }
        if (node->kind == NodeKind::Link) {
            target = links_[node->link].target;
        }
        return node->kind;
    };
    for (const Link& link : links_) {
        if (link.path != kBinaryEntry) {
            CheckLink(link.path, link.target, lookup, findings_);
        }
    }
}

// Reads the package once more for the names that came first.
void ArchiveCheck::CheckCollisions() {
    if (collisions_.empty()) {
        return;
    }
    std::map<std::uint64_t, std::string> first;
    for (const Collision& collision : collisions_) {
        first[collision.other];
    }
    ArchiveReader reader;
    Entry entry;
    std::size_t missing = first.size();
    bool isOpen = reader.Open(package_);
    while (isOpen && missing > 0 && reader.Next(entry) == ArchiveReader::Header) {
        PathHash hash;
        std::string path;
        for (const std::string& element : Elements(NormalPath(entry.path))) {
            const std::string part = path.empty() ? element : "/" + element;
            hash.Add(part);
            path += part;
            const auto found = first.find(hash.value());
            if (found != first.end() && found->second.empty()) {
                found->second = path;
                --missing;
            }
        }
    }
    for (const Collision& collision : collisions_) {
        const std::string& other = first[collision.other];
        // Two different names can have one hash, if hardly ever.
        if (FoldedName(other) == FoldedName(collision.path)) {
            findings_.Add(DifferInFormOnly(other, collision.path) ? Code::NameForm : Code::NameCase, collision.path,
                          "the other is \"" + Printable(other) + "\"");
        }
    }
}

void ArchiveCheck::CheckRequired() {
    if (!binary_.isThere) {
        findings_.Add(Code::BinaryMissing, kBinaryEntry);
    } else if (!isBinaryFile_) {
        findings_.Add(Code::BinaryNoProgram, kBinaryEntry);
    } else if (!isBinaryExecutable_) {
        findings_.Add(Code::BinaryNotExecutable, kBinaryEntry);
    }
    if (!info_.isThere || !isInfoFile_) {
        info_.isThere = false;
        findings_.Add(Code::InfoMissing, kInfoEntry);
    } else if (info_.at + 1 != entries_) {
        findings_.Add(Code::InfoNotLast, kInfoEntry,
                      std::to_string(entries_ - info_.at - 1) + " entries come behind it");
    }
    // What counts is that nothing but INFO comes behind it.
    const std::int64_t behind = info_.isThere && info_.at > binary_.at ? info_.at : binary_.at;
    if (binary_.isThere && (behind != entries_ - 1 || behind > binary_.at + 1)) {
        findings_.Add(Code::BinaryNotSecondToLast, kBinaryEntry,
                      std::to_string(entries_ - binary_.at - 1) + " entries come behind it");
    }
    CheckClientPropertyList(propertyList_.isThere, propertyList_.beginning, binary_.beginning, findings_);
}
