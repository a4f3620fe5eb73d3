#include "cloud-service.h"

#include <QCoreApplication>
#include <QDir>
#include <initializer_list>

#include "extractor.h"
#include "file/file-op.h"
#include "log/log-statement.h"
#include "path-table.h"
#include "version-info.h"

namespace {

// The name under which the old copy is kept.
std::string GetAppBackupDir(const std::string& path, int index) {
    std::string name;
    if (!BackupName(path, index, name)) {
        // No newline of its own: the log's readers know the line so.
        KQ_LOG_ERROR(kServiceComponent, "snprintf failed (continuing without postfix)");
    }
    return name;
}

// Reads the INFO file at `path` into the fields for the major, minor, build and icon overlay version. A key that the
// file lacks leaves its field as it was.
void LoadVersions(const std::string& path, std::initializer_list<std::string*> fields) {
    const VersionInfo info = ReadVersionInfo(path);
    auto field = fields.begin();
    for (const VersionKey& key : kVersionKeys) {
        **field = (info.*key.field).value_or(**field);
        ++field;
    }
}

// Moves the old copy to the first backup name that takes it. `attempt` is then the name's index. 0 or -1.
int BackUp(const std::string& appDir, std::string& backupPath, int& attempt) {
    for (attempt = 0; attempt <= kLastBackupIndex; ++attempt) {
        backupPath = GetAppBackupDir(appDir, attempt);
        if (FSRename(appDir, backupPath, false) == 0) {
            return 0;
        }
        // The next name at once, without a pause: it is a leftover that stands in the way, and it will not go away.
        KQ_LOG_ERROR(kServiceComponent, "failed to backup app from '%s' -> '%s'\n", appDir.c_str(), backupPath.c_str());
    }
    KQ_LOG_ERROR(kServiceComponent, "failed to backup app from '%s' -> '%s' at max retries, exiting\n", appDir.c_str(),
                 backupPath.c_str());
    return -1;
}

// Puts the old copy back after a failed extraction, if there was one.
void RollBack(const std::string& appDir, const std::string& backupPath) {
    if (backupPath.empty()) {
        // What was unpacked is deliberately left: there is nothing better to start.
        KQ_LOG_ERROR(kServiceComponent, "Failed to extract package, and no old installation to rollback\n");
        return;
    }
    KQ_LOG_ERROR(kServiceComponent, "Failed to extract package, rollback to old installation\n");
    FSRemove(appDir, false);
    FSRename(backupPath, appDir, false);
}

}  // namespace

Service::Service() : timeout(10000), appPath(TablePath(kUserKelvaneQuayAppPath).toStdString()) {
}

Service::~Service() = default;

void Service::SetTimeout(int value) {
    timeout = value;
}

QString Service::GetUserInstallPath() {
    return QDir::homePath();
}

void Service::LoadSourceVersion() {
    const std::string path = (TablePath(kUserKelvaneQuayResourcePath) + InResources(kInfoFile)).toStdString();
    if (!IsFileExist(path, false)) {
        KQ_LOG_INFO(kServiceComponent, "source does not exist\n");
        return;
    }
    LoadVersions(path, {&sourceMajorVersion, &sourceMinorVersion, &sourceBuildVersion, &sourceIconOverlayVersion});
    KQ_LOG_INFO(kServiceComponent, "source_version = (%s, %s, %s, %s)\n", sourceMajorVersion.c_str(),
                sourceMinorVersion.c_str(), sourceBuildVersion.c_str(), sourceIconOverlayVersion.c_str());
}

void Service::LoadTargetVersion() {
    // Deliberately no look whether the file is there: for a bundle without INFO the line shows four empty versions.
    const std::string path = (TablePath(kRootResourcePath) + InResources(kInfoFile)).toStdString();
    LoadVersions(path, {&targetMajorVersion, &targetMinorVersion, &targetBuildVersion, &targetIconOverlayVersion});
    KQ_LOG_INFO(kServiceComponent, "target_version = (%s, %s, %s, %s)\n", targetMajorVersion.c_str(),
                targetMinorVersion.c_str(), targetBuildVersion.c_str(), targetIconOverlayVersion.c_str());
}

int Service::PrepareUserEnv() {
    const std::string appDir = appPath;
    std::string backupPath;
    int attempt = 0;
    if (IsFileExist(appDir, false) && BackUp(appDir, backupPath, attempt) != 0) {
        return -1;
    }
    if (ExtractPackage() != 0) {
        RollBack(appDir, backupPath);
        return -1;
    }
    KQ_LOG_INFO(kServiceComponent, "user installation is ready, removing backup app\n");
    // Not only the one that was made: leftovers of earlier runs took the names before it, and they go as well.
    for (int index = 0; index <= attempt; ++index) {
        FSRemove(GetAppBackupDir(appDir, index), false);
    }
    return 0;
}

