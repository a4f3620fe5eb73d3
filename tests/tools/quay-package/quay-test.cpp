#include "quay-test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <filesystem>

namespace fs = std::filesystem;

Outcome QuayTest::Run(const std::vector<std::string>& arguments) const {
    std::vector<std::string> all = {tool_};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return RunProcess(all, environment_);
}

QJsonObject QuayTest::RunJson(std::vector<std::string> arguments, int exitCode) const {
    arguments.emplace_back("--json");
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.output << outcome.errors;
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output), &error);
    EXPECT_TRUE(document.isObject()) << error.errorString().toStdString() << "\n" << outcome.output;
    const QJsonObject object = document.object();
    const char* const results[] = {"good", "defects", "error"};
    EXPECT_EQ(object.value(QStringLiteral("result")).toString().toStdString(), results[exitCode]);
    EXPECT_EQ(object.value(QStringLiteral("command")).toString().toStdString(), arguments.front());
    return object;
}

std::set<std::string> QuayTest::Codes(const QJsonObject& object) {
    std::set<std::string> codes;
    for (const QJsonValue& finding : object.value(QStringLiteral("findings")).toArray()) {
        const QJsonObject values = finding.toObject();
        for (const char* key : {"code", "what", "why", "mend"}) {
            EXPECT_NE(values.value(QString::fromLatin1(key)).toString(), QString()) << key;
        }
        codes.insert(values.value(QStringLiteral("code")).toString().toStdString());
    }
    return codes;
}

std::string QuayTest::MakeClient(const std::string& name, int build) const {
    const std::string tree = At("expected-" + std::to_string(build));
    ClientTree(build);
    fs::copy(tree, At(name), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    return At(name);
}

std::string QuayTest::MakePackage(const std::string& client, int build) const {
    const std::string package = client + ".kpk";
    const Outcome outcome = Run({"pack", client, "-o", package, "--build", std::to_string(build)});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.output << outcome.errors;
    return package;
}

std::string QuayTest::MakeBundle(const std::string& package) const {
    const Outcome outcome = Run({"bundle", "--launcher", KQ_LAUNCHER, "--package", package, "-o", At("bundle")});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.output << outcome.errors;
    return At("bundle");
}

std::set<std::string> QuayTest::Names(const std::string& folder) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}
