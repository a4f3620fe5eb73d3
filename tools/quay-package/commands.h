// The subcommands and what they are given.
#pragma once

#include <QCommandLineParser>
#include <string>

#include "error.h"
#include "report.h"

// The arguments of a command: operand and options in any order. Texts are UTF-8.
class CommandLine {
public:
    explicit CommandLine(const QCommandLineParser& parser) : parser_(parser) {}

    bool IsSet(const char* name) const { return parser_.isSet(QString::fromLatin1(name)); }
    std::string Value(const char* name, const std::string& otherwise = {}) const {
        return IsSet(name) ? parser_.value(QString::fromLatin1(name)).toStdString() : otherwise;
    }

    // Absolute and cleaned; empty if nothing was given.
    std::string Operand() const { return AbsolutePath(parser_.positionalArguments().value(1)); }
    std::string Path(const char* name) const { return AbsolutePath(parser_.value(QString::fromLatin1(name))); }

    // The home of --home, or the user's own.
    std::string Home() const;

    // Hands what --accept says over, and reads --max-unpacked.
    Error Take(Findings& findings, std::int64_t& limit) const;

private:
    static std::string AbsolutePath(const QString& path);

    const QCommandLineParser& parser_;
};

// Each fills the report, or says why it can't.
Error RunPack(const CommandLine& line, Report& report);
Error RunBundle(const CommandLine& line, Report& report);
Error RunCheck(const CommandLine& line, Report& report);
Error RunList(const CommandLine& line, Report& report);
Error RunExplain(const CommandLine& line, Report& report);
Error RunVerify(const CommandLine& line, Report& report);