int Service::ExtractPackage() {
    const std::string package = (TablePath(kRootResourcePath) + InResources(kPackageFile)).toStdString();
    const std::string target = TablePath(kUserKelvaneQuayAppPath).toStdString();
    if (FSMKDir(target, true) < 0) {
        KQ_LOG_ERROR(kServiceComponent, "failed to create folder: '%s'\n", target.c_str());
        return -1;
    }
    KQ_LOG_INFO(kServiceComponent, "extract package: '%s' -> '%s'\n", package.c_str(), target.c_str());
    Extractor extractor;
    extractor.sourcePath = package;
    extractor.destPath = target;
    return extractor.Extract();
}

void Service::MigrateService() {
    const QString oldRoot = QDir::toNativeSeparators(TablePath(kUserTessalyPath));
    const QString newRoot = QDir::toNativeSeparators(TablePath(kUserKelvaneQuayPath));
    if (!IsFileExist(newRoot.toStdString(), true) && FSMKDir(newRoot.toStdString(), true) < 0) {
        KQ_LOG_ERROR(kServiceComponent, "Failed to create Kelvane Quay folder\n");
        return;
    }
    const std::string oldData = QDir::toNativeSeparators(oldRoot + "/" + kDataFolder).toStdString();
    const std::string newData = QDir::toNativeSeparators(newRoot + "/" + kDataFolder).toStdString();
    if (IsFileExist(oldData, true) && FSRename(oldData, newData, true) < 0) {
        KQ_LOG_ERROR(kServiceComponent, "Failed to move data to Kelvane Quay folder\n");
    }
    // Deliberately without a look at how the move went: the older product goes in any case.
    if (IsFileExist(oldRoot.toStdString(), true) && FSRemove(oldRoot.toStdString(), false) < 0) {
        KQ_LOG_ERROR(kServiceComponent, "Failed to remove old .Tessaly folder\n");
    }
}

void Service::RemoveAgedFolders() {
    const std::string agedApp = (TablePath(kUserTessalyPath) + "/" + kAgedFolder).toStdString();
    KQ_LOG_INFO(kServiceComponent, "removing aged app folder %s\n", agedApp.c_str());
    FSRemove(agedApp, false);
}

int Service::FSCopyPath(const std::string& src, const std::string& dst) {
    KQ_LOG_DEBUG(kServiceComponent, "copy from '%s' to '%s'\n", src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) < 0) {
        KQ_LOG_ERROR(kServiceComponent, "FSCopyPath: failed to stat source '%s'\n", src.c_str());
        return -1;
    }
    if (!info.exist) {
        KQ_LOG_ERROR(kServiceComponent, "FSCopyPath: source path '%s' does not exist\n", src.c_str());
        return -1;
    }
    if (info.type != FILE_TYPE_DIRECTORY) {
        // The result is dropped, deliberately: a single file counts as copied, only a folder's files are checked.
        FSCopy(src, dst, false, false);
        return 0;
    }
    if (FSMKDir(dst, true) < 0) {
        KQ_LOG_ERROR(kServiceComponent, "FSCopyPath: failed to create dest folder '%s'\n", dst.c_str());
        return -1;
    }
    DIR_HANDLE listing = {};
    if (FSOpenDir(src, 0, listing) < 0) {
        // A folder that can't be listed counts as copied, empty; the two blanks are the line's own.
        KQ_LOG_WARNING(kServiceComponent, "FSCopyPath: failed to create handle  for src '%s' failed\n", src.c_str());
        return 0;
    }
    int result = 0;
    DIR_ENTRY entry = {};
    while (result == 0 && FSReadDir(listing, entry) > 0) {
        if (entry.name == "." || entry.name == "..") {
            continue;
        }
        const std::string from = src + "/" + entry.name;
        const std::string to = dst + "/" + entry.name;
        const int copied = entry.type == FILE_TYPE_DIRECTORY ? FSCopyPath(from, to) : FSCopy(from, to, false, false);
        if (copied < 0) {
            KQ_LOG_ERROR(kServiceComponent, "FSCopyPath: failed to copy from '%s' to '%s'\n", from.c_str(), to.c_str());
            result = -1;
        }
    }
    FSCloseDir(listing);
    return result;
}

PackageInfo::PackageInfo() {
    const QString application = QCoreApplication::applicationDirPath();
    imagesPath = (application + "/images").toUtf8().constData();
    logPath = (QDir::homePath() + "/.KelvaneQuay_log").toUtf8().constData();
    debugConfPath = (application + InResources(kLevelFile)).toUtf8().constData();
    packagePath = (application + InResources(kPackageFile)).toUtf8().constData();
    confPath = (application + "/conf").toUtf8().constData();
}
