#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cstdio>

#include "archive-reader.h"
#include "command.h"
#include "content-check.h"
#include "file/file-op.h"
#include "interruption.h"
#include "log/config.h"
#include "names.h"
#include "output-file.h"
#include "product-layout.h"
#include "report.h"
#include "version-probe.h"

namespace {

constexpr char kCommand[] = "bundle";
constexpr std::size_t kLargestText = 1 << 20;

struct Options {
    std::string output;
    std::string launcher;
    std::string package;
    std::string icon;    // empty: the tool's own
    std::string levels;  // empty: none
    std::string installedAt;
};

std::string OwnFile(const char* name) {
    QFile file(QStringLiteral(":/bundle/") + QString::fromLatin1(name));
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
}

// Reads a package's INFO. False: the package can't be read up to it, and `error` tells why. `info` is empty if there
// is none.
bool ReadPackageInfo(const std::string& package, std::string& info, std::string& error) {
    ArchiveReader reader;
    Entry entry;
    if (!reader.Open(package)) {
        error = package + ": " + reader.error();
        return false;
    }
    for (ArchiveReader::Result result; (result = reader.Next(entry)) != ArchiveReader::End;) {
        bool good = result == ArchiveReader::Header;
        if (good && entry.path == kInfoEntry) {
            info.clear();
            good = reader.ReadData([&info](const char* bytes, std::size_t size) {
                info.append(bytes, size);
                return info.size() < kLargestText;
            });
        }
        if (!good) {
            error = package + ": " + reader.error();
            return false;
        }
    }
    return true;
}

void Replace(std::string& text, const std::string& key, const std::string& value) {
    for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at + value.size())) {
        text.replace(at, key.size(), value);
    }
}

// Lays a bundle into an empty folder. Operations return an empty text or what failed.
class Laying {
public:
    Laying(const Options& options, std::string folder) : options_(options), folder_(std::move(folder)) {}

    std::string Run(const std::string& info);
    const Versions& versions() const { return versions_; }

private:
    // Writes below the folder, parents included.
    std::string Write(const char* file, const std::string& bytes);
    std::string Copy(const std::string& from, const char* file, unsigned mode);
    std::string PathOf(const char* file);
    std::string PropertyList() const;

    const Options& options_;
    const std::string folder_;
    Versions versions_;
};

std::string Laying::PathOf(const char* file) {
    std::string path = folder_ + "/" + file;
    FSMKDir(FSParentPath(path), true);
    return path;
}

std::string Laying::Write(const char* file, const std::string& bytes) {
    return WriteWholeFile(PathOf(file), bytes, 0644);
}

std::string Laying::Copy(const std::string& from, const char* file, unsigned mode) {
    return CopyWholeFile(from, PathOf(file), mode);
}

std::string Laying::PropertyList() const {
    std::string text = OwnFile("Info.plist.in");
    const std::string shortVersion = versions_.majorVersion + "." + versions_.minorVersion;
    Replace(text, "@KQ_SHORT_VERSION@", QString::fromStdString(shortVersion).toHtmlEscaped().toStdString());
    Replace(text, "@KQ_BUILD_VERSION@", versions_.build);
    return text;
}

std::string Laying::Run(const std::string& info) {
    std::string desktop = OwnFile("kelvane-quay.desktop.in");
    Replace(desktop, "@KQ_INSTALLED_AT@", options_.installedAt);

    std::string error = Copy(options_.launcher, kLauncherFile, 0755);
    const auto then = [&error](const std::string& next) { error = error.empty() ? next : error; };
    then(Copy(options_.package, kPackageFile, 0644));
    then(Write(kInfoFile, info));
    versions_ = ReadVersions(folder_ + "/Contents");
    then(options_.icon.empty() ? Write(kIconFile, OwnFile("ico_72_tessaly.png"))
                               : Copy(options_.icon, kIconFile, 0644));
    if (!options_.levels.empty()) {
        then(Copy(options_.levels, kLevelFile, 0644));
    }
    then(Write(kSystemIconFile, OwnFile("KelvaneQuay.icns")));
    then(Write(kDesktopFile, desktop));
    then(Write(kPropertyListFile, PropertyList()));
    then(Write(kTypeFile, "APPL????"));
    return error;
}

// What is wrong with what the bundle is to be made of.
void CheckParts(const Options& options, const std::string& info, Findings& findings) {
    struct stat launcher = {};
    launcher.st_mode = S_IXUSR;  // a file that is not there fails its copying
    if (stat(options.launcher.c_str(), &launcher) == 0 && !S_ISREG(launcher.st_mode)) {
        findings.Add(Code::BundleLauncherMissing, options.launcher);
    } else if ((launcher.st_mode & S_IXUSR) == 0) {
        findings.Add(Code::BundleLauncherNotExecutable, options.launcher);
    }
    if (info.empty()) {
        findings.Add(Code::InfoMissing, kInfoEntry);
    }
    std::string icon;
    if (!options.icon.empty() && !(ReadWholeFile(options.icon, 8, icon) && IsPng(icon))) {
        findings.Add(Code::BundleIcon, options.icon);
    }
    if (!options.levels.empty() && Config().read(options.levels) != 0) {
        findings.Add(Code::BundleLevels, options.levels);
    }
}

