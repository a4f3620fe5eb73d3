// Where things lie in a bundle, in a client's folder and in a home, and what they are called. All texts are UTF-8.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

// ---- In a bundle and in a client's folder, which are laid alike; below that folder ----------------------------------

inline constexpr char kContentsFolder[] = "Contents";
inline constexpr char kBinariesFolder[] = "Contents/MacOS";
inline constexpr char kResourcesFolder[] = "Contents/Resources";
inline constexpr char kInfoFile[] = "Contents/Resources/INFO";
inline constexpr char kPropertyListFile[] = "Contents/Info.plist";

// In a client's folder alone.
inline constexpr char kClientFile[] = "Contents/MacOS/cloud-quay-ui";

// In a bundle alone.
inline constexpr char kLauncherFile[] = "Contents/MacOS/kelvane-quay-launcher";
inline constexpr char kTypeFile[] = "Contents/PkgInfo";
inline constexpr char kPackageFile[] = "Contents/Resources/package/tessaly.kpk";
inline constexpr char kIconFile[] = "Contents/Resources/images/ico_72_tessaly.png";
inline constexpr char kSystemIconFile[] = "Contents/Resources/KelvaneQuay.icns";
inline constexpr char kLevelFile[] = "Contents/Resources/log/launcher.debug";
inline constexpr char kDesktopFile[] = "Contents/Resources/kelvane-quay.desktop";

// What follows the Resources folder in the path of something that lies there, with "/" in front.
constexpr const char* InResources(const char* file) {
    return file + sizeof(kResourcesFolder) - 1;
}

// What follows the last "/" of a path. The result points into it.
constexpr const char* LastName(const char* path) {
    return path + (std::string_view(path).rfind('/') + 1);
}

// ---- In a home ------------------------------------------------------------------------------------------------------

// The user's private folder, below the home, and what lies in it.
inline constexpr char kPrivateFolder[] = ".KelvaneQuay";
inline constexpr char kApplicationFolder[] = "KelvaneQuay.app";
inline constexpr char kLogFolder[] = "log";
inline constexpr char kLogName[] = "launcher.log";

// The older product's, and what lies in it.
inline constexpr char kOlderFolder[] = ".Tessaly";
inline constexpr char kOlderApplicationFolder[] = "Tessaly.app";
inline constexpr char kAgedFolder[] = "app";

// In the private folder of either.
inline constexpr char kDataFolder[] = "data";
inline constexpr char kPidFile[] = "ui.pid";

// Backup names are tried from index 0 to this one.
inline constexpr int kLastBackupIndex = 9;

// The name under which an old copy is kept beside the application's folder, `path`; index 0 has no number. False where
// the number could not be printed: the name is then without one.
inline bool BackupName(const std::string& path, int index, std::string& name) {
    name = path + "_tmp";
    if (index == 0) {
        return true;
    }
    char number[8];  // more than the digits of any index in use
    if (std::snprintf(number, sizeof(number), "%d", index) < 0) {
        return false;
    }
    name += number;
    return true;
}

// ---- The path table's keys ------------------------------------------------------------------------------------------

// A type of its own, so that nothing but one of these opens the table.
struct PathKey {
    const char* name;  // ASCII
};

inline constexpr PathKey kUserKelvaneQuayPath{"user_kelvane_quay_path"};
inline constexpr PathKey kUserKelvaneQuayAppPath{"user_kelvane_quay_app_path"};
inline constexpr PathKey kUserKelvaneQuayResourcePath{"user_kelvane_quay_resource_path"};
inline constexpr PathKey kUserKelvaneQuayDataPath{"user_kelvane_quay_data_path"};
inline constexpr PathKey kUserKelvaneQuayWorkingDirPath{"user_kelvane_quay_working_dir_path"};
inline constexpr PathKey kUserKelvaneQuayUiPath{"user_kelvane_quay_ui_path"};
inline constexpr PathKey kUserTessalyPath{"user_tessaly_path"};
inline constexpr PathKey kUserTessalyResourcePath{"user_tessaly_resource_path"};
inline constexpr PathKey kRootResourcePath{"root_resource_path"};

// Never set: what the table yields for them is logged.
inline constexpr PathKey kUserTessalyAppPath{"user_tessaly_app_path"};
inline constexpr PathKey kUserTessalyDataPath{"user_tessaly_data_path"};
inline constexpr PathKey kUserTessalyWorkingDirPath{"user_tessaly_working_dir_path"};
inline constexpr PathKey kUserTessalyQuayUiPath{"user_tessaly_quay_ui_path"};
