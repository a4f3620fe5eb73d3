#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>
#include <cstdio>
#include <sstream>

#include "commands.h"
#include "files.h"
#include "product-layout.h"
#include "progress.h"
#include "text.h"
#include "zip.h"

namespace {

// The times that a zip archive can tell: from 1980-01-01, the default, to the end of 2107.
constexpr std::time_t kFirstTime = 315532800;
constexpr std::time_t kLastTime = 4354819198;

using Marks = std::vector<std::size_t>;

// A number that changes with whatever changes in an object; 100,000 of them take no room.
std::size_t MarkOf(const Entry& entry, std::int64_t time = 0, std::uint64_t inode = 0) {
    std::string text = entry.path + '\0' + entry.target + '\0';
    for (const std::int64_t number : {static_cast<std::int64_t>(entry.kind), std::int64_t{entry.mode}, entry.size,
                                      std::int64_t{entry.form.sum}, time, static_cast<std::int64_t>(inode)}) {
        text += std::to_string(number) + " ";
    }
    return std::hash<std::string>()(text);
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
        // A key, or a group's header, as the launcher's reader takes it.
        const std::string key = QString::fromStdString(line.substr(0, line.find('='))).trimmed().toStdString();
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

// One packing, from the folder to the output's place.
class Packing {
public:
    Packing(const CommandLine& line, Report& report)
        : line_(line), report_(report), folder_(line.Operand()), output_(line.Path("output")) {}

    Error Run() {
        Error error = TakeOptions();
        error = error ? error : Inspect();
        report_.Set("output", output_);
        report_.Set("versions", ToJson(package_.versions));
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
        error = out.open(file.handle(), QIODevice::ReadWrite | QIODevice::Unbuffered)
                    ? Write(out, std::move(package_.entries))
                    : fail("");
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
        report_.Set("entries", static_cast<std::int64_t>(packed_.size()));
        report_.Set("bytes", package_.bytes);
        report_.Set("packed_bytes", std::int64_t{packed});
        report_.Sum(Printable(output_) + ": " + Shown(package_.versions) + ", " + std::to_string(packed_.size()) +
                    " entries, " + SizeText(package_.bytes) + " in " + SizeText(packed));
        return {};
    }

private:
    Error TakeOptions() {
        const QString folder = QFileInfo(QString::fromStdString(folder_)).canonicalFilePath();
        const QFileInfo output(QString::fromStdString(output_));
        if (!QFileInfo(folder).isDir()) {
            return Error(folder_ + ": is no folder");
        }
        if ((QFileInfo(output.path()).canonicalFilePath() + QLatin1Char('/')).startsWith(folder + QLatin1Char('/'))) {
            return Error(output_ + ": lies in the folder that is to be packed");
        }
        if (KindAt(output_) && (output.isSymLink() || !output.isFile())) {
            return Error(output_ + ": stands there already, and is no file that could be replaced");
        }
        if (!IsBuildNumber(line_.Value("build"))) {
            return Error("--build: a number from 1 to 2147483647 is wanted");
        }
        if (const QByteArray epoch = qgetenv("SOURCE_DATE_EPOCH"); !epoch.isEmpty()) {
            bool isNumber = false;
            time_ = std::max<std::time_t>(epoch.toLongLong(&isNumber), kFirstTime);
            if (!isNumber || epoch[0] == '-' || time_ > kLastTime) {
                return Error("SOURCE_DATE_EPOCH: seconds since 1970 are wanted, up to the year 2107");
            }
        }
        Error error;
        for (const Defect leftover : {Defect::NameLitter, Defect::NameAppleDouble}) {
            error = error || !keepAll_ ? error : report_.findings.Accept(IdOf(leftover));  // on purpose
        }
        accepting_ = report_.findings;
        return error;
    }

    Error Inspect() {
        Error error = ScanTree(
            folder_, [this](const std::string& path) { return Wanted(path); }, package_.entries);
        const auto isLeft = [this](const Entry& entry) {
            found_.push_back(MarkOfFound(entry));
            return !IsTaken(entry);
        };
        package_.entries.erase(std::remove_if(package_.entries.begin(), package_.entries.end(), isLeft),
                               package_.entries.end());
        error = error ? error : Stamp();
        if (error) {
            return error;
        }
        for (Entry& entry : package_.entries) {
            const bool isExecutable = entry.kind == Kind::Folder || (entry.mode & S_IXUSR) != 0;
            entry.mode = entry.kind == Kind::Link ? 0777 : isExecutable ? 0755 : 0644;
            package_.bytes += entry.size;
        }
        CheckTree(package_.entries, line_.Limit(), report_.findings);
        return report_.findings.IsEmpty() ? CheckContents(package_, report_.findings) : Error();
    }

    // Whether an object of the folder goes into the package; of its INFO only the content is taken.
    bool IsTaken(const Entry& entry) {
        const std::optional<Defect> leftover = LeftoverKind(entry.path);
        const bool isFile = entry.kind == Kind::File;
        const bool isInfo = entry.path == kInfoFile;
        if (leftover && !keepAll_) {
            report_.mended.Add(*leftover, entry.path, "left out");
            return false;
        }
        if (isFile && entry.names > 1) {
            report_.mended.Add(Defect::HardLink, entry.path, "stored as a file of its own");
        }
        if (isFile && (entry.mode & 07000) != 0) {
            report_.mended.Add(Defect::SetIdBit, entry.path, "stored without it");
        }
        if (isInfo && !isFile) {
            report_.findings.Add(Defect::InfoMissing, kInfoFile, "what stands there is no file");
        } else if (isInfo && entry.size > static_cast<std::int64_t>(kLargestInfo)) {
            report_.findings.Add(Defect::InfoTooLarge, kInfoFile, SizeText(entry.size));
        } else if (isInfo) {
            present_ = entry.content;
        }
        return !isInfo;
    }

    // INFO goes behind everything, and the binary in front of it.
    Error Stamp() {
        Error error = ReadVersions(present_, package_.versions);
        for (const VersionKey& key : kVersionKeys) {
            // What the key's option says, else what INFO has already, else "0".
            const QString option = QString::fromLatin1(key.name)
                                       .remove(QStringLiteral("_version"))
                                       .replace(QLatin1Char('_'), QLatin1Char('-'));
            std::optional<std::string>& value = package_.versions.*key.field;
            value = line_.Value(option.toLatin1(), value.value_or("").empty() ? "0" : *value);
            if (!Matches(QString::fromStdString(*value), QStringLiteral("[0-9A-Za-z.+_-]+"))) {
                return Error("--" + option.toStdString() + ": letters, digits and \".-_+\" are wanted");
            }
        }
        Entry info{kInfoFile, Kind::File, 0644};
        info.content = StampedInfo(package_.versions, present_);
        info.size = static_cast<std::int64_t>(info.content.size());
        VersionInfo read;
        error = error ? error : ReadVersions(info.content, read);
        for (const VersionKey& key : kVersionKeys) {
            if (!error && read.*key.field != package_.versions.*key.field) {
                report_.findings.Add(Defect::StampHidden, kInfoFile,
                                     std::string(key.name) + " is read as \"" + (read.*key.field).value_or("") + "\"");
            }
        }
        std::vector<Entry>& entries = package_.entries;
        if (FindEntry(entries, kResourcesFolder) == entries.end()) {
            entries.push_back({kResourcesFolder, Kind::Folder, 0755});
        }
        if (const auto binary = FindEntry(entries, kClientFile); binary != entries.end()) {
            std::rotate(binary, binary + 1, entries.end());
        }
        entries.push_back(std::move(info));
        return error;
    }

    Error Write(QFile& file, std::vector<Entry> entries) {
        Progress progress("packing", package_.bytes + static_cast<std::int64_t>(entries.size()));
        ZipWriter writer(file, time_);
        Error error;
        for (Entry& entry : entries) {
            const auto source = [&](const auto& take) {
                QFile content;
                Error failure = entry.path == kInfoFile ? take(entry.content)
                                                        : OpenFile(folder_ + "/" + entry.path, false, content);
                return failure || !content.isOpen() ? failure : ReadBlocks(content, [&](std::string_view block) {
                    Error next = take(block);
                    return next ? next : progress.Advance(static_cast<std::int64_t>(block.size()));
                });
            };
            error = error ? error : writer.Add(entry, source);
            error = error ? error : progress.Advance(1);
            packed_.push_back(MarkOf(entry));
        }
        return error ? error : writer.Finish();
    }

    std::size_t MarkOfFound(const Entry& entry) const {
        const QFileInfo info(QString::fromStdString(folder_ + "/" + entry.path));
        const std::int64_t time = entry.kind == Kind::Link ? 0 : info.metadataChangeTime().toMSecsSinceEpoch();
        return MarkOf(entry, time, entry.inode);
    }

    // A change of anything in the folder since it was looked at.
    Error FindChange() {
        std::vector<Entry> now;
        Error error = ScanTree(
            folder_, [this](const std::string& path) { return Wanted(path) == kSkip ? kSkip : 0; }, now);
        const auto isSame = [this](const Entry& entry, std::size_t mark) { return MarkOfFound(entry) == mark; };
        const auto [changed, mark] = std::mismatch(now.begin(), now.end(), found_.begin(), found_.end(), isSame);
        return error || (changed == now.end() && mark == found_.end())
                   ? error
                   : Error((changed == now.end() ? folder_ : changed->path) + ": changed while it was packed");
    }

    // Reads the written package back as `check` does, and finds in it what was packed.
    Error ReadBack(const std::string& file) {
        Package package;
        if (Error error = CheckPackage(file, line_.Limit(), package, accepting_)) {
            return error;
        }
        for (const auto& [defect, group] : accepting_.found()) {
            return Error("it reads back with " + IdOf(defect) + ", " + AllDefects().at(defect).what + ": " +
                         group.kept[0].entry);
        }
        const auto isSame = [](const Entry& entry, std::size_t mark) { return MarkOf(entry) == mark; };
        return std::equal(package.entries.begin(), package.entries.end(), packed_.begin(), packed_.end(), isSame)
                   ? Error()
                   : Error("it reads back as something else");
    }
    std::size_t Wanted(const std::string& path) const {
        return !keepAll_ && LeftoverKind(path) ? kSkip : WantedContent(path);
    }

    const CommandLine& line_;
    Report& report_;
    const std::string folder_;
    const std::string output_;
    Findings accepting_;  // none, but told what to accept
    const bool keepAll_ = line_.IsSet("keep-all");
    std::time_t time_ = kFirstTime;
    Marks found_;   // the folder's objects as they were looked at
    Marks packed_;  // the package's as they were written
    Package package_;
    std::string present_;  // the folder's INFO
};

}  // namespace

Error RunPack(const CommandLine& line, Report& report) {
    return Packing(line, report).Run();
}
