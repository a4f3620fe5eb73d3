// Where things lie in the bundle that users start. Paths are below the bundle's folder.
#pragma once

constexpr char kLauncherFile[] = "Contents/MacOS/kelvane-quay-launcher";
constexpr char kBundleInfoFile[] = "Contents/Resources/INFO";
constexpr char kPackageFile[] = "Contents/Resources/package/tessaly.kpk";
constexpr char kIconFile[] = "Contents/Resources/images/ico_72_tessaly.png";
constexpr char kSystemIconFile[] = "Contents/Resources/KelvaneQuay.icns";
constexpr char kLevelFile[] = "Contents/Resources/log/launcher.debug";
constexpr char kDesktopFile[] = "Contents/Resources/kelvane-quay.desktop";
constexpr char kPropertyListFile[] = "Contents/Info.plist";
constexpr char kTypeFile[] = "Contents/PkgInfo";

constexpr char kLauncherName[] = "kelvane-quay-launcher";
