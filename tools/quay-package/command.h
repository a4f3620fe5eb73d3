// The subcommands.
#pragma once

#include <QCommandLineParser>
#include <QStringList>
#include <string>

// Each takes the program's arguments, the program's name and its own in front, and returns the exit code.
int RunPack(const QStringList& arguments);
int RunBundle(const QStringList& arguments);
int RunCheck(const QStringList& arguments);
int RunList(const QStringList& arguments);
int RunExplain(const QStringList& arguments);

// The command line of one subcommand: --help and --json are always there.
class CommandLine {
public:
    // `operand` names the one thing that the subcommand works on, as it stands in the usage line; null for none.
    CommandLine(const char* command, const char* description, const char* operand, const char* operandDescription);

    void AddFlag(const char* name, const char* description);
    // `shortName` may be null.
    void AddOption(const char* name, const char* shortName, const char* value, const char* description);

    // True: go on. False: the program ends with exitCode(), help or a message having been printed. Operand and all the
    // options named in `required` must be there, unless the flag `alone` is.
    bool Parse(const QStringList& arguments, const QStringList& required, const char* alone = nullptr);
    int exitCode() const { return exitCode_; }

    bool IsSet(const char* name) const { return parser_.isSet(QString::fromLatin1(name)); }
    std::string Value(const char* name) const { return parser_.value(QString::fromLatin1(name)).toStdString(); }
    bool isJson() const { return IsSet("json"); }

    // The operand, without trailing "/".
    std::string Operand() const;

private:
    bool Refuse(const QString& message);

    const char* const command_;
    const int operands_;
    QCommandLineParser parser_;
    int exitCode_ = 0;
};
