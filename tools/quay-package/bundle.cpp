#include <sys/stat.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
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

QByteArray OwnFile(const char* name) {
    QFile file(QStringLiteral(":/bundle/") + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Lays the bundle into an empty folder.
Error Lay(const CommandLine& line, const std::string& installedAt, const Package& package, const std::string& folder) {
    const auto isInfo = [](const Entry& entry) { return entry.path == kInfoFile; };
    const VersionInfo& versions = package.versions;
    const QString version = Q(versions.majorVersion.value_or("0") + "." + versions.minorVersion.value_or("0"));
    const struct {
        const char* file;
        std::string from;  // where it is copied from, if that is given
        QByteArray bytes;
    } parts[] = {
        {kLauncherFile, line.Path("launcher"), {}},
        {kPackageFile, package.file, {}},
        {kInfoFile,
         {},
         QByteArray::fromStdString(std::find_if(package.entries.begin(), package.entries.end(), isInfo)->content)},
        {kIconFile, line.Path("icon"), OwnFile("ico_72_tessaly.png")},
        {kLevelFile, line.Path("levels"), {}},
        {kSystemIconFile, {}, OwnFile("KelvaneQuay.icns")},
        {kDesktopFile, {}, OwnFile("kelvane-quay.desktop.in").replace("@KQ_INSTALLED_AT@", installedAt.c_str())},
        {kPropertyListFile,
         {},
         OwnFile("Info.plist.in")
             .replace("@KQ_SHORT_VERSION@", version.toHtmlEscaped().toUtf8())
             .replace("@KQ_BUILD_VERSION@", versions.buildVersion.value_or("0").c_str())},
        {kTypeFile, {}, "APPL????"},
    };
    Error error;
    for (const auto& part : parts) {
        const std::string file = folder + "/" + part.file;
        const bool isProgram =
            part.file == kLauncherFile && QFileInfo(QString::fromStdString(part.from)).isExecutable();
        if (!error && !part.from.empty()) {
            error = CopyFile(part.from, file, isProgram ? 0755 : 0644);
        } else if (!error && !part.bytes.isEmpty()) {
            error = WriteFile(file, {part.bytes.constData(), static_cast<std::size_t>(part.bytes.size())}, 0644);
        }
    }
    return error;
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
            std::error_code failure;
            error = IsInterrupted() ? Error("interrupted") : PutInPlace(path, output);
            fs::remove_all(path, failure);  // the old one, however long its paths
        }
    }
    report.Sum(report.findings.IsEmpty() ? Printable(output) + ": " + Shown(package.versions)
                                         : std::to_string(report.findings.Total()) + " defects: no bundle was made");
    return error;
}