// Whether a bundle, or nothing, stands at the path: anything else is not replaced.
bool MayReplace(const std::string& path) {
    struct stat info = {};
    return lstat(path.c_str(), &info) != 0 ||
           (S_ISDIR(info.st_mode) &&
            (lstat((path + "/" + kLauncherFile).c_str(), &info) == 0 || rmdir(path.c_str()) == 0));
}

// Puts the laid folder into its place; an old bundle is moved aside first and removed last.
std::string PutInPlace(const std::string& laid, const std::string& output) {
    struct stat info = {};
    if (lstat(output.c_str(), &info) != 0) {
        return rename(laid.c_str(), output.c_str()) == 0 ? std::string() : SystemError(output);
    }
    const std::string old = laid + ".old";
    if (rename(output.c_str(), old.c_str()) != 0) {
        return SystemError(output);
    }
    if (rename(laid.c_str(), output.c_str()) != 0) {
        std::string error = SystemError(output);
        rename(old.c_str(), output.c_str());
        return error;
    }
    RemoveTree(old);
    return {};
}

bool IsGoodPlace(const std::string& path) {
    return !path.empty() && path[0] == '/' && Printable(path) == path &&
           path.find_first_of("\"`$%\\") == std::string::npos;
}

int ReportDefects(const Findings& findings, bool json) {
    if (json) {
        return PrintJson(kCommand, {{QStringLiteral("findings"), ToJson(findings)}}, kExitDefects);
    }
    PrintFindings(findings);
    PrintLine(std::to_string(findings.Total()) + " defects: no bundle was made");
    return kExitDefects;
}

int LayBundle(const Options& options, const std::string& info, bool json) {
    const std::string folder = MakeFolderBeside(options.output);
    if (folder.empty()) {
        return Fail(kCommand, json, SystemError(options.output));
    }
    Laying laying(options, folder);
    std::string error = laying.Run(info);
    Findings findings;
    if (error.empty() && !IsBuildNumber(laying.versions().build)) {
        findings.Add(laying.versions().build.empty() ? Code::InfoNoBuild : Code::InfoBuildNoNumber, kInfoEntry,
                     "\"" + Printable(laying.versions().build) + "\"");
    }
    if (error.empty() && findings.IsEmpty() && !IsInterrupted()) {
        error = PutInPlace(folder, options.output);
    }
    RemoveTree(folder);
    if (!error.empty()) {
        return Fail(kCommand, json, error);
    }
    if (!findings.IsEmpty()) {
        return ReportDefects(findings, json);
    }
    if (IsInterrupted()) {
        EndInterrupted();
    }
    if (json) {
        return PrintJson(kCommand,
                         {{QStringLiteral("output"), Q(options.output)},
                          {QStringLiteral("versions"), ToJson(laying.versions())},
                          {QStringLiteral("installed_at"), Q(options.installedAt)},
                          {QStringLiteral("findings"), QJsonArray()}},
                         kExitGood);
    }
    PrintLine(options.output + ": build " + laying.versions().build);
    return kExitGood;
}

}  // namespace

int RunBundle(const QStringList& arguments) {
    CommandLine line(kCommand,
                     "Lays the bundle that users start: the launcher, the package, INFO as the package has it, icons,\n"
                     "Info.plist for macOS and a desktop entry for Linux. A bundle that stands there is replaced as a\n"
                     "whole.",
                     nullptr, nullptr);
    line.AddOption("launcher", nullptr, "BIN", "The launcher's binary.");
    line.AddOption("package", nullptr, "KPK", "The package.");
    line.AddOption("output", "o", "BUNDLE", "The bundle's folder, KelvaneQuay.app.");
    line.AddOption("icon", nullptr, "PNG", "The icon of the progress dialog; the product's own without it.");
    line.AddOption("levels", nullptr, "FILE", "The log's level file; none without it.");
    line.AddOption("installed-at", nullptr, "FOLDER",
                   "Where the bundle will lie on users' Linux machines, for its desktop entry; /opt/KelvaneQuay.app\n"
                   "without it.");
    if (!line.Parse(arguments, {QStringLiteral("launcher"), QStringLiteral("package"), QStringLiteral("output")})) {
        return line.exitCode();
    }
    // Whoever makes the bundle makes it for everyone.
    umask(022);
    Options options;
    options.launcher = line.Value("launcher");
    options.package = line.Value("package");
    options.icon = line.Value("icon");
    options.levels = line.Value("levels");
    options.output = line.Value("output");
    options.installedAt = line.IsSet("installed-at") ? line.Value("installed-at") : "/opt/KelvaneQuay.app";
    while (options.output.size() > 1 && options.output.back() == '/') {
        options.output.pop_back();
    }
    if (!IsGoodPlace(options.installedAt)) {
        return Fail(kCommand, line.isJson(), "--installed-at: an absolute path without quotes and the like is wanted");
    }
    if (!MayReplace(options.output)) {
        return Fail(kCommand, line.isJson(), options.output + ": stands there already, and is no bundle");
    }
    std::string info;
    std::string error;
    if (!ReadPackageInfo(options.package, info, error)) {
        return Fail(kCommand, line.isJson(), error);
    }
    Findings findings;
    CheckParts(options, info, findings);
    return findings.IsEmpty() ? LayBundle(options, info, line.isJson()) : ReportDefects(findings, line.isJson());
}
