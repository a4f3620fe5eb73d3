#include <sys/stat.h>

#include <QBuffer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <filesystem>

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
    const VersionInfo& versions = package.versions;
    const QString version = Q(versions.majorVersion.value_or("0") + "." + versions.minorVersion.value_or("0"));
    const struct {
        const char* file;
        std::string from;  // where it is copied from, if that is given
        QByteArray bytes;
    } parts[] = {
        {kLauncherFile, line.Path("launcher"), {}},
        {kPackageFile, package.file, {}},
        {kInfoFile, {}, QByteArray::fromStdString(package.entries.back().content)},
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
        QFile file;
        QBuffer bytes;
        bytes.setData(part.bytes);
        bytes.open(QIODevice::ReadOnly);
        const bool isCopied = !part.from.empty();
        QIODevice& source = isCopied ? static_cast<QIODevice&>(file) : bytes;
        const bool isProgram =
            part.file == kLauncherFile && QFileInfo(QString::fromStdString(part.from)).isExecutable();
        if (!error && isCopied) {
            error = OpenFile(part.from, true, file);
        }
        if (!error && (isCopied || bytes.size() > 0)) {
            error = WriteFile(folder + "/" + part.file, source, isProgram ? 0755 : 0644);
        }
    }
    return error;
}

// Whether a bundle, an empty folder or nothing stands at the path: anything else is not replaced.
bool MayReplace(const std::string& path) {
    return !KindAt(path) || IsEmptyFolder(path) || (KindAt(path) == Kind::Folder && KindAt(path + "/" + kLauncherFile));
}

// Puts the laid folder into its place in one step; what stood there is then where the laid folder was. On a file system
// that knows no such step what stood there comes back, whatever happens short of a kill.
Error PutInPlace(const std::string& laid, const std::string& output) {
    if (!KindAt(output)) {
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

}  // namespace

Error RunBundle(const CommandLine& line, Report& report) {
    umask(022);  // whoever makes the bundle makes it for everyone
    const std::string output = line.Path("output");
    const std::string installedAt = line.Value("installed-at", "/opt/KelvaneQuay.app");
    Package package;
    Error error;
    if (!Matches(Q(installedAt), QStringLiteral("/[^\"`$%\\\\]*"))) {
        error = Error("--installed-at: an absolute path without quotes and the like is wanted");
    } else if (!MayReplace(output)) {
        error = Error(output + ": stands there already, and is no bundle");
    }
    error = error ? error : CheckPackage(line.Path("package"), line.Limit(), package, report.findings);
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
        error = error ? error : CheckBundle(path, line.Limit(), &package, versions, report.findings);
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
