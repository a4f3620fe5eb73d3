// quay-package: packs clients, lays bundles, and proves them good before they ship.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <clocale>
#include <cstdio>

#include "cloud-service.h"
#include "commands.h"
#include "platform/process-setup.h"
#include "progress.h"

namespace {

struct Command {
    const char* name;
    Error (*run)(const CommandLine& line, Report& report);
    const char* operand;  // as it stands in the usage line; empty for none
    const char* help;
    const char* keys;      // of its JSON object
    const char* required;  // options
};

constexpr Command kCommands[] = {
    {"pack", RunPack, "APPFOLDER", "packs a client's folder", "output entries bytes packed_bytes versions mended",
     "output build"},
    {"bundle", RunBundle, "", "lays the bundle that users start", "output versions installed_at",
     "launcher package output"},
    {"check", RunCheck, "BUNDLE|KPK", "finds all that pack would not have made, and rehearses the installation",
     "operand kind entries bytes package_versions bundle_versions rehearsal kept codes", ""},
    {"list", RunList, "KPK", "lists a package's entries in their order: type, mode, bytes, name",
     "operand entries bytes", ""},
    {"explain", RunExplain, "BUNDLE", "says what the next start would do in a home, and why; changes nothing",
     "operand home bundle installed binary_installed decision reason stop migrate package space backup remove start",
     ""},
    {"verify", RunVerify, "BUNDLE", "compares a home's private copy with the package; changes nothing",
     "operand home folder entries bytes package_versions", ""},
};

constexpr struct Option {
    const char* commands;  // that have it; empty for all
    const char* name;
    const char* value;  // what is to be given; null for a flag
    const char* help;
} kOptions[] = {
    {"", "h,help", nullptr, "Shows this help."},
    {"", "v,version", nullptr, "Shows the version."},
    {"", "json", nullptr, "Prints one JSON object instead of text."},
    {"pack bundle", "o,output", "PATH", "The package, or the bundle's folder, to write."},
    {"pack", "build", "N", "The build number that INFO is stamped with."},
    {"pack", "major", "TEXT", "The major version. Without it, what the folder's INFO has, or 0."},
    {"pack", "minor", "TEXT", "The minor version, likewise."},
    {"pack", "icon-overlay", "TEXT", "The icon overlay version, likewise."},
    {"pack", "keep-all", nullptr, "Leaves out nothing of what file managers, editors and the like leave behind."},
    {"bundle", "launcher", "BIN", "The launcher's binary."},
    {"bundle", "package", "KPK", "The package."},
    {"bundle", "icon", "PNG", "The icon of the progress dialog; the product's own without it."},
    {"bundle", "levels", "FILE", "The log's level file; none without it."},
    {"bundle", "installed-at", "FOLDER", "Where the bundle will lie on Linux; /opt/KelvaneQuay.app without it."},
    {"check", "no-rehearsal", nullptr, "Installs nothing."},
    {"check", "keep", nullptr, "Keeps the folder of the rehearsal, and says where it is."},
    {"check", "codes", nullptr, "Prints all codes as a table, and does nothing else."},
    {"explain verify", "home", "FOLDER", "The user's home; your own without it."},
    {"pack bundle check explain verify", "max-unpacked", "BYTES", "The limit for what unpacks; 4 GiB is the most."},
    {"pack bundle check explain verify", "accept", "CODE[=ENTRY]", "Accepts a finding, of one entry or of all."},
};

QStringList Words(const char* text, char between = ' ') {
    return QString::fromLatin1(text).split(QLatin1Char(between));
}

bool Has(const Command* command, const Option& option) {
    return command == nullptr || *option.commands == '\0' ||
           Words(option.commands).contains(QLatin1String(command->name));
}

// The options of a command; those of all where it is null.
void Fill(QCommandLineParser& parser, const Command* command) {
    for (const Option& option : kOptions) {
        if (Has(command, option)) {
            parser.addOption(
                {Words(option.name, ','), QString::fromUtf8(option.help), QString::fromUtf8(option.value)});
        }
    }
}

std::string Usage() {
    std::string usage = "Usage: quay-package COMMAND [options]\n\n";
    for (const Command& command : kCommands) {
        const QString front = QStringLiteral("%1 %2").arg(QLatin1String(command.name), QLatin1String(command.operand));
        usage += "  " + front.leftJustified(20).toStdString() + command.help + "\n";
    }
    return usage +
           "\nEach command has --help and --json; the manual is quay-package(1).\n"
           "Exit codes: 0 good, 1 defects found, 2 wrong usage, or a file that can't be read or written.";
}

std::string Help(const Command& command) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("quay-package %1: %2.").arg(QLatin1String(command.name), QLatin1String(command.help)));
    parser.addPositionalArgument(QString::fromLatin1(command.name), QStringLiteral("The command."));
    if (*command.operand != '\0') {
        parser.addPositionalArgument(QString::fromLatin1(command.operand), QStringLiteral("What it works on."));
    }
    Fill(parser, &command);
    return parser.helpText().toStdString();
}

