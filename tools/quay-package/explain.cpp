#include <unistd.h>

#include <QFileInfo>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "commands.h"
#include "file/file-op.h"
#include "files.h"
#include "log/config.h"
#include "mac/mac-service.h"
#include "path-table.h"
#include "text.h"

namespace {

// What a client's folder has on disk beside its files' content: a block for each entry.
constexpr std::int64_t kBlock = 4096;

std::string Path(PathKey key) {
    return TablePath(key).toStdString();
}

// Tells what the next start would do, step by step and in its order, by the product's own decision and by looks at what
// its steps would come upon. What the upgrade replaces is not judged.
class Explanation {
public:
    Explanation(const CommandLine& line, Report& report)
        : bundle_(line.Operand()), home_(line.Home()), line_(line), report_(report) {}

    Error Run() {
        report_.Set("operand", bundle_);
        report_.Set("home", home_);
        if (!QFileInfo(QString::fromStdString(bundle_)).isDir()) {
            return Error(bundle_ + ": is no bundle");
        }
        if (!QFileInfo(QString::fromStdString(home_)).isDir()) {
            Add(Defect::HomeMissing, home_);
        }
        if (!CanDecide()) {
            return {};
        }
        ExplainDecision();
        Package package;
        VersionInfo versions;
        // The package counts where it is going to be unpacked.
        Error error = CheckBundle(bundle_, line_.Limit(), isDue_ ? &package : nullptr, versions, report_.findings);
        if (isDue_) {
            ExplainStop();
            ExplainMigration();
            ExplainPlace(package);
        }
        ExplainBackup();
        ExplainEnd();
        return error;
    }

private:
    // The launcher reads both INFO files without a look at what they are.
    bool CanDecide() {
        const std::string application = home_ + "/" + kPrivateFolder + "/" + kApplicationFolder;
        bool canDecide = true;
        for (const std::string& info : {bundle_ + "/" + kInfoFile, application + "/" + kInfoFile}) {
            const QFileInfo there(QString::fromStdString(info));
            if (there.exists() && !there.isFile() && !there.isDir()) {
                Add(Defect::PathObstructed, info);
                canDecide = false;
            }
        }
        return canDecide;
    }

    void ExplainDecision() {
        isDue_ = IsUpgradeDue(home_, bundle_ + "/" + kBinariesFolder);
        isInstalled_ = access(Path(kUserKelvaneQuayUiPath).c_str(), F_OK) == 0;
        const VersionInfo target = ReadVersionInfo(Path(kRootResourcePath) + InResources(kInfoFile));
        const VersionInfo source = ReadVersionInfo(Path(kUserKelvaneQuayResourcePath) + InResources(kInfoFile));
        const std::string decision = !isDue_ ? "none" : isInstalled_ ? "upgrade" : "install";
        const std::string reason = !isInstalled_ ? "the client's binary is missing"
                                   : isDue_      ? "the bundle's build is higher than the installed one"
                                                 : "the bundle's build is not higher than the installed one";
        Say("bundle", ToJson(target), bundle_ + ": " + Shown(target));
        Say("installed", ToJson(source), home_ + ": " + (source.buildVersion ? Shown(source) : "no version"));
        Say("decision", decision, decision + ": " + reason);
        report_.Set("reason", reason);
        report_.Set("binary_installed", QJsonValue(isInstalled_));
    }

    void ExplainStop() {
        const std::string folder = Path(isInstalled_ ? kUserKelvaneQuayPath : kUserTessalyPath);
        const std::string file = folder + "/" + kPidFile;
        Config pidFile;
        if (!isInstalled_ && !IsFileExist(folder, true)) {
            Say("stop", QJsonValue(), "nobody: a first installation stops no client");
        } else if (!IsFileExist(file, false)) {
            Say("stop", QJsonValue(), "nobody: there is no " + file);
        } else if (pidFile.read(file) < 0 || pidFile["pid"].empty()) {
            Say("stop", QJsonValue(), "nobody: " + file + " names no process");
            Add(Defect::PidFileOdd, file, "it can't be read, or has no \"pid\"");
        } else {
            ExplainProcess(folder, file, static_cast<pid_t>(std::atol(pidFile["pid"].c_str())));
        }
    }

    void ExplainProcess(const std::string& folder, const std::string& file, pid_t process) {
        const std::string number = std::to_string(process);
        const bool isMine = process > 0 && kill(process, 0) == 0;
        if (process > 0 && !isMine && errno == ESRCH) {
            Say("stop", QJsonValue(), "nobody: process " + number + " has ended");
            return;
        }
        Say("stop", process,
            process > 0 ? "process " + number + ", which gets 15 seconds to quit" : "a group of processes");
        // Where the system tells nothing of processes this way, nothing is said against the number.
        const QString status = QStringLiteral("/proc/%1/").arg(process);
        const std::string program = QFileInfo(status + QLatin1String("exe")).symLinkTarget().toStdString();
        QFile arguments;
        if (!isMine) {
            Add(Defect::PidFileOdd, file, "process " + number + " is not this user's, or a group");
        } else if (!program.empty() && !OpenFile((status + QLatin1String("cmdline")).toStdString(), false, arguments) &&
                   program.compare(0, folder.size() + 1, folder + "/") != 0 &&
                   !arguments.readAll().contains(QByteArray::fromStdString(folder + "/"))) {
            Add(Defect::PidFileOdd, file, "process " + number + " is " + program);
        }
    }

