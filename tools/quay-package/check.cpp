#include <sys/stat.h>
#include <unistd.h>

#include <sstream>

#include "archive-check.h"
#include "command.h"
#include "content-check.h"
#include "file/file-op.h"
#include "interruption.h"
#include "log/config.h"
#include "output-file.h"
#include "product-layout.h"
#include "progress.h"
#include "rehearsal.h"
#include "report.h"
#include "tree-scan.h"
#include "version-probe.h"

namespace {

constexpr char kCommand[] = "check";
constexpr std::size_t kLargestText = 1 << 20;
constexpr std::int64_t kDefaultLimit = std::int64_t{4} << 30;

struct Options {
    std::string operand;
    std::string package;
    bool isBundle = false;
    bool rehearse = true;
    bool keep = false;
    std::int64_t limit = kDefaultLimit;
};

struct Outcome {
    Findings findings;
    std::string format;
    std::int64_t entries = 0;
    std::int64_t bytes = 0;
    Versions package;
    Versions bundle;
    const char* rehearsal = "off";
    std::string error;    // why the check could not be made
    std::string scratch;  // the folder that was kept
};

bool IsFile(const std::string& path, struct stat& info) {
    return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

void CheckBundlePropertyList(const std::string& bundle, Findings& findings) {
    std::string bytes;
    std::string name;
    if (!ReadWholeFile(bundle + "/" + kPropertyListFile, kLargestText, bytes)) {
        findings.Add(Code::BundlePropertyListMissing, kPropertyListFile);
    } else if (!PropertyListValue(bytes, "CFBundleExecutable", name)) {
        findings.Add(Code::BundlePropertyListWrong, kPropertyListFile, "it has no CFBundleExecutable");
    } else if (name != LastName(kLauncherFile)) {
        findings.Add(Code::BundlePropertyListWrong, kPropertyListFile, "it names \"" + Printable(name) + "\"");
    }
}

// A bundle may have no desktop entry, but not a wrong one.
void CheckDesktopEntry(const std::string& bundle, Findings& findings) {
    std::string bytes;
    if (!ReadWholeFile(bundle + "/" + kDesktopFile, kLargestText, bytes)) {
        return;
    }
    std::istringstream lines(bytes);
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, 5, "Exec=") != 0) {
            continue;
        }
        std::string program = line.substr(5);
        if (program.size() > 1 && program.front() == '"') {
            program = program.substr(1, program.find('"', 1) - 1);
        }
        const std::string end = std::string("/") + kLauncherFile;
        if (program.front() == '/' && program.size() > end.size() &&
            program.compare(program.size() - end.size(), end.size(), end) == 0) {
            return;
        }
        findings.Add(Code::BundleDesktopEntry, kDesktopFile, "it starts \"" + Printable(program) + "\"");
        return;
    }
    findings.Add(Code::BundleDesktopEntry, kDesktopFile, "it has no Exec");
}

// Leftovers, and modes with which users can't start a bundle that somebody else has installed.
void CheckBundleTree(const std::string& bundle, Findings& findings) {
    TreeScan scan(bundle);
    const auto visit = [&findings](const TreeEntry& entry) {
        if (IsAppleDouble(entry.path) || IsLitter(FSBaseName(entry.path))) {
            findings.Add(Code::BundleLitter, entry.path);
        }
        const unsigned mode = entry.info.st_mode;
        const unsigned needed = S_ISDIR(mode) || entry.path == kLauncherFile ? 0555 : 0444;
        const bool isLink = S_ISLNK(mode);
        const bool isReadable = (mode & needed) == needed || (entry.path == kLauncherFile && (mode & S_IXUSR) == 0);
        if (!isLink && (!isReadable || (mode & (S_ISUID | S_ISGID)) != 0)) {
            findings.Add(Code::BundleMode, entry.path);
        }
        return TreeScan::Continue;
    };
    if (!scan.Walk(visit)) {
        findings.Add(Code::BundleMode, bundle, scan.error());
    }
}

void CheckBundle(const std::string& bundle, Outcome& outcome) {
    Findings& findings = outcome.findings;
    struct stat info = {};
    if (!IsFile(bundle + "/" + kLauncherFile, info)) {
        findings.Add(Code::BundleLauncherMissing, kLauncherFile);
    } else if ((info.st_mode & S_IXUSR) == 0) {
        findings.Add(Code::BundleLauncherNotExecutable, kLauncherFile);
    }
    if (!IsFile(bundle + "/" + kInfoFile, info)) {
        findings.Add(Code::BundleInfoMissing, kInfoFile);
    } else {
        outcome.bundle = ReadVersions(bundle + "/Contents");
        if (!IsBuildNumber(outcome.bundle.build)) {
            findings.Add(Code::BundleBuildNoNumber, kInfoFile, "\"" + Printable(outcome.bundle.build) + "\"");
        }
    }
    if (!IsFile(bundle + "/" + kPackageFile, info)) {
        findings.Add(Code::BundlePackageMissing, kPackageFile);
    }
    std::string icon;
    if (!ReadWholeFile(bundle + "/" + kIconFile, 8, icon) || !IsPng(icon)) {
        findings.Add(Code::BundleIcon, kIconFile);
    }
    if (IsFile(bundle + "/" + kLevelFile, info) && Config().read(bundle + "/" + kLevelFile) != 0) {
        findings.Add(Code::BundleLevels, kLevelFile);
    }
    CheckBundlePropertyList(bundle, findings);
    CheckDesktopEntry(bundle, findings);
    CheckBundleTree(bundle, findings);
}

