#include <sys/stat.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <filesystem>

#include "checks.h"
#include "commands.h"
#include "files.h"
#include "platform/exchange.h"
#include "product-layout.h"
#include "progress.h"
#include "text.h"

namespace fs = std::filesystem;

namespace {

std::string OwnFile(const char* name) {
    QFile file(QStringLiteral(":/bundle/") + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void Replace(std::string& text, const std::string& key, const std::string& value) {
    for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at + value.size())) {
        text.replace(at, key.size(), value);
    }
}

std::string PropertyList(const VersionInfo& versions) {
    std::string text = OwnFile("Info.plist.in");
    const std::string shortVersion = versions.majorVersion.value_or("0") + "." + versions.minorVersion.value_or("0");
    Replace(text, "@KQ_SHORT_VERSION@", QString::fromStdString(shortVersion).toHtmlEscaped().toStdString());
    Replace(text, "@KQ_BUILD_VERSION@", versions.buildVersion.value_or("0"));
    return text;
}

// Lays the bundle into an empty folder.
Error Lay(const CommandLine& line, const std::string& installedAt, const Package& package, const std::string& folder) {
    std::string info;
    for (const Entry& entry : package.entries) {
        info = entry.path == kInfoFile ? entry.content : info;
    }
    std::string desktop = OwnFile("kelvane-quay.desktop.in");
    Replace(desktop, "@KQ_INSTALLED_AT@", installedAt);
    const std::string launcher = line.Path("launcher");
    const auto at = [&folder](const char* file) { return folder + "/" + file; };
    Error error =
        CopyFile(launcher, at(kLauncherFile), QFileInfo(QString::fromStdString(launcher)).isExecutable() ? 0755 : 0644);
    error = error ? error : CopyFile(package.file, at(kPackageFile), 0644);
    error = error ? error : WriteFile(at(kInfoFile), info, 0644);
    if (!error) {
        error = line.IsSet("icon") ? CopyFile(line.Path("icon"), at(kIconFile), 0644)
                                   : WriteFile(at(kIconFile), OwnFile("ico_72_tessaly.png"), 0644);
    }
    if (!error && line.IsSet("levels")) {
        error = CopyFile(line.Path("levels"), at(kLevelFile), 0644);
    }
    error = error ? error : WriteFile(at(kSystemIconFile), OwnFile("KelvaneQuay.icns"), 0644);
    error = error ? error : WriteFile(at(kDesktopFile), desktop, 0644);
    error = error ? error : WriteFile(at(kPropertyListFile), PropertyList(package.versions), 0644);
    return error ? error : WriteFile(at(kTypeFile), "APPL????", 0644);
}

// Whether a bundle, an empty folder or nothing stands at the path: anything else is not replaced.
bool MayReplace(const std::string& path) {
    Entry there;
    std::error_code failure;
    return !Exists(path) || (Look(path, "", there) && there.kind == Kind::Folder &&
                             (Exists(path + "/" + kLauncherFile) || fs::is_empty(path, failure)));
}

// Puts the laid folder into its place in one step; what stood there is then where the laid folder was. On a file system
// that knows no such step what stood there comes back, whatever happens short of a kill.
Error PutInPlace(const std::string& laid, const std::string& output) {
    if (!Exists(output)) {
        return std::rename(laid.c_str(), output.c_str()) == 0 ? Error() : Error::System(output);
    }
    if (platform::ExchangePaths(laid, output) == 0) {
        return {};
    }
    const std::string old = laid + ".old";
    if (std::rename(output.c_str(), old.c_str()) != 0) {
        return Error::System(output);
    }
    if (std::rename(laid.c_str(), output.c_str()) != 0) {
        Error error = Error::System(output);
        return std::rename(old.c_str(), output.c_str()) == 0 ? error
                                                             : Error(error.text() + "; what stood there is " + old);
    }
    return std::rename(old.c_str(), laid.c_str()) == 0 ? Error() : Error::System(old);
}

bool IsGoodPlace(const std::string& path) {
    return !path.empty() && path[0] == '/' && Printable(path) == path &&
           path.find_first_of("\"`$%\\") == std::string::npos;
}

}  // namespace

Error RunBundle(const CommandLine& line, Report& report) {
    umask(022);  // whoever makes the bundle makes it for everyone
    const std::string output = line.Path("output");
    const std::string installedAt = line.Value("installed-at", "/opt/KelvaneQuay.app");
    std::int64_t limit = 0;
    Package package;
    Error error = line.Take(report.findings, limit);
    if (!IsGoodPlace(installedAt)) {
        error = Error("--installed-at: an absolute path without quotes and the like is wanted");
    } else if (!MayReplace(output)) {
        error = Error(output + ": stands there already, and is no bundle");
    }
    error = error ? error : CheckPackage(line.Path("package"), limit, package, report.findings);
    report.Set("output", output);
    report.Set("installed_at", installedAt);
    report.Set("versions", ToJson(package.versions));
    if (!error && report.findings.IsEmpty()) {
        QTemporaryDir folder(HiddenTemplate(output));
        const std::string path = folder.path().toStdString();
        if (!folder.isValid() || chmod(path.c_str(), 0755) != 0) {
            return Error(output + ": " + folder.errorString().toStdString());
        }
        VersionInfo versions;
        error = Lay(line, installedAt, package, path);
        error = error ? error : CheckBundle(path, limit, &package, versions, report.findings);
        if (!error && report.findings.IsEmpty()) {
            error = IsInterrupted() ? Error("interrupted") : PutInPlace(path, output);
        }
    }
    report.Sum(report.findings.IsEmpty() ? Printable(output) + ": " + Shown(package.versions)
                                         : std::to_string(report.findings.Total()) + " defects: no bundle was made");
    return error;
}
