#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <filesystem>

#include "commands.h"
#include "extractor.h"
#include "files.h"
#include "log/logger.h"
#include "notify-adapter.h"
#include "product-layout.h"
#include "progress.h"
#include "resources/str-table.h"
#include "text.h"

namespace fs = std::filesystem;

namespace {

void PrintCodes(Report& report) {
    QJsonArray codes;
    report.Say("| code | what | why it matters | how to mend it |\n|---|---|---|---|");
    for (const auto& [defect, texts] : AllDefects()) {
        codes.append(ToJson(defect));
        report.Say("| " + IdOf(defect) + " | " + texts.what + " | " + texts.why + " | " + texts.mend + " |");
    }
    report.Set("codes", codes);
}

// Unpacks a package that has passed by the launcher's own extractor into a home that is made in `scratch`, and compares
// what is there with the package. Then asks the launcher's own decision whether a start of `bundle` (or, where that is
// empty, of what is installed) would install again.
Error Rehearse(const Package& package, const std::string& bundle, const std::string& scratch, Findings& findings) {
    const std::string home = scratch + "/home";
    const std::string folder = home + "/" + kPrivateFolder + "/" + kApplicationFolder;
    const std::string log = scratch + "/log";
    fs::create_directories(folder);
    StrTable::InitStrTable();  // the extractor sends one of its texts
    Logger::Initialize(Logger::TYPE_FILE, log, "", 1, Logger::SCOPE_THREAD);
    Progress progress("rehearsing", static_cast<std::int64_t>(package.entries.size()));
    const QMetaObject::Connection connection =
        QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, [&progress, &scratch] {
            if (progress.Advance(1)) {
                std::error_code failure;
                fs::remove_all(scratch, failure);
                EndInterrupted();  // the extractor knows no way to stop
            }
        });
    Extractor extractor;
    extractor.sourcePath = package.file;
    extractor.destPath = folder;
    const bool isInstalled = extractor.Extract() == 0;
    QObject::disconnect(connection);
    Logger::Initialize(Logger::TYPE_STDERR, "", "", 1, Logger::SCOPE_NONE);
    if (!isInstalled) {
        std::string text;
        Error error = ReadFile(log, kLargestText, text);
        findings.Add(Defect::RehearsalFailed, "",
                     QString::fromStdString(text).section(QLatin1String("[ERROR] "), -1).trimmed().toStdString());
        return error;
    }
    Error error = Compare(
        package, folder,
        {Defect::RehearsalMissing, Defect::RehearsalDiffers, Defect::RehearsalUnexpected, Defect::RehearsalDiffers},
        findings);
    if (!error && IsUpgradeDue(home, (bundle.empty() ? folder : bundle) + "/" + kBinariesFolder)) {
        findings.Add(Defect::RehearsalUpgradesAgain, bundle);
    }
    return error;
}

// Sets "rehearsal": "done", "failed", "skipped" where something was found before, or "off".
Error RehearseIn(const CommandLine& line, const Package& package, const std::string& bundle, Report& report) {
    const bool isOff = line.IsSet("no-rehearsal");
    report.Set("rehearsal", std::string(isOff ? "off" : "skipped"));
    if (isOff || !report.findings.IsEmpty() || package.entries.empty()) {
        return {};
    }
    QTemporaryDir scratch(QDir::tempPath() + QStringLiteral("/quay-package-XXXXXX"));
    const std::string path = scratch.path().toStdString();
    const std::int64_t free = FreeBytes(path);
    if (!scratch.isValid() || (free >= 0 && free < package.bytes)) {
        return Error(path + ": no room for the rehearsal, which takes " + SizeText(package.bytes));
    }
    Error error = Rehearse(package, bundle, path, report.findings);
    report.Set("rehearsal",
               std::string(report.findings.found().count(Defect::RehearsalFailed) != 0 ? "failed" : "done"));
    if (line.IsSet("keep")) {
        scratch.setAutoRemove(false);
        report.Set("kept", path);
        report.Say("the rehearsal is kept in " + Printable(path));
    }
    return error;
}

}  // namespace

Error RunCheck(const CommandLine& line, Report& report) {
    if (line.IsSet("codes")) {
        PrintCodes(report);
        return {};
    }
    const std::string operand = line.Operand();
    const bool isBundle = QFileInfo(QString::fromStdString(operand)).isDir();
    Package package;
    VersionInfo versions;
    Error error = isBundle ? CheckBundle(operand, line.Limit(), &package, versions, report.findings)
                           : CheckPackage(operand, line.Limit(), package, report.findings);
    error = error ? error : RehearseIn(line, package, isBundle ? operand : "", report);
    report.Set("operand", operand);
    report.Set("kind", std::string(isBundle ? "bundle" : "package"));
    report.Set(package);
    if (isBundle) {
        report.Set("bundle_versions", ToJson(versions));
    }
    const std::size_t total = report.findings.Total();
    report.Sum(Printable(operand) + ": " + (total == 0 ? "good" : std::to_string(total) + " defects") + ", " +
               Shown(package.versions) + ", " + std::to_string(package.entries.size()) + " entries, " +
               SizeText(package.bytes) + " unpacked");
    return error;
}
