#include "checks.h"

#include <algorithm>
#include <map>

#include "files.h"
#include "log/config.h"
#include "product-layout.h"
#include "text.h"

namespace {

// A bundle's own files: the defect that each one's absence is, none for those that may be missing, and how much of it
// is looked at.
struct OwnFile {
    std::optional<Defect> missing;
    std::size_t wanted;
};
const std::map<std::string, OwnFile> kFiles = {
    {kLauncherFile, {Defect::BundleLauncherMissing, kProgramFront}},
    {kInfoFile, {Defect::BundleInfoMissing, kLargestInfo}},
    {kPackageFile, {Defect::BundlePackageMissing, 0}},
    {kIconFile, {Defect::BundleIcon, kLargestText}},
    {kPropertyListFile, {Defect::BundlePropertyListMissing, kLargestText}},
    {kLevelFile, {{}, 0}},
    {kDesktopFile, {{}, kLargestText}},
    {kTypeFile, {{}, 0}},
    {kSystemIconFile, {{}, 0}},
};

using Files = std::map<std::string, const Entry*>;

// What any object of a bundle must be. Those of its own that are files go into `files`.
void CheckObject(const Entry& entry, Files& files, Findings& findings) {
    const std::string front = entry.path + "/";
    const bool isOwn = kFiles.count(entry.path) != 0;
    const bool isFolder = entry.kind == Kind::Folder;
    const bool holdsOwn = std::any_of(kFiles.begin(), kFiles.end(), [&front](const auto& file) {
        return file.first.compare(0, front.size(), front) == 0;
    });
    const bool isWrong = entry.kind == Kind::Other || (isOwn && entry.kind != Kind::File) || (holdsOwn && !isFolder);
    if (isOwn && !isWrong) {
        files[entry.path] = &entry;
    }
    if (LeftoverKind(entry.path)) {
        findings.Add(Defect::BundleLitter, entry.path);
    }
    const bool isLauncher = entry.path == kLauncherFile;
    const unsigned needed = isFolder || isLauncher ? 0555 : 0444;
    if (isWrong) {
        findings.Add(Defect::BundleKind, entry.path);
    } else if (isLauncher && (entry.mode & S_IXUSR) == 0) {
        findings.Add(Defect::BundleLauncherNotExecutable, kLauncherFile);
    } else if (entry.kind != Kind::Link && ((entry.mode & needed) != needed || (entry.mode & 06002) != 0)) {
        findings.Add(Defect::BundleMode, entry.path, Octal(entry.mode));
    }
}

// What the launcher and the systems read.
void CheckFiles(const std::string& bundle, Files& files, Program client, Findings& findings) {
    if (const Entry* icon = files[kIconFile]; icon != nullptr && !IsIcon(icon->content)) {
        findings.Add(Defect::BundleIcon, kIconFile);
    }
    if (files[kLevelFile] != nullptr && Config().read(bundle + "/" + kLevelFile) != 0) {
        findings.Add(Defect::BundleLevels, kLevelFile);
    }
    const Entry* list = files[kPropertyListFile];
    const std::string program = list == nullptr ? "" : ExecutableOf(list->content);
    if (list != nullptr && program != LastName(kLauncherFile)) {
        findings.Add(Defect::BundlePropertyListWrong, kPropertyListFile, "it names \"" + program + "\"");
    }
    const Entry* desktop = files[kDesktopFile];
    const std::string fault = desktop == nullptr ? "" : DesktopEntryFault(desktop->content, kLauncherFile);
    if (!fault.empty()) {
        findings.Add(Defect::BundleDesktopEntry, kDesktopFile, fault);
    }
    if (const Entry* file = files[kLauncherFile]) {
        const Program launcher = Recognise(file->content, file->size);
        if (launcher <= Program::Broken || (std::min(launcher, client) >= Program::Elf && launcher != client)) {
            findings.Add(Defect::LauncherNoProgram, kLauncherFile);
        }
    }
}

void CompareVersions(const VersionInfo& bundle, const VersionInfo& package, Findings& findings) {
    const std::string build = bundle.buildVersion.value_or("");
    if (!IsBuildNumber(build)) {
        findings.Add(Defect::BundleBuildNoNumber, kInfoFile, "\"" + build + "\"");
    }
    if (package.buildVersion && build != *package.buildVersion) {
        findings.Add(Defect::BundleBuildDiffers, kInfoFile,
                     "the bundle's is \"" + build + "\", the package's \"" + *package.buildVersion + "\"");
    } else if (package.buildVersion &&
               std::any_of(std::begin(kVersionKeys), std::end(kVersionKeys),
                           [&](const VersionKey& key) { return bundle.*key.field != package.*key.field; })) {
        findings.Add(Defect::BundleVersionDiffers, kInfoFile);
    }
}

}  // namespace

Error CheckBundle(const std::string& bundle, std::int64_t limit, Package* package, VersionInfo& versions,
                  Findings& findings) {
    const auto wanted = [](const std::string& path) {
        const auto file = kFiles.find(path);
        return file == kFiles.end() ? 0 : file->second.wanted;
    };
    std::vector<Entry> tree;
    Files files;
    Error error = ScanTree(bundle, wanted, tree);
    Entry root;
    Look(bundle, ".", root);
    tree.push_back(root);
    for (const Entry& entry : tree) {
        CheckObject(entry, files, findings);
    }
    for (const auto& [path, file] : kFiles) {
        if (file.missing && !KindAt(bundle + "/" + path)) {
            findings.Add(*file.missing, path);
        }
    }
    if (!error && package != nullptr && package->file.empty() && files[kPackageFile] != nullptr) {
        error = CheckPackage(bundle + "/" + kPackageFile, limit, *package, findings);
    }
    CheckFiles(bundle, files, package == nullptr ? Program::None : package->client, findings);
    if (const Entry* info = files[kInfoFile]; info != nullptr && !error) {
        error = ReadVersions(info->content, versions);
        CompareVersions(versions, package == nullptr ? VersionInfo() : package->versions, findings);
    }
    return error;
}
