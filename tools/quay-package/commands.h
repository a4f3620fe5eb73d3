// The subcommands, what they are given and what they print.
#pragma once

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>
#include <string>
#include <vector>

#include "checks.h"

// The arguments of a command: operand and options in any order. Texts are UTF-8.
struct CommandLine : QCommandLineParser {
    bool IsSet(const char* name) const { return isSet(QString::fromLatin1(name)); }
    std::string Value(const char* name, const std::string& otherwise = {}) const {
        return IsSet(name) ? value(QString::fromLatin1(name)).toStdString() : otherwise;
    }

    // Absolute and cleaned; empty if nothing was given. The home is the user's own if none was.
    std::string Operand() const { return AbsolutePath(positionalArguments().value(1)); }
    std::string Path(const char* name) const { return AbsolutePath(value(QString::fromLatin1(name))); }
    std::string Home() const;

    // What a package may unpack to at the most, in bytes.
    std::int64_t Limit() const;

private:
    static std::string AbsolutePath(const QString& path);
};

// The program's exit codes.
inline constexpr int kExitGood = 0;
inline constexpr int kExitDefects = 1;
inline constexpr int kExitError = 2;  // usage, or a file that can't be read or written

// Gathers what a command found out, and prints it at the end: text, or one JSON object that has the same keys whatever
// the outcome. docs/packaging.md describes each key. One thread.
class Report {
public:
    // `keys` are the command's own, null until they are set.
    Report(const char* command, const QStringList& keys, bool isJson);

    bool isJson() const { return isJson_; }
    void Set(const char* key, const QJsonValue& value) { object_.insert(QString::fromLatin1(key), value); }
    void Set(const char* key, const std::string& text);
    void Set(const char* key, std::int64_t number) { Set(key, QJsonValue(static_cast<double>(number))); }
    // Entries, bytes and versions.
    void Set(const Package& package);

    // A line for people, in front of the findings. It is printed as it stands.
    void Say(const std::string& line) { lines_.push_back(line); }
    // The line behind them.
    void Sum(const std::string& line) { sum_ = line; }

    Findings findings;
    Findings mended{static_cast<std::size_t>(-1)};  // what a command has put right on its way, all of it

    // Prints. The exit code: an error, a finding, or good.
    int Finish(const Error& error);

private:
    const char* const command_;
    const bool isJson_;
    QJsonObject object_;
    std::vector<std::string> lines_;
    std::string sum_;
};

QJsonObject ToJson(Defect defect);
QJsonArray ToJson(const Findings::Groups& groups);
QJsonObject ToJson(const VersionInfo& versions);

// "version 2.1, build 1042".
std::string Shown(const VersionInfo& versions);

// To standard output, with a line's end.
void PrintLine(const std::string& text);

// Each fills the report, or says why it can't.
Error RunPack(const CommandLine& line, Report& report);
Error RunBundle(const CommandLine& line, Report& report);
Error RunCheck(const CommandLine& line, Report& report);
Error RunList(const CommandLine& line, Report& report);
Error RunExplain(const CommandLine& line, Report& report);
Error RunVerify(const CommandLine& line, Report& report);

// Whether a start of the launcher in `binaries` would install or upgrade in this home. Fills the path table for the
// two. The INFO files of both must be regular files or missing: the launcher waits for a FIFO without end. Main thread.
bool IsUpgradeDue(const std::string& home, const std::string& binaries);
