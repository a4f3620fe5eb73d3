#include "process.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int kLimit = 60000;  // milliseconds

// Runs its first argument, which reads from descriptor 3 what this shell would, and tells of its end.
constexpr char kReapingShell[] = "exec 3<&0; bash -c \"$1\" & wait $! 2>/dev/null; echo $?";

}  // namespace

Process::Process(const std::vector<std::string>& arguments, const Environment& environment) {
    QStringList list;
    for (const std::string& argument : arguments) {
        list << QString::fromStdString(argument);
    }
    QProcessEnvironment settings;
    settings.insert(QStringLiteral("PATH"), QStringLiteral("/usr/sbin:/usr/bin:/sbin:/bin"));
    for (const auto& [name, value] : environment) {
        settings.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    process_.setProcessEnvironment(settings);
    process_.start(list.takeFirst(), list);
    EXPECT_TRUE(process_.waitForStarted()) << arguments.front();
}

Process::~Process() {
    process_.kill();
    process_.waitForFinished();
}

void Process::Signal(int number) const {
    kill(static_cast<pid_t>(process_.processId()), number);
}

std::string Process::ReadLine() {
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(kLimit)) {
            ADD_FAILURE() << "no line came";
            return "";
        }
    }
    return process_.readLine().trimmed().toStdString();
}

Outcome Process::Wait() {
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.state() == QProcess::NotRunning || process_.waitForFinished(kLimit)) << "it did not end";
    const bool ended = process_.exitStatus() == QProcess::NormalExit;
    return {ended ? process_.exitCode() : -1, ended ? 0 : process_.exitCode(),
            process_.readAllStandardOutput().toStdString(), process_.readAllStandardError().toStdString()};
}

Outcome RunProcess(const std::vector<std::string>& arguments, const Environment& environment) {
    return Process(arguments, environment).Wait();
}

FakeClient::FakeClient(const std::string& script)
    : shell_({"/bin/bash", "-c", script == manners::kZombie ? script : kReapingShell, "", script}),
      id_(std::stoi("0" + shell_.ReadLine())) {
}

FakeClient::~FakeClient() {
    kill(id_, SIGKILL);
}

int FakeClient::AwaitEnd() {
    return std::stoi("0" + shell_.ReadLine());
}
