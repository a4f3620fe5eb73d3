// What the subcommands print.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <string>

#include "finding.h"
#include "version-probe.h"

// The program's exit codes.
constexpr int kExitGood = 0;
constexpr int kExitDefects = 1;
constexpr int kExitError = 2;  // usage, or a file that can't be read or written

// Texts for people go to standard output as they stand.
void Print(const std::string& text);
void PrintLine(const std::string& text);

// One block a finding: code, entry, what, why and how to mend it; then how many were not listed.
void PrintFindings(const Findings& findings);

// One line a finding, for what was mended on the way.
void PrintMended(const Findings& mended);

QString Q(const std::string& text);  // from UTF-8; what is not goes as "\xNN"
QJsonArray ToJson(const Findings& findings);
QJsonArray MendedToJson(const Findings& mended);
QJsonObject ToJson(const Versions& versions);

// Prints the object, with "command" and "result" ("good", "defects" or "error") added, and returns `exitCode`.
int PrintJson(const char* command, QJsonObject object, int exitCode);

// "1.0 MiB".
std::string SizeText(std::int64_t bytes);

// "0755".
std::string Octal(unsigned mode);

// What a subcommand says when it can't go on: the message on standard error and, with `json`, an object with "error".
// Returns kExitError.
int Fail(const char* command, bool json, const std::string& message);
