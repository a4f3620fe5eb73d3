#include <unistd.h>

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "commands.h"
#include "files.h"
#include "product-layout.h"
#include "progress.h"
#include "rules.h"
#include "text.h"
#include "zip.h"

namespace {

// The times that a zip archive can tell: from 1980-01-01, the default, to the end of 2107.
constexpr std::time_t kFirstTime = 315532800;
constexpr std::time_t kLastTime = 4354819198;

// One packing, from the folder to the output's place.
class Packing {
public:
    Packing(const CommandLine& line, Report& report)
        : line_(line), report_(report), folder_(line.Operand()), output_(line.Path("output")) {}

    Error Run();

private:
    Error TakeOptions();
    Error Inspect();
    void Take(Entry entry);
    Error Stamp();
    Error Write(QFile& file);
    std::uint64_t MarkOf(const Entry& entry) const;
    Error FindChange();
    Error ReadBack(const std::string& file);
    std::size_t Wanted(const std::string& path) const {
        return !keepAll_ && LeftoverKind(path) != nullptr ? kSkip : WantedContent(path);
    }

    const CommandLine& line_;
    Report& report_;
    const std::string folder_;
    const std::string output_;
    Findings accepting_;  // none, but told what to accept
    bool keepAll_ = false;
    std::int64_t limit_ = 0;
    std::int64_t bytes_ = 0;
    std::time_t time_ = kFirstTime;
    std::vector<std::uint64_t> marks_;  // of the folder's objects as they were looked at
    std::vector<Entry> entries_;        // the package
    VersionInfo versions_;
    std::string present_;  // the folder's INFO
};

Error Packing::TakeOptions() {
    const QString folder = QFileInfo(QString::fromStdString(folder_)).canonicalFilePath();
    const QFileInfo output(QString::fromStdString(output_));
    if (!QFileInfo(folder).isDir()) {
        return Error(folder_ + ": is no folder");
    }
    if ((QFileInfo(output.path()).canonicalFilePath() + QLatin1Char('/')).startsWith(folder + QLatin1Char('/'))) {
        return Error(output_ + ": lies in the folder that is to be packed");
    }
    if (Exists(output_) && (output.isSymLink() || !output.isFile())) {
        return Error(output_ + ": stands there already, and is no file that could be replaced");
    }
    if (!IsBuildNumber(line_.Value("build"))) {
        return Error("--build: a number from 1 to 2147483647 is wanted");
    }
    const char* epoch = std::getenv("SOURCE_DATE_EPOCH");
    if (epoch != nullptr && *epoch != '\0') {
        char* end = nullptr;
        time_ = std::max<std::time_t>(std::strtoll(epoch, &end, 10), kFirstTime);
        if (*end != '\0' || *epoch == '-' || time_ > kLastTime) {
            return Error("SOURCE_DATE_EPOCH: seconds since 1970 are wanted, up to the year 2107");
        }
    }
    Error error = line_.Take(report_.findings, limit_);
    keepAll_ = line_.IsSet("keep-all");
    if (keepAll_ && !error) {  // on purpose
        error = report_.findings.Accept(IdOf(defects::NameLitter));
        error = error ? error : report_.findings.Accept(IdOf(defects::NameAppleDouble));
    }
    accepting_ = report_.findings;
    return error;
}

// Takes an object of the folder over into the package, mended.
void Packing::Take(Entry entry) {
    const Defect* leftover = LeftoverKind(entry.path);
    const bool isFile = entry.kind == Kind::File;
    if (leftover != nullptr && !keepAll_) {
        report_.mended.Add(*leftover, entry.path, "left out");
        return;
    }
    if (isFile && entry.names > 1) {
        report_.mended.Add(defects::HardLink, entry.path, "stored as a file of its own");
    }
    if (isFile && (entry.mode & 07000) != 0) {
        report_.mended.Add(defects::SetIdBit, entry.path, "stored without it");
    }
    const bool isExecutable = entry.kind == Kind::Folder || (entry.mode & S_IXUSR) != 0;
    entry.mode = entry.kind == Kind::Link ? 0777 : isExecutable ? 0755 : 0644;
    if (entry.path != kInfoFile) {
        entries_.push_back(std::move(entry));
    } else if (!isFile) {
        report_.findings.Add(defects::InfoMissing, kInfoFile, "what stands there is no file");
    } else if (entry.size > static_cast<std::int64_t>(kLargestInfo)) {
        report_.findings.Add(defects::InfoTooLarge, kInfoFile, SizeText(entry.size));
    } else {
        present_ = entry.content;
    }
}

// A line's key, or a group's header, as the launcher's reader takes it.
std::string KeyOf(const std::string& line) {
    return QString::fromStdString(line.substr(0, line.find('='))).trimmed().toStdString();
}

// The bytes of an INFO file: the four values in their group, and what `present` holds besides them.
std::string StampedInfo(const VersionInfo& versions, const std::string& present) {
    const std::string group = std::string("[") + kVersionGroup + "]";
    std::string front;  // what is in no group stays so
    std::string stamp = group + "\n";
    std::string others;
    for (const VersionKey& key : kVersionKeys) {
        stamp += std::string(key.name) + "=" + (versions.*key.field).value_or("") + "\n";
    }
    std::string* part = &front;
    std::istringstream lines(present.compare(0, 3, "\xef\xbb\xbf") == 0 ? present.substr(3) : present);
    for (std::string line; std::getline(lines, line);) {
        line.erase(line.find_last_not_of('\r') + 1);
        const std::string key = KeyOf(line);
        const bool isHeader = key.compare(0, 1, "[") == 0;
        part = isHeader ? (key == group ? &stamp : &others) : part;
        const bool isStamped = std::any_of(std::begin(kVersionKeys), std::end(kVersionKeys),
                                           [&key](const VersionKey& known) { return key == known.name; });
        if (part != &stamp || (!isHeader && !isStamped && !key.empty())) {
            *part += line + "\n";
        }
    }
    return front + stamp + others;
}

// INFO goes behind everything, and the binary in front of it.
Error Packing::Stamp() {
    Error error = ReadVersions(present_, versions_);
    for (const VersionKey& key : kVersionKeys) {
        // What the key's option says, else what INFO has already, else "0".
        const QString option = QString::fromLatin1(key.name)
                                   .remove(QStringLiteral("_version"))
                                   .replace(QLatin1Char('_'), QLatin1Char('-'));
        std::optional<std::string>& value = versions_.*key.field;
        value = line_.Value(option.toLatin1(), value.value_or("").empty() ? "0" : *value);
        if (QRegularExpression(QStringLiteral("^[0-9A-Za-z.+_-]+$"))
                .match(QString::fromStdString(*value))
                .captured()
                .size() != static_cast<int>(value->size())) {
            return Error("--" + option.toStdString() + ": letters, digits and \".-_+\" are wanted");
        }
    }
    Entry info{kInfoFile, Kind::File, 0644};
    info.content = StampedInfo(versions_, present_);
    info.size = static_cast<std::int64_t>(info.content.size());
    VersionInfo read;
    error = error ? error : ReadVersions(info.content, read);
    for (const VersionKey& key : kVersionKeys) {
        if (!error && read.*key.field != versions_.*key.field) {
            report_.findings.Add(defects::StampHidden, kInfoFile,
                                 std::string(key.name) + " is read as \"" + (read.*key.field).value_or("") + "\"");
        }
    }
    const auto is = [](const char* path) { return [path](const Entry& entry) { return entry.path == path; }; };
    if (std::none_of(entries_.begin(), entries_.end(), is(kResourcesFolder))) {
        entries_.push_back({kResourcesFolder, Kind::Folder, 0755});
    }
    const auto binary = std::find_if(entries_.begin(), entries_.end(), is(kClientFile));
    if (binary != entries_.end()) {
        std::rotate(binary, binary + 1, entries_.end());
    }
    entries_.push_back(std::move(info));
    return error;
}

// Changes with whatever changes in the object.
std::uint64_t Packing::MarkOf(const Entry& entry) const {
    const QFileInfo info(QString::fromStdString(folder_ + "/" + entry.path));
    const std::int64_t time = entry.kind == Kind::Link ? 0 : info.metadataChangeTime().toMSecsSinceEpoch();
    const std::string text = entry.path + '\0' + entry.target + '\0' + std::to_string(entry.inode) + " " +
                             std::to_string(entry.size) + " " + std::to_string(time);
    return std::hash<std::string>()(text);
}

Error Packing::Inspect() {
    std::vector<Entry> tree;
    Error error = ScanTree(
        folder_, [this](const std::string& path) { return Wanted(path); }, tree);
    for (Entry& entry : tree) {
        marks_.push_back(MarkOf(entry));
        Take(std::move(entry));
    }
    error = error ? error : Stamp();
    if (error) {
        return error;
    }
    for (const Entry& entry : entries_) {
        bytes_ += entry.size;
    }
    Program client = Program::None;
    VersionInfo versions;
    CheckTree(entries_, limit_, report_.findings);
    return report_.findings.IsEmpty() ? CheckContents(entries_, report_.findings, versions, client) : Error();
}

Error Packing::Write(QFile& file) {
    Progress progress("packing", bytes_ + static_cast<std::int64_t>(entries_.size()));
    ZipWriter writer(file, time_);
    Error error;
    for (Entry& entry : entries_) {
        const auto source = [&](const auto& take) {
            QFile content;
            Error failure =
                entry.path == kInfoFile ? take(entry.content) : OpenFile(folder_ + "/" + entry.path, false, content);
            return failure || !content.isOpen() ? failure : ReadBlocks(content, [&](std::string_view block) {
                Error next = take(block);
                return next ? next : progress.Advance(static_cast<std::int64_t>(block.size()));
            });
        };
        error = error ? error : writer.Add(entry, source);
        error = error ? error : progress.Advance(1);
    }
    return error ? error : writer.Finish();
}

// A change of anything in the folder since it was looked at.
Error Packing::FindChange() {
    std::vector<Entry> now;
    Error error = ScanTree(
        folder_, [this](const std::string& path) { return Wanted(path) == kSkip ? kSkip : 0; }, now);
    const auto isSame = [this](const Entry& entry, std::uint64_t mark) { return MarkOf(entry) == mark; };
    const auto [changed, mark] = std::mismatch(now.begin(), now.end(), marks_.begin(), marks_.end(), isSame);
    return error || (changed == now.end() && mark == marks_.end())
               ? error
               : Error((changed == now.end() ? folder_ : changed->path) + ": changed while it was packed");
}

// Reads the written package back as `check` does, and finds in it what was packed.
Error Packing::ReadBack(const std::string& file) {
    Package package;
    if (Error error = CheckPackage(file, limit_, package, accepting_)) {
        return error;
    }
    for (const auto& [code, group] : accepting_.found()) {
        return Error("it reads back with " + IdOf(*group.defect) + ", " + group.defect->what + ": " +
                     group.kept[0].entry);
    }
    const auto isSame = [](const Entry& left, const Entry& right) {
        return left.path == right.path && left.kind == right.kind && left.mode == right.mode &&
               left.target == right.target && left.size == right.size && left.form.sum == right.form.sum;
    };
    return std::equal(package.entries.begin(), package.entries.end(), entries_.begin(), entries_.end(), isSame)
               ? Error()
               : Error("it reads back as something else");
}

Error Packing::Run() {
    Error error = TakeOptions();
    error = error ? error : Inspect();
    report_.Set("output", output_);
    report_.Set("versions", ToJson(versions_));
    report_.Set("mended", ToJson(report_.mended.found()));
    report_.Sum(std::to_string(report_.findings.Total()) + " defects: nothing was packed");
    if (error || !report_.findings.IsEmpty()) {
        return error;
    }
    QTemporaryFile file(HiddenTemplate(output_));
    const auto fail = [this](const std::string& what) { return Error(output_ + ": " + what); };
    if (!file.open()) {
        return fail(file.errorString().toStdString());
    }
    const mode_t mask = umask(0);
    umask(mask);
    QFile out;  // whose failures tell at once, and why
    error = out.open(file.handle(), QIODevice::ReadWrite | QIODevice::Unbuffered) ? Write(out) : fail("");
    error = error ? error : FindChange();
    error = error ? error : ReadBack(file.fileName().toStdString());
    if (error) {
        return fail(error.text());
    }
    const qint64 packed = file.size();
    if (fchmod(file.handle(), static_cast<mode_t>(0666 & ~mask)) != 0 || fsync(file.handle()) != 0 ||
        std::rename(file.fileName().toStdString().c_str(), output_.c_str()) != 0) {
        return Error::System(output_);
    }
    file.setAutoRemove(false);
    report_.Set("entries", static_cast<std::int64_t>(entries_.size()));
    report_.Set("bytes", bytes_);
    report_.Set("packed_bytes", std::int64_t{packed});
    report_.Sum(Printable(output_) + ": " + Shown(versions_) + ", " + std::to_string(entries_.size()) + " entries, " +
                SizeText(bytes_) + " in " + SizeText(packed));
    return {};
}

}  // namespace

Error RunPack(const CommandLine& line, Report& report) {
    return Packing(line, report).Run();
}
