#include "rehearsal.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <QDir>
#include <QObject>
#include <cstdlib>

#include "extractor.h"
#include "file/file-op.h"
#include "interruption.h"
#include "log/logger.h"
#include "notify-adapter.h"
#include "output-file.h"
#include "progress.h"
#include "report.h"
#include "resources/str-table.h"
#include "tree-scan.h"

namespace {

constexpr std::size_t kLargestLog = 1 << 20;

std::string AppFolder(const Scratch& scratch) {
    return RehearsalHome(scratch) + "/.KelvaneQuay/KelvaneQuay.app";
}

// The message of the log's last line.
std::string LastMessage(const std::string& log) {
    std::string text;
    ReadWholeFile(log, kLargestLog, text);
    constexpr char tag[] = "[ERROR] ";
    const std::size_t at = text.rfind(tag);
    if (at == std::string::npos) {
        return {};
    }
    std::string message = text.substr(at + sizeof(tag) - 1);
    message.resize(message.find_last_not_of('\n') + 1);
    return message;
}

bool Extract(const std::string& package, Scratch& scratch, Findings& findings) {
    StrTable::InitStrTable();  // the extractor sends one of its texts
    const std::string log = scratch.path() + "/log";
    Logger::Initialize(Logger::TYPE_FILE, log, "", 1, Logger::SCOPE_THREAD);
    Progress progress("rehearsing");
    const auto report = [&progress, &scratch](int total, int current) {
        progress.Update(total, current);
        if (IsInterrupted()) {
            scratch.Remove();
            EndInterrupted();
        }
    };
    const QMetaObject::Connection connection =
        QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, report);
    Extractor extractor;
    extractor.sourcePath = package;
    extractor.destPath = AppFolder(scratch);
    const int result = extractor.Extract();
    QObject::disconnect(connection);
    Logger::Initialize(Logger::TYPE_STDERR, "", "", 1, Logger::SCOPE_NONE);
    if (result != 0) {
        findings.Add(Code::RehearsalFailed, package, LastMessage(log));
    }
    return result == 0;
}

// How the object on disk differs from the entry; empty if it does not.
std::string Difference(const Entry& entry, const std::string& path, const struct stat& info, mode_t mask) {
    if ((info.st_mode & S_IFMT) != entry.type) {
        return "it is of another type";
    }
    if (entry.type == S_IFLNK) {
        std::string target;
        ReadLink(path, target);
        return target == entry.link ? "" : "it leads to \"" + Printable(target) + "\"";
    }
    const unsigned expected = entry.mode & 0777U & ~static_cast<unsigned>(mask);
    if ((info.st_mode & 07777U) != expected) {
        return "its mode is " + Octal(info.st_mode & 07777U) + ", not " + Octal(expected);
    }
    if (entry.type == S_IFREG && entry.size >= 0 && info.st_size != entry.size) {
        return "it has " + std::to_string(info.st_size) + " bytes, not " + std::to_string(entry.size);
    }
    return {};
}

// Whether every entry is on disk as the archive has it.
void CompareEntries(const std::string& package, const std::string& folder, NodeTable& nodes, Findings& findings) {
    const mode_t mask = Umask();
    const std::string prefix = folder + "/";
    ArchiveReader reader;
    Entry entry;
    bool isOpen = reader.Open(package);
    while (isOpen && reader.Next(entry) == ArchiveReader::Header) {
        const std::string normal = NormalPath(entry.path);
        const Node* node = nodes.Find(PathHash::Of(normal));
        if (node == nullptr || node->isTwice) {
            continue;  // said already: only one of the two can be there
        }
        const std::string path = prefix + normal;
        struct stat info = {};
        if (lstat(path.c_str(), &info) != 0) {
            findings.Add(Code::RehearsalMissing, entry.path);
            continue;
        }
        const std::string difference = Difference(entry, path, info, mask);
        if (!difference.empty()) {
            findings.Add(Code::RehearsalDiffers, entry.path, difference);
        }
    }
}

// Whether everything on disk is an entry.
void CompareDisk(const std::string& folder, NodeTable& nodes, Findings& findings) {
    TreeScan scan(folder);
    const auto visit = [&nodes, &findings](const TreeEntry& found) {
        if (nodes.Find(PathHash::Of(found.path)) == nullptr) {
            findings.Add(Code::RehearsalUnexpected, found.path);
        }
        return TreeScan::Continue;
    };
    if (!scan.Walk(visit) && !findings.Has(Code::UnreadableMode)) {
        findings.Add(Code::RehearsalDiffers, folder, scan.error());
    }
}

}  // namespace

bool Scratch::Make() {
    std::string pattern = (QDir::tempPath() + QStringLiteral("/quay-package-XXXXXX")).toStdString();
    if (mkdtemp(pattern.data()) == nullptr) {
        return false;
    }
    path_ = pattern;
    return true;
}

void Scratch::Remove() {
    if (!path_.empty() && !keep_) {
        RemoveTree(path_);
    }
    path_.clear();
}

std::int64_t Scratch::FreeBytes() const {
    struct statvfs volume = {};
    if (statvfs(path_.c_str(), &volume) != 0) {
        return 0;
    }
    return static_cast<std::int64_t>(volume.f_bavail) * static_cast<std::int64_t>(volume.f_frsize);
}

std::string RehearsalHome(const Scratch& scratch) {
    return scratch.path() + "/home";
}

bool Rehearse(const std::string& package, Scratch& scratch, NodeTable& nodes, Findings& findings) {
    const std::string folder = AppFolder(scratch);
    FSMKDir(folder, true);
    const bool extracted = Extract(package, scratch, findings);
    if (extracted) {
        CompareEntries(package, folder, nodes, findings);
        CompareDisk(folder, nodes, findings);
    }
    return extracted;
}
