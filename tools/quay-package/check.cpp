#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

#include "checks.h"
#include "commands.h"
#include "text.h"

namespace {

void PrintCodes(Report& report) {
    QJsonArray codes;
    report.Say("| code | what | why it matters | how to mend it |\n|---|---|---|---|");
    for (const Defect* defect : defects::kAll) {
        codes.append(ToJson(*defect));
        report.Say("| " + IdOf(*defect) + " | " + defect->what + " | " + defect->why + " | " + defect->mend + " |");
    }
    report.Set("codes", codes);
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
    if (!scratch.isValid() || QStorageInfo(scratch.path()).bytesAvailable() < package.bytes) {
        return Error(path + ": no room for the rehearsal, which takes " + SizeText(package.bytes));
    }
    Error error = Rehearse(package, bundle, path, report.findings);
    report.Set("rehearsal", std::string(report.findings.Has(defects::RehearsalFailed) ? "failed" : "done"));
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
    std::int64_t limit = 0;
    Package package;
    VersionInfo versions;
    Error error = line.Take(report.findings, limit);
    if (!error) {
        error = isBundle ? CheckBundle(operand, limit, &package, versions, report.findings)
                         : CheckPackage(operand, limit, package, report.findings);
    }
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
