// What a command prints.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <string>
#include <vector>

#include "checks.h"
#include "finding.h"

// The program's exit codes.
inline constexpr int kExitGood = 0;
inline constexpr int kExitDefects = 1;
inline constexpr int kExitError = 2;  // usage, or a file that can't be read or written

// Gathers what a command found out, and prints it at the end: text, or one JSON object that has the same keys whatever
// the outcome. docs/packaging.md describes each key. One thread.
class Report {
public:
    // `keys` are the command's own, null until they are set.
    Report(const char* command, const QStringList& keys);

    void SetJson(bool isJson) { isJson_ = isJson; }
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
    bool isJson_ = false;
    QJsonObject object_;
    std::vector<std::string> lines_;
    std::string sum_;
};

QJsonObject ToJson(const Defect& defect);
QJsonArray ToJson(const Findings::Groups& groups);
QJsonObject ToJson(const VersionInfo& versions);

// "version 2.1, build 1042".
std::string Shown(const VersionInfo& versions);

// To standard output, with a line's end.
void PrintLine(const std::string& text);