// The package's versions, as the launcher will read them.
void CheckInfo(const Options& options, const std::string& info, const Scratch& scratch, Outcome& outcome) {
    Findings& findings = outcome.findings;
    const std::string contents = scratch.path() + "/info/Contents";
    FSMKDir(contents + "/Resources", true);
    outcome.error = WriteWholeFile(contents + "/Resources/INFO", info, 0644);
    outcome.package = ReadVersions(contents);
    const Versions& package = outcome.package;
    if (package.build.empty()) {
        findings.Add(Code::InfoNoBuild, kInfoEntry);
    } else if (!IsBuildNumber(package.build)) {
        findings.Add(Code::InfoBuildNoNumber, kInfoEntry, "\"" + Printable(package.build) + "\"");
    }
    if (package.majorVersion.empty() || package.minorVersion.empty() || package.iconOverlay.empty()) {
        findings.Add(Code::InfoIncomplete, kInfoEntry);
    }
    const Versions& bundle = outcome.bundle;
    if (!options.isBundle || findings.Has(Code::BundleInfoMissing)) {
        return;
    }
    if (bundle.build != package.build) {
        findings.Add(
            Code::BundleBuildDiffers, kInfoFile,
            "the bundle's is \"" + Printable(bundle.build) + "\", the package's \"" + Printable(package.build) + "\"");
    } else if (bundle.majorVersion != package.majorVersion || bundle.minorVersion != package.minorVersion ||
               bundle.iconOverlay != package.iconOverlay) {
        findings.Add(Code::BundleVersionDiffers, kInfoFile);
    }
}

// After an installation the product's own decision has to be that there is nothing to do.
void CheckNextStart(const Options& options, const Scratch& scratch, Findings& findings) {
    const std::string home = RehearsalHome(scratch);
    const std::string bundle = options.isBundle ? options.operand : home + "/.KelvaneQuay/KelvaneQuay.app";
    const Decision decision = Decide(home, bundle + "/Contents/MacOS");
    if (decision.isUpgradeNeeded) {
        findings.Add(Code::RehearsalUpgradesAgain, options.operand,
                     "installed is build \"" + Printable(decision.source.build) + "\", the bundle's is \"" +
                         Printable(decision.target.build) + "\"" +
                         (decision.installed ? "" : ", and the client's binary is missing"));
    }
}

void CheckPackage(const Options& options, Outcome& outcome) {
    Scratch scratch(options.keep);
    if (!scratch.Make()) {
        outcome.error = SystemError("no folder for the rehearsal");
        return;
    }
    std::int64_t seen = 0;
    Progress progress("checking");
    const auto advance = [&seen, &progress, &scratch] {
        progress.Update(0, ++seen);
        if (IsInterrupted()) {
            scratch.Remove();
            EndInterrupted();
        }
    };
    ArchiveCheck archive(options.package, outcome.findings, advance, !options.rehearse);
    const bool isComplete = archive.Run();
    outcome.format = archive.format();
    outcome.entries = archive.entries();
    outcome.bytes = archive.bytes();
    if (archive.bytes() > options.limit) {
        outcome.findings.Add(Code::TooLarge, options.package,
                             SizeText(archive.bytes()) + ", the limit is " + SizeText(options.limit));
    }
    if (archive.hasInfo()) {
        CheckInfo(options, archive.info(), scratch, outcome);
    }
    if (!options.rehearse || archive.entries() == 0) {
        return;
    }
    if (!archive.IsSafeToUnpack() || outcome.findings.Has(Code::TooLarge)) {
        outcome.rehearsal = "skipped";
        return;
    }
    if (scratch.FreeBytes() < archive.bytes()) {
        outcome.error = scratch.path() + ": too little space for the rehearsal: " + SizeText(archive.bytes());
        return;
    }
    const bool isInstalled = Rehearse(options.package, scratch, archive.nodes(), outcome.findings);
    outcome.rehearsal = isInstalled ? "done" : "failed";
    if (isInstalled && isComplete) {
        CheckNextStart(options, scratch, outcome.findings);
    }
    if (options.keep) {
        outcome.scratch = scratch.path();
    }
}

