#include "checks.h"

#include <archive_entry.h>

#include <algorithm>
#include <set>

#include "files.h"
#include "posix/archive.h"
#include "progress.h"
#include "text.h"
#include "zip.h"

namespace {

constexpr std::size_t kReaderBlock = 10240;  // Extractor's

std::string Text(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

// Whether libarchive sees in a header what the directory says.
bool IsSame(const Entry& entry, archive_entry* header) {
    return Text(archive_entry_pathname(header)) == entry.path + (entry.kind == Kind::Folder ? "/" : "") &&
           archive_entry_filetype(header) == TypeOf(entry.kind) && archive_entry_perm(header) == entry.mode &&
           archive_entry_size(header) == entry.size && Text(archive_entry_symlink(header)) == entry.target &&
           archive_entry_hardlink(header) == nullptr;
}

// Reads the data of the entry at whose header the reader stands. Adds what is wrong with it.
Error ReadEntryData(const ArchiveReader& reader, const Entry& entry, const std::function<Error(std::string_view)>& take,
                    Findings& findings) {
    std::int64_t seen = 0;
    for (;;) {
        const void* block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int result = archive_read_data_block(reader.get(), &block, &size, &offset);
        if (result == ARCHIVE_EOF && seen == entry.size) {
            return {};
        }
        seen += static_cast<std::int64_t>(size);
        if (result != ARCHIVE_OK || seen > entry.size) {
            findings.Add(Defect::Damaged, entry.path,
                         result < ARCHIVE_OK ? Text(archive_error_string(reader.get())) : "its size is another");
            return {};
        }
        if (Error error = take({static_cast<const char*>(block), size})) {
            return error;
        }
    }
}

// Gives each entry's data to `take`, with its index, block by block, in the archive's order. What differs from the
// entries is added to `findings`; nothing is read behind it.
using TakeBlock = std::function<Error(std::size_t at, std::string_view block)>;
Error ReadData(const Package& package, const char* label, const TakeBlock& take, Findings& findings) {
    Progress progress(label, package.bytes + static_cast<std::int64_t>(package.entries.size()));
    const std::size_t before = findings.Total();
    const ArchiveReader reader(archive_read_new());
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    if (archive_read_open_filename(reader.get(), package.file.c_str(), kReaderBlock) != ARCHIVE_OK) {
        findings.Add(Defect::Damaged, "", Text(archive_error_string(reader.get())));
    }
    archive_entry* header = nullptr;
    for (std::size_t at = 0; at < package.entries.size() && findings.Total() == before; ++at) {
        const Entry& entry = package.entries[at];
        if (archive_read_next_header(reader.get(), &header) != ARCHIVE_OK || !IsSame(entry, header)) {
            findings.Add(Defect::OddForm, entry.path, "the launcher's reader sees something else in it");
            return {};
        }
        const auto advance = [&](std::string_view block) {
            Error error = take(at, block);
            return error ? error : progress.Advance(static_cast<std::int64_t>(block.size()));
        };
        Error error = ReadEntryData(reader, entry, advance, findings);
        if (error || (error = progress.Advance(1))) {
            return error;
        }
    }
    if (findings.Total() == before && archive_read_next_header(reader.get(), &header) != ARCHIVE_EOF) {
        findings.Add(Defect::OddForm, "", "the launcher's reader sees more entries in it");
    }
    return {};
}

// What is different about an object, but for its content; empty if nothing is.
std::string Difference(const Entry& entry, const Entry& there) {
    return there.kind != entry.kind       ? "it is of another kind"
           : there.target != entry.target ? "it leads to \"" + there.target + "\""
           : there.size != entry.size     ? std::to_string(there.size) + " bytes, not " + std::to_string(entry.size)
                                          : "";
}

// Compares what the entries' files hold, but for those of which all is said.
Error CompareData(const Package& package, const std::string& folder, const std::set<std::string>& settled,
                  Defect differs, Findings& findings) {
    QFile file;
    std::size_t open = package.entries.size();
    const auto take = [&](std::size_t at, std::string_view block) {
        const std::string& path = package.entries[at].path;
        if (open != at) {
            open = at;
            file.close();
            if (settled.count(path) == 0 && OpenFile(folder + "/" + path, false, file)) {
                findings.Add(differs, path, "it can't be read");
            }
        }
        if (file.isOpen() && file.read(static_cast<qint64>(block.size())).toStdString() != block) {
            file.close();
            findings.Add(differs, path, "its content");
        }
        return Error();
    };
    Findings damage;
    Error error = ReadData(package, "comparing", take, damage);
    return error || damage.IsEmpty() ? error : Error(package.file + ": changed while it was compared");
}

}  // namespace

Error CheckPackage(const std::string& file, std::int64_t limit, Package& package, Findings& findings) {
    package.file = file;
    QFile archive;
    const std::size_t before = findings.Total();
    Error error = OpenFile(file, true, archive);
    error = error ? error : ReadDirectory(archive, package.entries, findings);
    const auto goesOn = [&] { return !error && findings.Total() == before; };
    for (const Entry& entry : package.entries) {
        package.bytes += entry.size;
    }
    if (goesOn()) {
        CheckTree(package.entries, limit, findings);
    }
    if (goesOn()) {
        const auto take = [&package](std::size_t at, std::string_view block) {
            Entry& entry = package.entries[at];
            const std::size_t wanted = WantedContent(entry.path);
            entry.content += block.substr(0, wanted - std::min(wanted, entry.content.size()));
            return Error();
        };
        error = ReadData(package, "reading", take, findings);
    }
    return goesOn() ? CheckContents(package, findings) : error;
}

Error Compare(const Package& package, const std::string& folder, const Differences& differences, Findings& findings) {
    std::vector<Entry> tree;
    if (Error error = ScanTree(folder, {}, tree)) {
        return error;
    }
    std::map<std::string, const Entry*> added;
    std::set<std::string> settled;
    for (const Entry& there : tree) {
        added[there.path] = &there;
    }
    for (const Entry& entry : package.entries) {
        const auto found = added.find(entry.path);
        if (found == added.end()) {
            settled.insert(entry.path);
            findings.Add(differences.missing, entry.path);
            continue;
        }
        const Entry& there = *found->second;
        const std::string difference = Difference(entry, there);
        if (!difference.empty()) {
            settled.insert(entry.path);
            findings.Add(differences.differs, entry.path, difference);
        } else if (entry.kind != Kind::Link &&
                   ((there.mode & ~entry.mode) != 0 || ((there.mode ^ entry.mode) & 0700) != 0)) {
            findings.Add(differences.mode, entry.path, Octal(there.mode) + ", not " + Octal(entry.mode));
        }
        added.erase(found);
    }
    for (const auto& [path, there] : added) {
        findings.Add(differences.added, path);
    }
    return CompareData(package, folder, settled, differences.differs, findings);
}
