// quay-package: packs clients, lays bundles, and proves them good before they ship.
#include <QCoreApplication>
#include <clocale>
#include <cstdio>

#include "command.h"
#include "interruption.h"
#include "platform/process-setup.h"
#include "report.h"

namespace {

constexpr char kUsage[] =
    "Usage: quay-package COMMAND [options]\n"
    "\n"
    "  pack APPFOLDER      packs a client's folder\n"
    "  bundle              lays the bundle that users start\n"
    "  check BUNDLE|KPK    looks for everything that can be wrong with it, and rehearses the installation\n"
    "  list KPK            lists a package's entries\n"
    "  explain BUNDLE      says what the next start would do in a home, and why; changes nothing\n"
    "\n"
    "Each command has --help and --json.\n"
    "Exit codes: 0 good, 1 defects found, 2 wrong usage, or a file that can't be read or written.\n";

struct Command {
    const char* name;
    int (*run)(const QStringList& arguments);
};

constexpr Command kCommands[] = {
    {"pack", RunPack}, {"bundle", RunBundle}, {"check", RunCheck}, {"list", RunList}, {"explain", RunExplain},
};

}  // namespace

int main(int argc, char** argv) {
    platform::UsePathsInUtf8();
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_ALL, "");
    platform::EnsureUtf8CharacterSet();
    QCoreApplication::setApplicationName(QStringLiteral("quay-package"));
    TakeInterruptions();

    const QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    if (name == QLatin1String("--help") || name == QLatin1String("-h") || name == QLatin1String("help")) {
        Print(kUsage);
        return kExitGood;
    }
    for (const Command& command : kCommands) {
        if (name == QLatin1String(command.name)) {
            const int exitCode = command.run(arguments);
            // A full disk behind standard output is found out here at the latest.
            return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? exitCode : kExitError;
        }
    }
    std::fputs(kUsage, stderr);
    return kExitError;
}
