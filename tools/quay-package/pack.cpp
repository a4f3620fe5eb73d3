#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <map>

#include "allocation.h"
#include "archive-writer.h"
#include "command.h"
#include "content-check.h"
#include "format.h"
#include "interruption.h"
#include "names.h"
#include "output-file.h"
#include "posix/handles.h"
#include "progress.h"
#include "report.h"
#include "tree-scan.h"
#include "version-probe.h"

namespace {

constexpr char kCommand[] = "pack";
constexpr char kResources[] = "Contents/Resources";
constexpr char kPropertyList[] = "Contents/Info.plist";
constexpr std::size_t kBlockSize = 1 << 16;
constexpr std::size_t kLargestText = 1 << 20;

// 1980-01-01, the first day that a zip file can tell.
constexpr std::time_t kDefaultTime = 315532800;

// What an entry costs in the progress bar beside its bytes.
constexpr std::int64_t kBytesPerEntry = 4096;

struct Options {
    std::string folder;
    std::string output;
    std::string format;
    Versions versions;
    std::time_t time = kDefaultTime;
};

// Looks through the folder before a byte is written.
class Inspection {
public:
    explicit Inspection(const std::string& folder) : folder_(folder) {}

    // False: something could not be read, and error() tells what.
    bool Run();

    Findings refused;
    Findings mended;
    std::int64_t entries = 0;
    std::int64_t bytes = 0;
    bool hasResources = false;
    std::string error;

    // Whether the packing leaves the object out, with all that it holds.
    static bool IsLeftOut(const std::string& path) {
        return IsAppleDouble(path) || IsLitter(path.substr(path.rfind('/') + 1));
    }

private:
    TreeScan::Answer Inspect(const TreeEntry& entry);
    void InspectNames(const std::string& folder, const std::vector<std::string>& names);
    void InspectFile(const TreeEntry& entry);
    void InspectBinary(const TreeEntry& entry);
    void InspectLink(const TreeEntry& entry);
    std::string Beginning(const std::string& path, std::size_t size) const;

    const std::string folder_;
    bool hasBinary_ = false;
    bool hasPropertyList_ = false;
};

std::string Inspection::Beginning(const std::string& path, std::size_t size) const {
    std::string beginning;
    ReadWholeFile(folder_ + "/" + path, size, beginning);
    return beginning;
}

bool Inspection::Run() {
    TreeScan scan(folder_);
    Progress progress("looking");
    const auto inspect = [this, &progress](const TreeEntry& entry) {
        progress.Update(0, entries);
        return IsInterrupted() ? TreeScan::Stop : Inspect(entry);
    };
    const auto inspectNames = [this](const std::string& folder, const std::vector<std::string>& names) {
        InspectNames(folder, names);
    };
    if (!scan.Walk(inspect, inspectNames)) {
        error = scan.error();
        return false;
    }
    if (!hasBinary_) {
        refused.Add(Code::BinaryMissing, kBinaryEntry);
    }
    CheckClientPropertyList(hasPropertyList_, hasPropertyList_ ? Beginning(kPropertyList, kLargestText) : "",
                            hasBinary_ ? Beginning(kBinaryEntry, 4) : "", refused);
    return true;
}

void Inspection::InspectNames(const std::string& folder, const std::vector<std::string>& names) {
    std::map<std::string, std::string> folded;
    const std::string prefix = folder.empty() ? "" : folder + "/";
    for (const std::string& name : names) {
        const std::string path = prefix + name;
        if (IsLeftOut(path) || Printable(name) != name) {
            continue;  // not packed, or refused for its own sake
        }
        const auto [other, isNew] = folded.emplace(FoldedName(name), name);
        if (!isNew) {
            refused.Add(DifferInFormOnly(name, other->second) ? Code::NameForm : Code::NameCase, path,
                        "the other is \"" + other->second + "\"");
        }
    }
}

TreeScan::Answer Inspection::Inspect(const TreeEntry& entry) {
    if (IsLeftOut(entry.path)) {
        mended.Add(IsAppleDouble(entry.path) ? Code::NameAppleDouble : Code::NameLitter, entry.path, "left out");
        return TreeScan::Skip;
    }
    CheckName(entry.path, refused);
    ++entries;
    if (S_ISDIR(entry.info.st_mode)) {
        hasResources = hasResources || entry.path == kResources;
        if (entry.path == kBinaryEntry) {
            InspectBinary(entry);
        }
    } else if (S_ISREG(entry.info.st_mode)) {
        InspectFile(entry);
    } else if (S_ISLNK(entry.info.st_mode)) {
        InspectLink(entry);
    } else {
        refused.Add(Code::SpecialFile, entry.path);
    }
    if (entry.path == kInfoEntry && !S_ISREG(entry.info.st_mode)) {
        refused.Add(Code::InfoMissing, entry.path, "what stands there is no file");
    }
    return TreeScan::Continue;
}

void Inspection::InspectFile(const TreeEntry& entry) {
    bytes += entry.info.st_size;
    if (entry.info.st_nlink > 1) {
        mended.Add(Code::HardLink, entry.path, "a hard link, stored as a file of its own");
    }
    if ((entry.info.st_mode & (S_ISUID | S_ISGID | S_ISVTX)) != 0) {
        mended.Add(Code::SetIdBit, entry.path, "stored without its set-id bit");
    }
    hasPropertyList_ = hasPropertyList_ || entry.path == kPropertyList;
    if (entry.path == kBinaryEntry) {
        InspectBinary(entry);
    } else if (IsProgramPlace(entry.path) && (entry.info.st_mode & S_IXUSR) == 0 &&
               LooksLikeProgram(Beginning(entry.path, 4))) {
        refused.Add(Code::ProgramWithoutExecuteBit, entry.path);
    }
}

void Inspection::InspectBinary(const TreeEntry& entry) {
    hasBinary_ = true;
    if (!S_ISREG(entry.info.st_mode) || entry.info.st_size == 0) {
        refused.Add(Code::BinaryNoProgram, entry.path);
    } else if ((entry.info.st_mode & S_IXUSR) == 0) {
        refused.Add(Code::BinaryNotExecutable, entry.path);
    }
}

void Inspection::InspectLink(const TreeEntry& entry) {
    if (entry.path == kBinaryEntry) {
        InspectBinary(entry);
        return;
    }
    const auto lookup = [this](const std::string& path, std::string& target) {
        struct stat info = {};
        const std::string full = folder_ + "/" + path;
        if (IsLeftOut(path) || lstat(full.c_str(), &info) != 0) {
            // INFO is stamped, whether or not the folder has one.
            return path == kInfoEntry ? NodeKind::Other : NodeKind::Absent;
        }
        if (S_ISLNK(info.st_mode)) {
            return ReadLink(full, target) ? NodeKind::Link : NodeKind::Absent;
        }
        return S_ISDIR(info.st_mode) ? NodeKind::Folder : NodeKind::Other;
    };
    CheckLink(entry.path, entry.link, lookup, refused);
}

// Writes the entries.
class Packing {
public:
    Packing(const Options& options, const Inspection& inspection)
        : options_(options),
          inspection_(inspection),
          writer_(options.time),
          total_(inspection.bytes + inspection.entries * kBytesPerEntry) {}