    void ExplainMigration() {
        const std::string older = Path(kUserTessalyPath);
        const std::string oldData = older + "/" + kDataFolder;
        const std::string newData = Path(kUserKelvaneQuayDataPath);
        if (isInstalled_ || !IsFileExist(older, true)) {
            Say("migrate", QJsonValue(),
                isInstalled_ ? "nothing: the client is installed" : "nothing: there is no " + older);
            if (!isInstalled_ && IsFileExist(older, false)) {
                Add(Defect::ThroughLink, older, "the older product's folder is there, but not under this spelling");
            }
            return;
        }
        const bool hasData = IsFileExist(oldData, true);
        Say("migrate", older, (hasData ? oldData + " to " + newData + ", then" : "no data:") + " removes " + older);
        if (hasData && KindAt(newData) && !IsEmptyFolder(newData)) {
            Add(Defect::OlderDataLost, oldData, newData + " is there already");
        }
    }

    void ExplainBackup() {
        const std::string folder = Path(kUserKelvaneQuayAppPath);
        std::string chosen;
        for (int index = 0; index <= kLastBackupIndex; ++index) {
            std::string name;
            BackupName(folder, index, name);
            const bool isFree = !KindAt(name) || (IsEmptyFolder(name) && KindAt(folder) == Kind::Folder);
            chosen = chosen.empty() && isFree ? name : chosen;
            if (KindAt(name)) {
                Add(Defect::Leftovers, name);
            }
        }
        if (!isDue_) {
            return;
        }
        if (!IsFileExist(folder, false)) {
            Say("backup", QJsonValue(), "none: there is no old copy");
        } else if (chosen.empty()) {
            Say("backup", QJsonValue(), "none: every name is taken");
            Add(Defect::NoBackupName, folder);
        } else {
            Say("backup", chosen, chosen);
        }
    }

    // Whether the folders can be written, are folders, and have room.
    void ExplainPlace(const Package& package) {
        const std::string root = Path(kUserKelvaneQuayPath);
        const std::string real = QFileInfo(QString::fromStdString(home_)).canonicalFilePath().toStdString();
        if (!real.empty() && real != home_) {
            Add(Defect::ThroughLink, home_, "its real path is " + real);
        }
        if (KindAt(root) && KindAt(root) != Kind::Folder) {
            Add(KindAt(root) == Kind::Link ? Defect::ThroughLink : Defect::PathObstructed, root);
        }
        const std::string place = KindAt(root) ? root : home_;
        if (KindAt(place) == Kind::Folder && access(place.c_str(), W_OK | X_OK) != 0) {
            Add(Defect::NotWritable, place);
        }
        const std::int64_t free = FreeBytes(place);
        std::int64_t needed = 0;
        for (const Entry& entry : package.entries) {
            needed += kBlock + (entry.size + kBlock - 1) / kBlock * kBlock;
        }
        Say("package", static_cast<int>(package.entries.size()), std::to_string(package.entries.size()) + " entries");
        Say("space",
            QJsonObject{{QStringLiteral("needed"), static_cast<double>(needed)},
                        {QStringLiteral("free"), free < 0 ? QJsonValue() : QJsonValue(static_cast<double>(free))}},
            SizeText(needed) + " needed beside the old copy" + (free < 0 ? "" : ", " + SizeText(free) + " free"));
        if (free >= 0 && free < needed) {
            Add(Defect::NoSpace, place, SizeText(needed) + " needed, " + SizeText(free) + " free");
        }
    }

    // What every start does.
    void ExplainEnd() {
        const std::string aged = Path(kUserTessalyPath) + "/" + kAgedFolder;
        const std::string binary = Path(kUserKelvaneQuayUiPath);
        const bool isThere = KindAt(aged).has_value();
        Say("remove", isThere ? aged : "", isThere ? aged : "nothing: there is no " + aged);
        Say("start", binary, binary);
        if (!isDue_ && access(binary.c_str(), X_OK) != 0) {
            Add(Defect::BinaryNotExecutable, binary);
        }
        report_.Sum(report_.findings.IsEmpty() ? "nothing stands in the way" : "something stands in the way");
    }

    // A step: for people a line, for programs a value of the object; an empty text is none.
    void Say(const char* key, const QJsonValue& value, const std::string& text) {
        report_.Set(key, value);
        report_.Say(QString::fromLatin1(key).leftJustified(11).toStdString() + Printable(text));
    }
    void Say(const char* key, const std::string& value, const std::string& text) {
        Say(key, value.empty() ? QJsonValue() : Q(value), text);
    }
    void Add(Defect defect, const std::string& entry, const std::string& detail = {}) {
        report_.findings.Add(defect, entry, detail);
    }

    const std::string bundle_;
    const std::string home_;
    const CommandLine& line_;
    Report& report_;
    bool isInstalled_ = false;  // whether the private copy has its binary
    bool isDue_ = false;
};

}  // namespace

bool IsUpgradeDue(const std::string& home, const std::string& binaries) {
    // The launcher finds its bundle by the real path of its binary.
    const QString real = QFileInfo(QString::fromStdString(binaries)).canonicalFilePath();
    FillPathTable(QString::fromStdString(home), real.isEmpty() ? QString::fromStdString(binaries) : real);
    MacService service;
    service.PreUpgrade();
    return service.IsNeedUpgrade();
}

Error RunExplain(const CommandLine& line, Report& report) {
    return Explanation(line, report).Run();
}
