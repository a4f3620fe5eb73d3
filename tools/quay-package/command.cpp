#include "command.h"

#include "report.h"

CommandLine::CommandLine(const char* command, const char* description, const char* operand,
                         const char* operandDescription)
    : command_(command), operands_(operand == nullptr ? 0 : 1) {
    parser_.setApplicationDescription(QString::fromUtf8(description));
    parser_.addPositionalArgument(QString::fromUtf8(command), QStringLiteral("This subcommand."),
                                  QString::fromUtf8(command));
    if (operand != nullptr) {
        parser_.addPositionalArgument(QString::fromUtf8(operand), QString::fromUtf8(operandDescription));
    }
    parser_.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")});
    parser_.addOption({QStringLiteral("json"), QStringLiteral("Prints one JSON object instead of text.")});
}

void CommandLine::AddFlag(const char* name, const char* description) {
    parser_.addOption({QString::fromUtf8(name), QString::fromUtf8(description)});
}

void CommandLine::AddOption(const char* name, const char* shortName, const char* value, const char* description) {
    QStringList names = {QString::fromUtf8(name)};
    if (shortName != nullptr) {
        names.prepend(QString::fromUtf8(shortName));
    }
    parser_.addOption({names, QString::fromUtf8(description), QString::fromUtf8(value)});
}

bool CommandLine::Refuse(const QString& message) {
    exitCode_ = Fail(command_, isJson(), (message + QStringLiteral(" (see --help)")).toStdString());
    return false;
}

bool CommandLine::Parse(const QStringList& arguments, const QStringList& required, const char* alone) {
    const bool parsed = parser_.parse(arguments);
    if (IsSet("help")) {
        Print(parser_.helpText().toStdString());
        exitCode_ = kExitGood;
        return false;
    }
    if (!parsed) {
        return Refuse(parser_.errorText());
    }
    const auto operands = parser_.positionalArguments().size() - 1;
    if (alone != nullptr && IsSet(alone)) {
        return operands == 0 || Refuse(QStringLiteral("this option stands alone"));
    }
    if (operands != operands_ || parser_.positionalArguments().last().isEmpty()) {
        return Refuse(operands_ == 0 ? QStringLiteral("no operand is wanted")
                                     : QStringLiteral("exactly one operand is wanted"));
    }
    for (const QString& name : required) {
        if (parser_.value(name).isEmpty()) {
            return Refuse(QStringLiteral("--%1 is missing").arg(name));
        }
    }
    return true;
}

std::string CommandLine::Operand() const {
    std::string operand = parser_.positionalArguments().at(1).toStdString();
    while (operand.size() > 1 && operand.back() == '/') {
        operand.pop_back();
    }
    return operand;
}