    // An empty text or what failed; the text is empty as well after an interruption.
    std::string Run(int descriptor, const std::string& info);

    std::int64_t entries = 0;
    std::int64_t bytes = 0;

private:
    bool AddTree();
    bool AddObject(const TreeEntry& entry);
    bool AddFile(const std::string& path);
    bool AddContent(int descriptor, const std::string& path, std::int64_t size);
    bool AddInfo(const std::string& info);
    bool Fail(const std::string& what);
    bool TakeWriterError(bool result);
    void Advance(std::int64_t amount);

    const Options& options_;
    const Inspection& inspection_;
    ArchiveWriter writer_;
    Progress progress_{"packing"};
    const std::int64_t total_;
    std::int64_t done_ = 0;
    std::string error_;
    std::vector<char> block_ = std::vector<char>(kBlockSize);
};

bool Packing::Fail(const std::string& what) {
    error_ = what;
    return false;
}

bool Packing::TakeWriterError(bool result) {
    return result || Fail(options_.output + ": " + writer_.error());
}

void Packing::Advance(std::int64_t amount) {
    done_ += amount;
    progress_.Update(total_, done_);
}

std::string Packing::Run(int descriptor, const std::string& info) {
    const bool written = TakeWriterError(writer_.Open(descriptor, options_.format)) && AddTree() &&
                         AddFile(kBinaryEntry) && AddInfo(info) && TakeWriterError(writer_.Close());
    return written || IsInterrupted() ? std::string() : error_;
}

// Everything but the two entries that say that the client is complete.
bool Packing::AddTree() {
    TreeScan scan(options_.folder);
    bool added = true;
    const auto add = [this, &added](const TreeEntry& entry) {
        if (Inspection::IsLeftOut(entry.path)) {
            return TreeScan::Skip;
        }
        if (entry.path == kBinaryEntry || entry.path == kInfoEntry) {
            return TreeScan::Continue;
        }
        added = AddObject(entry) && !IsInterrupted();
        return added ? TreeScan::Continue : TreeScan::Stop;
    };
    if (!scan.Walk(add)) {
        return Fail(scan.error());
    }
    if (added && !inspection_.hasResources) {
        ++entries;
        added = TakeWriterError(writer_.AddFolder(kResources));
    }
    return added;
}

bool Packing::AddObject(const TreeEntry& entry) {
    if (S_ISREG(entry.info.st_mode)) {
        return AddFile(entry.path);
    }
    ++entries;
    Advance(kBytesPerEntry);
    if (S_ISDIR(entry.info.st_mode)) {
        return TakeWriterError(writer_.AddFolder(entry.path));
    }
    if (S_ISLNK(entry.info.st_mode)) {
        return TakeWriterError(writer_.AddLink(entry.path, entry.link));
    }
    return Fail(entry.path + ": changed its kind while it was packed");
}

bool Packing::AddFile(const std::string& path) {
    const std::string full = options_.folder + "/" + path;
    const Fd file(open(full.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat info = {};
    if (!file || fstat(file.get(), &info) != 0) {
        return Fail(SystemError(full));
    }
    if (!S_ISREG(info.st_mode)) {
        return Fail(path + ": changed its kind while it was packed");
    }
    ++entries;
    Advance(kBytesPerEntry);
    return TakeWriterError(writer_.AddFile(path, (info.st_mode & S_IXUSR) != 0, info.st_size)) &&
           AddContent(file.get(), path, info.st_size);
}

bool Packing::AddContent(int descriptor, const std::string& path, std::int64_t size) {
    std::int64_t left = size;
    while (!IsInterrupted()) {
        const ssize_t got = read(descriptor, block_.data(), block_.size());
        if (got < 0) {
            return Fail(SystemError(path));
        }
        if (got > left || (got == 0 && left > 0)) {
            return Fail(path + ": changed its size while it was packed");
        }
        if (got == 0) {
            bytes += size;
            return true;
        }
        if (!TakeWriterError(writer_.AddData(block_.data(), static_cast<std::size_t>(got)))) {
            return false;
        }
        left -= got;
        Advance(got);
    }
    return false;
}

bool Packing::AddInfo(const std::string& info) {
    ++entries;
    bytes += static_cast<std::int64_t>(info.size());
    return TakeWriterError(writer_.AddFile(kInfoEntry, false, static_cast<std::int64_t>(info.size()))) &&
           TakeWriterError(writer_.AddData(info.data(), info.size()));
}

bool IsPlainWord(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char byte) {
        return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
               byte == '.' || byte == '-' || byte == '_' || byte == '+';
    });
}

// Takes the value of an option, else what stood in the folder's INFO, else "0". False for no plain word.
bool ChooseVersion(const CommandLine& line, const char* option, const std::string& present, std::string& value) {
    value = line.IsSet(option) ? line.Value(option) : present.empty() ? "0" : present;
    return IsPlainWord(value);
}

// An empty text or what is wrong with the options.
std::string TakeOptions(const CommandLine& line, Options& options) {
    options.folder = line.Operand();
    options.output = line.Value("output");
    struct stat info = {};
    if (stat(options.folder.c_str(), &info) != 0) {
        return SystemError(options.folder);
    }
    if (!S_ISDIR(info.st_mode)) {
        return options.folder + ": is no folder";
    }
    options.format = line.IsSet("format") ? line.Value("format") : FormatNames().front();
    if (std::find(FormatNames().begin(), FormatNames().end(), options.format) == FormatNames().end()) {
        return "--format: there is no format \"" + options.format + "\"";
    }
    const Versions present = ReadVersions(options.folder + "/Contents");
    options.versions.build = line.Value("build");
    if (!IsBuildNumber(options.versions.build)) {
        return "--build: a number from 1 to 2147483647 is wanted";
    }
    if (!ChooseVersion(line, "major", present.majorVersion, options.versions.majorVersion) ||
        !ChooseVersion(line, "minor", present.minorVersion, options.versions.minorVersion) ||
        !ChooseVersion(line, "icon-overlay", present.iconOverlay, options.versions.iconOverlay)) {
        return "--major, --minor and --icon-overlay take letters, digits and \".-_+\"";
    }
    if (const char* epoch = std::getenv("SOURCE_DATE_EPOCH"); epoch != nullptr && *epoch != '\0') {
        char* end = nullptr;
        errno = 0;
        options.time = static_cast<std::time_t>(std::strtoll(epoch, &end, 10));
        if (*end != '\0' || errno != 0 || options.time < 0) {
            return "SOURCE_DATE_EPOCH: seconds since 1970 are wanted";
        }
    }
    return {};
}

std::string RealPath(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    std::string text = real == nullptr ? "" : real;
    std::free(real);  // NOLINT: realpath allocates so.
    return text;
}

bool IsOutputInside(const Options& options) {
    const std::size_t slash = options.output.rfind('/');
    const std::string parent =
        slash == std::string::npos ? "." : options.output.substr(0, std::max<std::size_t>(slash, 1));
    const std::string folder = RealPath(options.folder) + "/";
    return (RealPath(parent) + "/").compare(0, folder.size(), folder) == 0;
}

int ReportRefused(const Inspection& inspection, bool json) {
    if (json) {
        return PrintJson(kCommand,
                         {{QStringLiteral("findings"), ToJson(inspection.refused)},
                          {QStringLiteral("mended"), MendedToJson(inspection.mended)}},
                         kExitDefects);
    }
    PrintFindings(inspection.refused);
    PrintLine(std::to_string(inspection.refused.Total()) + " defects: nothing was packed");
    return kExitDefects;
}

int ReportPacked(const Options& options, const Inspection& inspection, const Packing& packing, bool json) {
    struct stat info = {};
    stat(options.output.c_str(), &info);
    if (json) {
        return PrintJson(kCommand,
                         {{QStringLiteral("output"), Q(options.output)},
                          {QStringLiteral("format"), Q(options.format)},
                          {QStringLiteral("entries"), static_cast<double>(packing.entries)},
                          {QStringLiteral("bytes"), static_cast<double>(packing.bytes)},
                          {QStringLiteral("packed_bytes"), static_cast<double>(info.st_size)},
                          {QStringLiteral("versions"), ToJson(options.versions)},
                          {QStringLiteral("findings"), QJsonArray()},
                          {QStringLiteral("mended"), MendedToJson(inspection.mended)}},
                         kExitGood);
    }
    PrintMended(inspection.mended);
    PrintLine(options.output + ": build " + options.versions.build + ", " + std::to_string(packing.entries) +
              " entries, " + SizeText(packing.bytes) + " in " + SizeText(info.st_size) + " (" + options.format + ")");
    return kExitGood;
}

int Pack(const Options& options, bool json) {
    Inspection inspection(options.folder);
    if (!inspection.Run()) {
        return Fail(kCommand, json, inspection.error);
    }
    if (IsInterrupted()) {
        EndInterrupted();
    }
    if (!inspection.refused.IsEmpty()) {
        return ReportRefused(inspection, json);
    }
    std::string present;
    ReadWholeFile(options.folder + "/" + kInfoEntry, kLargestText, present);

    OutputFile output(options.output);
    std::string error = output.Open();
    if (!error.empty()) {
        return Fail(kCommand, json, error);
    }
    Packing packing(options, inspection);
    error = packing.Run(output.descriptor(), StampedInfo(options.versions, present));
    if (error.empty() && !IsInterrupted()) {
        error = output.Commit();
    }
    if (!error.empty()) {
        return Fail(kCommand, json, error);
    }
    if (IsInterrupted()) {
        output.Discard();
        EndInterrupted();
    }
    return ReportPacked(options, inspection, packing, json);
}

}  // namespace

