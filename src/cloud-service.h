// The service that brings the user's private copy of the client up to the version of the started bundle.
#pragma once

#include <QString>
#include <cstdint>
#include <string>

// The log's component of every service.
constexpr char kServiceComponent[] = "service_debug";

// What is the same on every platform: the version data, the install with its backup and rollback, the migration.
//
// "Source" is what is installed in the private copy, "target" what the started bundle carries. A service is made on the
// main thread once the path table is filled, used on the handler thread only, and deleted on the main thread after that
// thread has ended. Operations report by int or bool and by the log; nothing is thrown.
class Service {
public:
    virtual ~Service();

    // Stops the client that runs from the private copy, if one does. Blocks for up to about 15 seconds.
    virtual void StopService() = 0;

    // Stores a limit, of no unit, that no part of the program reads.
    virtual void SetTimeout(int value);

    // Carries the upgrade out. 0: the new copy is in place; anything else: it is not.
    virtual int HandlePackageUpgrade() = 0;

    // The last step of every run: starts the client.
    virtual void PostUpgrade() = 0;

    // The first step of every run: loads both versions.
    virtual void PreUpgrade() = 0;

    // Whether the private copy is missing its binary or is older than the target.
    virtual bool IsNeedUpgrade() = 0;

    // Unpacks the bundle's package into the private copy's folder. 0 or -1.
    virtual int ExtractPackage();

    // Load the four version fields of the INFO file on either side; a key that is missing leaves its field as it was.
    // Source: QSettings::IniFormat.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();

    // Replaces the private copy by the package's: the old copy is moved to a backup name, the package is unpacked, and
    // the old copy is put back if that fails or removed if it succeeds. 0: the new copy is in place. -1: the old copy
    // is where it was, if there was one and it could be put back.
    virtual int PrepareUserEnv();

    // Takes the data of the older product's folder over and removes that folder. Reports to the log only.
    virtual void MigrateService();

    // The user's home folder. Needs no object. Source: QDir::homePath.
    static QString GetUserInstallPath();

    // Removes the older product's leftover application folder, on every run.
    void RemoveAgedFolders();

    // Copies a file or a whole folder; paths are UTF-8. 0 or -1. A single file always gives 0, and a folder that can't
    // be listed counts as an empty one. Nothing in the launcher calls it.
    int FSCopyPath(const std::string& src, const std::string& dst);

protected:
    // Reads the path table: main() must have filled it.
    Service();

    std::int32_t timeout;
    std::string appPath;  // the private copy's folder, UTF-8, fixed from the construction on

    // From the INFO files, UTF-8 as they stand there.
    std::string targetMajorVersion;
    std::string targetMinorVersion;
    std::string targetBuildVersion;
    std::string targetIconOverlayVersion;
    std::string sourceMajorVersion;
    std::string sourceMinorVersion;
    std::string sourceBuildVersion;
    std::string sourceIconOverlayVersion;
};

// Paths that the client family's programs share; all but the log's lie below the application folder. The launcher does
// not use them: its own files lie where product-layout.h says, and the two need not agree.
class PackageInfo {
public:
    // Needs a QCoreApplication, for its folder.
    PackageInfo();

    // All UTF-8.
    std::string imagesPath;
    std::string logPath;
    std::string debugConfPath;
    std::string packagePath;
    std::string confPath;
};
