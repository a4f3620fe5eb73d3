#include "checks.h"
#include "commands.h"
#include "files.h"
#include "product-layout.h"
#include "text.h"

Error RunVerify(const CommandLine& line, Report& report) {
    const std::string home = line.Home();
    const std::string folder = home + "/" + kPrivateFolder + "/" + kApplicationFolder;
    std::int64_t limit = 0;
    Package package;
    Entry there;
    Error error = line.Take(report.findings, limit);
    error = error ? error : CheckPackage(line.Operand() + "/" + kPackageFile, limit, package, report.findings);
    report.Set("operand", line.Operand());
    report.Set("home", home);
    report.Set("folder", folder);
    report.Set(package);
    if (!error && report.findings.IsEmpty()) {
        if (!Look(folder, "", there) || there.kind != Kind::Folder) {
            report.findings.Add(defects::CopyMissing, folder);
        } else {
            error = Compare(package, folder,
                            {defects::CopyMissing, defects::CopyDiffers, defects::CopyAdded, defects::CopyMode},
                            report.findings);
        }
    }
    const std::size_t total = report.findings.Total();
    report.Sum(Printable(folder) + ": " +
               (total == 0 ? "is what the package holds" : std::to_string(total) + " differences") + ", " +
               Shown(package.versions));
    return error;
}