int RunPack(const QStringList& arguments) {
    CommandLine line(
        kCommand,
        "Packs a client's folder, so that a start that is killed in the middle of its installation is\n"
        "seen as unfinished by the next one. The same folder gives the same bytes, at any time and place.\n"
        "SOURCE_DATE_EPOCH, if set, is the time of all entries.",
        "APPFOLDER", "The client's folder; \"Contents\" lies in it.");
    line.AddOption("output", "o", "KPK", "The package to write.");
    line.AddOption("build", nullptr, "N", "The build number that INFO is stamped with.");
    line.AddOption("major", nullptr, "TEXT", "The major version. Without it, what the folder's INFO has, or 0.");
    line.AddOption("minor", nullptr, "TEXT", "The minor version, likewise.");
    line.AddOption("icon-overlay", nullptr, "TEXT", "The icon overlay version, likewise.");
    line.AddOption("format", nullptr, "FORMAT", "zip (the default), tar.gz, tar.xz, tar.zst or tar.");
    if (!line.Parse(arguments, {QStringLiteral("output"), QStringLiteral("build")})) {
        return line.exitCode();
    }
    // A zip file has local times in it, so that all machines must be in one place.
    setenv("TZ", "UTC", 1);
    tzset();
    KeepFreedMemory();
    Options options;
    const std::string error = TakeOptions(line, options);
    if (!error.empty()) {
        return Fail(kCommand, line.isJson(), error);
    }
    if (IsOutputInside(options)) {
        return Fail(kCommand, line.isJson(), options.output + ": lies in the folder that is to be packed");
    }
    return Pack(options, line.isJson());
}
