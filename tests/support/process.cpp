#include "process.h"

#include <gtest/gtest.h>

constexpr int kLimit = 60000;  // milliseconds

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
    setProcessEnvironment(settings);
    start(list.takeFirst(), list);
    EXPECT_TRUE(waitForStarted()) << arguments.front();
}

Process::~Process() {
    kill();
    waitForFinished();
}

std::string Process::ReadLine() {
    while (!canReadLine()) {
        if (!waitForReadyRead(kLimit)) {
            ADD_FAILURE() << "no line came";
            return "";
        }
    }
    return readLine().trimmed().toStdString();
}

Outcome Process::Wait() {
    closeWriteChannel();
    EXPECT_TRUE(state() == NotRunning || waitForFinished(kLimit)) << "it did not end";
    const bool ended = exitStatus() == NormalExit;
    return {ended ? exitCode() : -1, ended ? 0 : exitCode(), readAllStandardOutput().toStdString(),
            readAllStandardError().toStdString()};
}

Outcome RunProcess(const std::vector<std::string>& arguments, const Environment& environment) {
    return Process(arguments, environment).Wait();
}