// What is wrong with the usage, if anything is. Hands what --accept says over.
Error CheckUsage(const CommandLine& line, const Command& command, Findings& findings) {
    for (const Option& option : kOptions) {
        const QString name = Words(option.name, ',').last();
        if (line.isSet(name) && !Has(&command, option)) {
            return Error("--" + name.toStdString() + " is no option of this command (see --help)");
        }
    }
    const int operands = *command.operand == '\0' || line.IsSet("codes") ? 0 : 1;
    if (line.positionalArguments().size() != operands + 1 || line.positionalArguments().last().isEmpty()) {
        return Error(std::string(operands == 0 ? "no operand" : "exactly one operand") + " is wanted (see --help)");
    }
    for (const QString& name : Words(command.required)) {
        if (!name.isEmpty() && line.value(name).isEmpty()) {
            return Error("--" + name.toStdString() + " is missing (see --help)");
        }
    }
    Error error = line.Limit() > 0 ? Error() : Error("--max-unpacked: a number of bytes is wanted");
    for (const QString& accepted : line.values(QStringLiteral("accept"))) {
        error = error ? error : findings.Accept(accepted.toStdString());
    }
    return error;
}

int Run(const QStringList& arguments) {
    CommandLine line;
    Fill(line, nullptr);
    const bool isParsed = line.parse(arguments);
    const QString name = line.positionalArguments().value(0);
    const auto* command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                       [&name](const Command& known) { return name == QLatin1String(known.name); });
    const bool isKnown = command != std::end(kCommands);
    if (line.IsSet("version")) {
        PrintLine("quay-package " KQ_VERSION);
        return kExitGood;
    }
    if (line.IsSet("help") || name == QLatin1String("help")) {
        PrintLine(isKnown ? Help(*command) : Usage());
        return kExitGood;
    }
    Report report(isKnown ? command->name : "", isKnown ? Words(command->keys) : QStringList(),
                  arguments.contains(QStringLiteral("--json")));
    Error error = !isParsed  ? Error(line.errorText().toStdString() + " (see --help)")
                  : !isKnown ? Error("no such command (see --help)")
                             : CheckUsage(line, *command, report.findings);
    return report.Finish(error ? error : command->run(line, report));
}

}  // namespace

std::string CommandLine::AbsolutePath(const QString& path) {
    return path.isEmpty() ? std::string() : QDir::cleanPath(QFileInfo(path).absoluteFilePath()).toStdString();
}

std::string CommandLine::Home() const {
    return IsSet("home") ? Path("home") : AbsolutePath(Service::GetUserInstallPath());
}

std::int64_t CommandLine::Limit() const {
    const QString limit = value(QStringLiteral("max-unpacked"));
    return IsSet("max-unpacked") ? std::min<std::int64_t>(limit.toLongLong(), kLargestPackage) : kLargestPackage;
}

int main(int argc, char** argv) {
    platform::UsePathsInUtf8();
    platform::DropQtWarnings();
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_ALL, "");
    platform::EnsureUtf8CharacterSet();
    QCoreApplication::setApplicationName(QStringLiteral("quay-package"));
    TakeInterruptions();
    const int exitCode = Run(QCoreApplication::arguments());
    // A full disk behind standard output is found out here at the latest.
    const bool isPrinted = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (IsInterrupted()) {
        EndInterrupted();
    }
    return isPrinted ? exitCode : kExitError;
}
