#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <vector>

#include "archive-reader.h"
#include "cloud-service.h"
#include "command.h"
#include "extractor.h"
#include "file/file-op.h"
#include "interruption.h"
#include "log/config.h"
#include "names.h"
#include "output-file.h"
#include "path-table.h"
#include "rehearsal.h"
#include "report.h"
#include "tree-scan.h"
#include "version-probe.h"

namespace {

constexpr char kCommand[] = "explain";
constexpr std::size_t kLargestText = 1 << 20;

// What a client's folder has on disk beside its files' content: a block for each entry.
constexpr std::int64_t kBlock = 4096;

std::string Path(PathKey key) {
    return QDir::toNativeSeparators(TablePath(key)).toStdString();
}

bool Exists(const std::string& path) {
    struct stat info = {};
    return lstat(path.c_str(), &info) == 0;
}

bool IsFolder(const std::string& path) {
    struct stat info = {};
    return lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool IsLink(const std::string& path) {
    struct stat info = {};
    return lstat(path.c_str(), &info) == 0 && S_ISLNK(info.st_mode);
}

bool IsEmptyFolder(const std::string& path) {
    std::vector<std::string> names;
    return IsFolder(path) && ListFolder(path, names) && names.empty();
}

std::string VersionsText(const Versions& versions) {
    return "build " + (versions.build.empty() ? "0 (none is named)" : Printable(versions.build)) + ", version " +
           Printable(versions.majorVersion) + "." + Printable(versions.minorVersion) + ", icon overlay " +
           Printable(versions.iconOverlay);
}

// Tells what the next start would do, step by step and in its order, by the product's own decision and by looks at what
// its steps would come upon. Nothing is written in the home or the bundle; only where the two INFO files differ, the
// package's own goes into a folder for temporary files for a moment, to be read by the service.
class Explanation {
public:
    Explanation(std::string bundle, std::string home) : bundle_(std::move(bundle)), home_(std::move(home)) {}

    void Run();
    int Report(bool json) const;

private:
    void ExplainHome();
    void ExplainDecision();
    void ExplainStop();
    void ExplainPidFile(const std::string& folder);
    void ExplainProcess(const std::string& folder, const std::string& file, pid_t process);
    void ExplainMigration();
    void ExplainBackup();
    void ExplainFolders();
    void ExplainPackage();
    void ExplainPackageInfo(const std::string& info);
    void ExplainSpace(std::int64_t entries, std::int64_t bytes);
    void ExplainEnd();

    // A step: for people a line, for programs a value of the object.
    void Say(const char* key, const QJsonValue& value, const std::string& line);

    const std::string bundle_;
    const std::string home_;
    Decision decision_ = {};
    Findings findings_;
    std::vector<std::string> lines_;
    QJsonObject object_;
};

void Explanation::Say(const char* key, const QJsonValue& value, const std::string& line) {
    object_.insert(QString::fromLatin1(key), value);
    lines_.push_back(line);
}

void Explanation::Run() {
    // The launcher finds its bundle by the real path of its binary.
    const std::string binaries = bundle_ + "/Contents/MacOS";
    const QString real = QFileInfo(QString::fromStdString(binaries)).canonicalFilePath();
    decision_ = Decide(home_, real.isEmpty() ? binaries : real.toStdString());
    Say("bundle", ToJson(decision_.target), "bundle     " + bundle_ + ": " + VersionsText(decision_.target));
    ExplainHome();
    ExplainDecision();
    if (decision_.isUpgradeNeeded) {
        ExplainStop();
        ExplainMigration();
        ExplainFolders();
        ExplainPackage();
    }
    ExplainBackup();
    ExplainEnd();
}

void Explanation::ExplainHome() {
    const std::string info = Path(kUserKelvaneQuayResourcePath) + "/INFO";
    const std::string text = Exists(info) ? VersionsText(decision_.source) : "no version installed";
    Say("installed", ToJson(decision_.source),
        "home       " + home_ + ": " + text + (decision_.installed ? "" : ", the client's binary is missing"));
    object_.insert(QStringLiteral("binary_installed"), decision_.installed);
    struct stat folder = {};
    if (stat(home_.c_str(), &folder) != 0 || !S_ISDIR(folder.st_mode)) {
        findings_.Add(Code::HomeMissing, home_);
    }
}

void Explanation::ExplainDecision() {
    const char* decision = !decision_.isUpgradeNeeded ? "none" : decision_.installed ? "upgrade" : "install";
    const std::string reason = !decision_.installed        ? "the client's binary is missing"
                               : decision_.isUpgradeNeeded ? "the bundle's build is higher than the installed one"
                                                           : "the bundle's build is not higher than the installed one";
    Say("decision", QString::fromLatin1(decision), std::string("decision   ") + decision + ": " + reason);
    object_.insert(QStringLiteral("reason"), QString::fromStdString(reason));
}

void Explanation::ExplainStop() {
    if (decision_.installed) {
        ExplainPidFile(Path(kUserKelvaneQuayPath));
        return;
    }
    const std::string older = Path(kUserTessalyPath);
    if (IsFileExist(older, true)) {
        ExplainPidFile(older);
    } else {
        Say("stop", QJsonValue(), "stop       nobody: a first installation stops no client");
    }
}

void Explanation::ExplainPidFile(const std::string& folder) {
    const std::string file = folder + "/ui.pid";
    if (!IsFileExist(file, false)) {
        Say("stop", QJsonValue(), "stop       nobody: there is no " + file);
        return;
    }
    Config pidFile;
    if (pidFile.read(file) < 0 || pidFile["pid"].empty()) {
        Say("stop", QJsonValue(), "stop       nobody: " + file + " names no process");
        findings_.Add(Code::PidFileOdd, file, "it can't be read, or has no \"pid\"");
        return;
    }
    ExplainProcess(folder, file, static_cast<pid_t>(std::atol(pidFile["pid"].c_str())));
}

void Explanation::ExplainProcess(const std::string& folder, const std::string& file, pid_t process) {
    const std::string number = std::to_string(process);
    if (process <= 0) {
        Say("stop", process, "stop       a group of processes: " + file + " says " + number);
        findings_.Add(Code::PidFileOdd, file, "the number is " + number);
        return;
    }
    if (kill(process, 0) != 0 && errno == ESRCH) {
        Say("stop", QJsonValue(), "stop       nobody: process " + number + " has ended");
        return;
    }
    const bool isForeign = kill(process, 0) != 0;
    Say("stop", process, "stop       process " + number + ", which gets 15 seconds to quit");
    // Where the system tells nothing of processes this way, nothing is said against the number.
    const std::string status = "/proc/" + number;
    std::string program;
    std::string command;
    if (isForeign) {
        findings_.Add(Code::PidFileOdd, file, "process " + number + " is another user's");
    } else if (ReadLink(status + "/exe", program) && ReadWholeFile(status + "/cmdline", kLargestText, command) &&
               program.compare(0, folder.size() + 1, folder + "/") != 0 &&
               command.find(folder + "/") == std::string::npos) {
        findings_.Add(Code::PidFileOdd, file, "process " + number + " is " + Printable(program));
    }
}

void Explanation::ExplainMigration() {
    const std::string older = Path(kUserTessalyPath);
    if (decision_.installed) {
        Say("migrate", QJsonValue(), "migrate    nothing: the client is installed");
        return;
    }
    if (!IsFileExist(older, true)) {
        Say("migrate", QJsonValue(), "migrate    nothing: there is no " + older);
        if (IsFileExist(older, false)) {
            findings_.Add(Code::ThroughLink, older, "the older product's folder is there, but not under this spelling");
        }
        return;
    }
    const std::string oldData = older + "/data";
    const std::string newData = Path(kUserKelvaneQuayPath) + "/data";
    const bool hasData = IsFileExist(oldData, true);
    Say("migrate", Q(older),
        "migrate    " + (hasData ? oldData + " to " + newData + ", then" : std::string("no data:")) + " removes " +
            older);
    if (hasData && Exists(newData) && !IsEmptyFolder(newData)) {
        findings_.Add(Code::OlderDataLost, oldData, newData + " is there already");
    }
}

void Explanation::ExplainBackup() {
    const std::string folder = Path(kUserKelvaneQuayAppPath);
    const bool isThere = IsFileExist(folder, false);
    std::string name;
    for (int index = 0; index <= kLastBackupIndex; ++index) {
        std::string candidate;
        BackupName(folder, index, candidate);
        const bool isFree = !Exists(candidate) || (IsEmptyFolder(candidate) && IsFolder(folder));
        if (Exists(candidate)) {
            findings_.Add(Code::Leftovers, candidate);
        }
        if (isFree && name.empty()) {
            name = candidate;
        }
    }
    if (!decision_.isUpgradeNeeded) {
        return;
    }
    if (!isThere) {
        Say("backup", QJsonValue(), "backup     none: there is no old copy");
    } else if (name.empty()) {
        Say("backup", QJsonValue(), "backup     none: every name is taken");
        findings_.Add(Code::NoBackupName, folder);
    } else {
        Say("backup", Q(name), "backup     " + name);
    }
}

// Whether the folders can be written, and are folders.
void Explanation::ExplainFolders() {
    const std::string root = Path(kUserKelvaneQuayPath);
    const QString real = QFileInfo(QString::fromStdString(home_)).canonicalFilePath();
    if (!real.isEmpty() && real.toStdString() != home_) {
        findings_.Add(Code::ThroughLink, home_, "its real path is " + Printable(real.toStdString()));
    }
    if (IsLink(root)) {
        findings_.Add(Code::ThroughLink, root);
    } else if (Exists(root) && !IsFolder(root)) {
        findings_.Add(Code::PathObstructed, root);
    }
    const std::string parent = Exists(root) ? root : home_;
    if (IsFolder(parent) && access(parent.c_str(), W_OK | X_OK) != 0) {
        findings_.Add(Code::NotWritable, parent);
    }
}

void Explanation::ExplainPackage() {
    const std::string package = bundle_ + "/" + kPackageFile;
    Extractor extractor;
    extractor.sourcePath = package;
    extractor.destPath = Path(kUserKelvaneQuayAppPath);
    const int count = access(package.c_str(), R_OK) == 0 ? extractor.Count() : -1;
    if (count <= 0) {
        Say("package", QJsonValue(), "package    can't be used: " + package);
        findings_.Add(Code::PackageUnusable, package);
        return;
    }
    std::int64_t bytes = 0;
    std::string info;
    ArchiveReader reader;
    Entry entry;
    bool isOpen = reader.Open(package);
    ArchiveReader::Result result = ArchiveReader::End;
    while (isOpen && (result = reader.Next(entry)) == ArchiveReader::Header) {
        if (IsInterrupted()) {
            EndInterrupted();
        }
        bytes += kBlock + (entry.type == S_IFREG && entry.size > 0 ? (entry.size + kBlock - 1) / kBlock * kBlock : 0);
        if (entry.path == kInfoEntry) {
            info.clear();
            reader.ReadData([&info](const char* data, std::size_t size) {
                info.append(data, size);
                return info.size() < kLargestText;
            });
        }
    }
    if (result == ArchiveReader::Damaged) {
        findings_.Add(Code::PackageUnusable, package, reader.error());
    }
    Say("package", count, "package    " + std::to_string(count) + " entries (" + reader.FormatText() + ")");
    ExplainPackageInfo(info);
    ExplainSpace(count, bytes);
}

// Whether the next start but one would install again.
void Explanation::ExplainPackageInfo(const std::string& info) {
    std::string bundleInfo;
    ReadWholeFile(bundle_ + "/" + kInfoFile, kLargestText, bundleInfo);
    if (info == bundleInfo) {
        return;
    }
    Scratch scratch(false);
    if (!scratch.Make()) {
        return;
    }
    const std::string contents = scratch.path() + "/Contents";
    FSMKDir(contents + "/Resources", true);
    WriteWholeFile(contents + "/Resources/INFO", info, 0644);
    const std::string build = ReadVersions(contents).build;
    // The reading has left its own paths in the table.
    FillPathTable(QString::fromStdString(home_), QString::fromStdString(bundle_ + "/Contents/MacOS"));
    if (std::atoi(build.c_str()) < std::atoi(decision_.target.build.c_str())) {
        findings_.Add(Code::UpgradesEachStart, bundle_,
                      "the package's build is \"" + Printable(build) + "\", the bundle's \"" +
                          Printable(decision_.target.build) + "\"");
    }
}

void Explanation::ExplainSpace(std::int64_t entries, std::int64_t bytes) {
    const std::string root = Path(kUserKelvaneQuayPath);
    struct statvfs volume = {};
    if (statvfs(Exists(root) ? root.c_str() : home_.c_str(), &volume) != 0) {
        return;
    }
    const std::int64_t free = static_cast<std::int64_t>(volume.f_bavail) * static_cast<std::int64_t>(volume.f_frsize);
    // A volume that counts no files says 0 for all of them.
    const bool hasFiles = volume.f_files == 0 || static_cast<std::int64_t>(volume.f_favail) >= entries;
    Say("space",
        QJsonObject{{QStringLiteral("needed"), static_cast<double>(bytes)},
                    {QStringLiteral("free"), static_cast<double>(free)}},
        "space      " + SizeText(bytes) + " needed beside the old copy, " + SizeText(free) + " free");
    if (free < bytes) {
        findings_.Add(Code::NoSpace, root, SizeText(bytes) + " needed, " + SizeText(free) + " free");
    } else if (!hasFiles) {
        findings_.Add(Code::NoSpace, root, "the volume has no room for " + std::to_string(entries) + " more files");
    }
}

// What every start does.
void Explanation::ExplainEnd() {
    const std::string aged = Path(kUserTessalyPath) + "/app";
    const bool isThere = Exists(aged);
    Say("remove", isThere ? QJsonValue(Q(aged)) : QJsonValue(),
        isThere ? "remove     " + aged : "remove     nothing: there is no " + aged);
    const std::string binary = Path(kUserKelvaneQuayUiPath);
    Say("start", Q(binary), "start      " + binary);
    if (decision_.installed && access(binary.c_str(), X_OK) != 0) {
        findings_.Add(Code::BinaryNotExecutable, binary);
    }
}

int Explanation::Report(bool json) const {
    const int exitCode = findings_.IsEmpty() ? kExitGood : kExitDefects;
    if (json) {
        QJsonObject object = object_;
        object.insert(QStringLiteral("operand"), Q(bundle_));
        object.insert(QStringLiteral("home"), Q(home_));
        object.insert(QStringLiteral("findings"), ToJson(findings_));
        return PrintJson(kCommand, object, exitCode);
    }
    for (const std::string& line : lines_) {
        PrintLine(line);
    }
    PrintLine(findings_.IsEmpty() ? "nothing stands in the way" : "in the way:");
    PrintFindings(findings_);
    return exitCode;
}

}  // namespace

int RunExplain(const QStringList& arguments) {
    CommandLine line(
        kCommand,
        "Says what the next start of a bundle would do in a home, step by step, and why; changes nothing.\n"
        "What stands in the way makes the exit code 1.",
        "BUNDLE", "The bundle's folder.");
    line.AddOption("home", nullptr, "FOLDER", "The user's home; your own without it.");
    if (!line.Parse(arguments, {})) {
        return line.exitCode();
    }
    if (!IsFolder(line.Operand() + "/Contents")) {
        return Fail(kCommand, line.isJson(), line.Operand() + ": is no bundle");
    }
    const QString home =
        line.IsSet("home") ? QString::fromStdString(line.Value("home")) : Service::GetUserInstallPath();
    const QString bundle = QString::fromStdString(line.Operand());
    Explanation explanation(QDir::cleanPath(QFileInfo(bundle).absoluteFilePath()).toStdString(),
                            QDir::cleanPath(QFileInfo(home).absoluteFilePath()).toStdString());
    explanation.Run();
    return explanation.Report(line.isJson());
}
