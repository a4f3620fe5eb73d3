#include "checks.h"

#include <algorithm>
#include <map>

#include "files.h"
#include "log/config.h"
#include "product-layout.h"
#include "rules.h"
#include "text.h"

namespace {

// A bundle's own files: the defect that each one's absence is, null for those that may be missing, and how much of it
// is looked at.
constexpr struct {
    const char* path;
    const Defect* missing;
    std::size_t wanted;
} kFiles[] = {
    {kLauncherFile, &defects::BundleLauncherMissing, kProgramFront},
    {kInfoFile, &defects::BundleInfoMissing, kLargestInfo},
    {kPackageFile, &defects::BundlePackageMissing, 0},
    {kIconFile, &defects::BundleIcon, kLargestText},
    {kPropertyListFile, &defects::BundlePropertyListMissing, kLargestText},
    {kLevelFile, nullptr, 0},
    {kDesktopFile, nullptr, kLargestText},
    {kTypeFile, nullptr, 0},
    {kSystemIconFile, nullptr, 0},
};

using Files = std::map<std::string, const Entry*>;

// What any object of a bundle must be. Those of its own that are files go into `files`.
void CheckObject(const Entry& entry, Files& files, Findings& findings) {
    bool isWrong = entry.kind == Kind::Other;
    for (const auto& file : kFiles) {
        const std::string path = file.path;
        if (path == entry.path && entry.kind == Kind::File) {
            files[path] = &entry;
        }
        isWrong = isWrong || (path == entry.path && entry.kind != Kind::File) ||
                  (path.compare(0, entry.path.size() + 1, entry.path + "/") == 0 && entry.kind != Kind::Folder);
    }
    if (LeftoverKind(entry.path) != nullptr) {
        findings.Add(defects::BundleLitter, entry.path);
    }
    const bool isLauncher = entry.path == kLauncherFile;
    const unsigned needed = entry.kind == Kind::Folder || isLauncher ? 0555 : 0444;
    if (isWrong) {
        findings.Add(defects::BundleKind, entry.path);
    } else if (isLauncher && (entry.mode & S_IXUSR) == 0) {
        findings.Add(defects::BundleLauncherNotExecutable, kLauncherFile);
    } else if (entry.kind != Kind::Link && ((entry.mode & needed) != needed || (entry.mode & 06002) != 0)) {
        findings.Add(defects::BundleMode, entry.path, Octal(entry.mode));
    }
}

// What the launcher and the systems read.
void CheckFiles(const std::string& bundle, Files& files, Program client, Findings& findings) {
    std::string program;
    if (const Entry* icon = files[kIconFile]; icon != nullptr && !IsIcon(icon->content)) {
        findings.Add(defects::BundleIcon, kIconFile);
    }
    if (files[kLevelFile] != nullptr && Config().read(bundle + "/" + kLevelFile) != 0) {
        findings.Add(defects::BundleLevels, kLevelFile);
    }
    if (const Entry* list = files[kPropertyListFile];
        list != nullptr &&
        (!PropertyListValue(list->content, "CFBundleExecutable", program) || program != LastName(kLauncherFile))) {
        findings.Add(defects::BundlePropertyListWrong, kPropertyListFile, "it names \"" + program + "\"");
    }
    const Entry* desktop = files[kDesktopFile];
    const std::string fault = desktop == nullptr ? "" : DesktopEntryFault(desktop->content, kLauncherFile);
    if (!fault.empty()) {
        findings.Add(defects::BundleDesktopEntry, kDesktopFile, fault);
    }
    if (const Entry* file = files[kLauncherFile]) {
        const Program launcher = Recognise(file->content, file->size);
        const auto isBound = [](Program kind) { return kind == Program::Elf || kind == Program::MachO; };
        if (launcher == Program::None || (isBound(launcher) && isBound(client) && launcher != client)) {
            findings.Add(defects::LauncherNoProgram, kLauncherFile);
        }
    }
}

void CompareVersions(const VersionInfo& bundle, const VersionInfo& package, Findings& findings) {
    const std::string build = bundle.buildVersion.value_or("");
    if (!IsBuildNumber(build)) {
        findings.Add(defects::BundleBuildNoNumber, kInfoFile, "\"" + build + "\"");
    }
    if (package.buildVersion && build != *package.buildVersion) {
        findings.Add(defects::BundleBuildDiffers, kInfoFile,
                     "the bundle's is \"" + build + "\", the package's \"" + *package.buildVersion + "\"");
    } else if (package.buildVersion &&
               std::any_of(std::begin(kVersionKeys), std::end(kVersionKeys),
                           [&](const VersionKey& key) { return bundle.*key.field != package.*key.field; })) {
        findings.Add(defects::BundleVersionDiffers, kInfoFile);
    }
}

}  // namespace

Error CheckBundle(const std::string& bundle, std::int64_t limit, Package* package, VersionInfo& versions,
                  Findings& findings) {
    const auto wanted = [](const std::string& path) {
        const auto* file = std::find_if(std::begin(kFiles), std::end(kFiles),
                                        [&path](const auto& known) { return path == known.path; });
        return file == std::end(kFiles) ? 0 : file->wanted;
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
    for (const auto& file : kFiles) {
        if (file.missing != nullptr && !Exists(bundle + "/" + file.path)) {
            findings.Add(*file.missing, file.path);
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
