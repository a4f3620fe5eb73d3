#include "commands.h"
#include "files.h"
#include "product-layout.h"
#include "text.h"

Error RunVerify(const CommandLine& line, Report& report) {
    const std::string home = line.Home();
    const std::string folder = home + "/" + kPrivateFolder + "/" + kApplicationFolder;
    Package package;
    Error error = CheckPackage(line.Operand() + "/" + kPackageFile, line.Limit(), package, report.findings);
    report.Set("operand", line.Operand());
    report.Set("home", home);
    report.Set("folder", folder);
    report.Set(package);
    if (!error && report.findings.IsEmpty()) {
        if (KindAt(folder) != Kind::Folder) {
            report.findings.Add(Defect::CopyMissing, folder);
        } else {
            error = Compare(package, folder,
                            {Defect::CopyMissing, Defect::CopyDiffers, Defect::CopyAdded, Defect::CopyMode},
                            report.findings);
        }
    }
    const std::string differences = std::to_string(report.findings.Total()) + " differences";
    report.Sum(Printable(folder) + ": " + (report.findings.IsEmpty() ? "is what the package holds" : differences) +
               ", " + Shown(package.versions));
    return error;
}