int PrintCodes(bool json) {
    QJsonArray codes;
    for (const CodeText& text : AllCodes()) {
        if (json) {
            codes.append(QJsonObject{{QStringLiteral("code"), Q(IdOf(text.code))},
                                     {QStringLiteral("what"), QString::fromUtf8(text.what)},
                                     {QStringLiteral("why"), QString::fromUtf8(text.why)},
                                     {QStringLiteral("mend"), QString::fromUtf8(text.mend)}});
        } else {
            PrintLine("| " + IdOf(text.code) + " | " + text.what + " | " + text.why + " | " + text.mend + " |");
        }
    }
    return json ? PrintJson(kCommand, {{QStringLiteral("codes"), codes}}, kExitGood) : kExitGood;
}

int Report(const Options& options, const Outcome& outcome, bool json) {
    if (!outcome.error.empty()) {
        return Fail(kCommand, json, outcome.error);
    }
    const int exitCode = outcome.findings.IsEmpty() ? kExitGood : kExitDefects;
    if (json) {
        QJsonObject object = {
            {QStringLiteral("operand"), Q(options.operand)},
            {QStringLiteral("kind"), options.isBundle ? QStringLiteral("bundle") : QStringLiteral("package")},
            {QStringLiteral("format"), Q(outcome.format)},
            {QStringLiteral("entries"), static_cast<double>(outcome.entries)},
            {QStringLiteral("bytes"), static_cast<double>(outcome.bytes)},
            {QStringLiteral("package_versions"), ToJson(outcome.package)},
            {QStringLiteral("rehearsal"), QString::fromLatin1(outcome.rehearsal)},
            {QStringLiteral("count"), static_cast<double>(outcome.findings.Total())},
            {QStringLiteral("findings"), ToJson(outcome.findings)},
        };
        if (options.isBundle) {
            object.insert(QStringLiteral("bundle_versions"), ToJson(outcome.bundle));
        }
        return PrintJson(kCommand, object, exitCode);
    }
    PrintFindings(outcome.findings);
    PrintLine(options.operand + ": " +
              (outcome.findings.IsEmpty() ? "good" : std::to_string(outcome.findings.Total()) + " defects") +
              ", build " + Printable(outcome.package.build) + ", " + std::to_string(outcome.entries) + " entries, " +
              SizeText(outcome.bytes) + " unpacked, " + outcome.format + ", rehearsal " + outcome.rehearsal);
    if (!outcome.scratch.empty()) {
        PrintLine("the rehearsal is kept in " + outcome.scratch);
    }
    return exitCode;
}

// An empty text or what is wrong with the options.
std::string TakeOptions(const CommandLine& line, Options& options) {
    options.operand = line.Operand();
    options.rehearse = !line.IsSet("no-rehearsal");
    options.keep = line.IsSet("keep");
    struct stat info = {};
    if (stat(options.operand.c_str(), &info) != 0) {
        return SystemError(options.operand);
    }
    options.isBundle = S_ISDIR(info.st_mode);
    options.package = options.isBundle ? options.operand + "/" + kPackageFile : options.operand;
    if (access(options.package.c_str(), R_OK) != 0 && !options.isBundle) {
        return SystemError(options.package);
    }
    if (line.IsSet("max-unpacked")) {
        bool isNumber = false;
        options.limit = QString::fromStdString(line.Value("max-unpacked")).toLongLong(&isNumber);
        if (!isNumber || options.limit <= 0) {
            return "--max-unpacked: a number of bytes is wanted";
        }
    }
    return {};
}

}  // namespace

int RunCheck(const QStringList& arguments) {
    CommandLine line(kCommand,
                     "Looks for everything that can be wrong with a bundle or a package, and rehearses the\n"
                     "installation in a folder of its own. Any finding makes the exit code 1.",
                     "BUNDLE|KPK", "The bundle's folder, or a package.");
    line.AddFlag("no-rehearsal", "Reads all data, but installs nothing.");
    line.AddFlag("keep", "Keeps the folder of the rehearsal, and says where it is.");
    line.AddFlag("codes", "Prints all codes as a table, and does nothing else.");
    line.AddOption("max-unpacked", nullptr, "BYTES", "The limit for what the package unpacks to; 4 GiB without it.");
    if (!line.Parse(arguments, {}, "codes")) {
        return line.exitCode();
    }
    if (line.IsSet("codes")) {
        return PrintCodes(line.isJson());
    }
    Options options;
    const std::string error = TakeOptions(line, options);
    if (!error.empty()) {
        return Fail(kCommand, line.isJson(), error);
    }
    Outcome outcome;
    if (options.isBundle) {
        CheckBundle(options.operand, outcome);
    }
    if (!outcome.findings.Has(Code::BundlePackageMissing)) {
        CheckPackage(options, outcome);
    }
    return Report(options, outcome, line.isJson());
}
