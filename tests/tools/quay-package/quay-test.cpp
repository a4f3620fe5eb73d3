#include "quay-test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <filesystem>

#include "tools/quay-package/package-check.h"
#include "tools/quay-package/rules.h"
#include "tools/quay-package/zip.h"

namespace fs = std::filesystem;

Outcome QuayTest::Run(const std::vector<std::string>& arguments) const {
    std::vector<std::string> all = {tool_};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return RunProcess(all, environment_);
}

QJsonObject QuayTest::RunJson(std::vector<std::string> arguments, int exitCode) const {
    arguments.insert(arguments.begin(), "--json");
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.output << outcome.errors;
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object();
    const char* const results[] = {"good", "defects", "error"};
    EXPECT_EQ(object.value(QStringLiteral("schema")).toInt(), 1) << outcome.output;
    EXPECT_EQ(object.value(QStringLiteral("result")).toString().toStdString(), results[exitCode]);
    EXPECT_EQ(object.value(QStringLiteral("error")).isNull(), exitCode != 2);
    return object;
}

Codes QuayTest::CodesOf(const QJsonObject& object) {
    Codes codes;
    for (const QJsonValue& finding : object.value(QStringLiteral("findings")).toArray()) {
        codes.insert(finding.toObject().value(QStringLiteral("code")).toString().toStdString());
    }
    return codes;
}

Codes QuayTest::CodesOf(const Findings& findings) {
    Codes codes;
    for (const auto& [code, group] : findings.found()) {
        codes.insert(IdOf(*group.defect));
    }
    return codes;
}

Codes QuayTest::Check(const std::string& operand, const std::vector<std::string>& options) const {
    std::vector<std::string> arguments = {"check", operand, "--json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Outcome outcome = Run(arguments);
    const Codes codes = CodesOf(QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object());
    EXPECT_EQ(outcome.exitCode, codes.empty() ? 0 : 1) << outcome.output << outcome.errors;
    return codes;
}

std::vector<Entry> QuayTest::GoodEntries() {
    std::vector<Entry> entries;
    for (const PackageEntry& source : ClientEntries(7)) {
        Entry& entry = entries.emplace_back();
        entry.path = source.path.substr(0, source.path.find_last_not_of('/') + 1);
        entry.kind = KindOf(source.type);
        entry.mode = source.mode;
        (entry.kind == Kind::Link ? entry.target : entry.content) = source.content;
        entry.size = static_cast<std::int64_t>(entry.content.size());
    }
    return entries;
}

std::string QuayTest::Zip(std::vector<Entry> entries) const {
    const std::string path = At("made.kpk");
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    ZipWriter writer(file, 315532800);
    for (Entry& entry : entries) {
        entry.size = static_cast<std::int64_t>(entry.content.size());
        EXPECT_FALSE(writer.Add(entry, [&entry](const auto& take) { return take(entry.content); }));
    }
    EXPECT_FALSE(writer.Finish());
    file.close();
    return Read(path);
}

Codes QuayTest::CheckBytes(const std::string& bytes) const {
    Write(At("made.kpk"), bytes);
    ::Package package;
    Findings findings;
    const Error error = CheckPackage(At("made.kpk"), kLargestPackage, package, findings);
    EXPECT_FALSE(error) << error.text();
    return CodesOf(findings);
}

std::string QuayTest::MakeClient(const std::string& name, int build) const {
    ClientTree(build);
    fs::copy(At("expected-" + std::to_string(build)), At(name),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
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
