#include "checks.h"

#include <QFileInfo>
#include <QObject>
#include <filesystem>

#include "extractor.h"
#include "files.h"
#include "log/logger.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "path-table.h"
#include "progress.h"
#include "resources/str-table.h"

Error Rehearse(const Package& package, const std::string& bundle, const std::string& scratch, Findings& findings) {
    const std::string home = scratch + "/home";
    const std::string folder = home + "/" + kPrivateFolder + "/" + kApplicationFolder;
    const std::string log = scratch + "/log";
    std::filesystem::create_directories(folder);
    StrTable::InitStrTable();  // the extractor sends one of its texts
    Logger::Initialize(Logger::TYPE_FILE, log, "", 1, Logger::SCOPE_THREAD);
    Progress progress("rehearsing", static_cast<std::int64_t>(package.entries.size()));
    const QMetaObject::Connection connection =
        QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, [&progress, &scratch] {
            if (progress.Advance(1)) {
                std::error_code failure;
                std::filesystem::remove_all(scratch, failure);
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
        findings.Add(defects::RehearsalFailed, "",
                     QString::fromStdString(text).section(QLatin1String("[ERROR] "), -1).trimmed().toStdString());
        return error;
    }
    Error error = Compare(
        package, folder,
        {defects::RehearsalMissing, defects::RehearsalDiffers, defects::RehearsalUnexpected, defects::RehearsalDiffers},
        findings);
    if (!error && IsUpgradeDue(home, (bundle.empty() ? folder : bundle) + "/" + kBinariesFolder)) {
        findings.Add(defects::RehearsalUpgradesAgain, bundle);
    }
    return error;
}

bool IsUpgradeDue(const std::string& home, const std::string& binaries) {
    // The launcher finds its bundle by the real path of its binary.
    const QString real = QFileInfo(QString::fromStdString(binaries)).canonicalFilePath();
    FillPathTable(QString::fromStdString(home), real.isEmpty() ? QString::fromStdString(binaries) : real);
    MacService service;
    service.PreUpgrade();
    return service.IsNeedUpgrade();
}
