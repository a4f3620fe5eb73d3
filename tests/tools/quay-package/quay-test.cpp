#include "quay-test.h"

#include <sys/stat.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "tools/quay-package/checks.h"
#include "tools/quay-package/zip.h"

Lines QuayTest::Words(const std::string& line) const {
    Lines words = {tool_};
    for (const QString& part : QProcess::splitCommand(QString::fromStdString(line))) {
        const std::string word = part.toStdString();
        words.push_back(word[0] == '@' ? At(word.substr(1)) : word == "LAUNCHER" ? KQ_LAUNCHER : word);
    }
    return words;
}

void QuayTest::Succeed(const std::string& line) const {
    const Outcome outcome = Run(line);
    EXPECT_EQ(outcome.exitCode, 0) << line << "\n" << outcome.output << outcome.errors;
}

QJsonObject QuayTest::RunJson(const std::string& line, int exitCode) const {
    const Outcome outcome = Run("--json " + line);
    EXPECT_EQ(outcome.exitCode, exitCode) << line << "\n" << outcome.output << outcome.errors;
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object();
    const char* const results[] = {"good", "defects", "error"};
    EXPECT_EQ(Value(object, "schema"), "1") << outcome.output;
    EXPECT_EQ(Value(object, "result"), results[exitCode]);
    EXPECT_EQ(Value(object, "error").empty(), exitCode != 2);
    return object;
}

std::string QuayTest::Value(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key)).toVariant().toString().toStdString();
}

Codes QuayTest::CodesOf(const QJsonObject& object, const char* key) {
    Codes codes;
    for (const QJsonValue& finding : object.value(QLatin1String(key)).toArray()) {
        codes.insert(Value(finding.toObject(), "code"));
    }
    return codes;
}

Codes QuayTest::CodesOf(const Findings& findings) {
    Codes codes;
    for (const auto& [defect, group] : findings.found()) {
        codes.insert(IdOf(defect));
    }
    return codes;
}

Codes QuayTest::Check(const std::string& operand) const {
    const Outcome outcome = Run("check --json " + operand);
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
    QFile file(QString::fromStdString(At("made.kpk")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    ZipWriter writer(file, 315532800);
    for (Entry& entry : entries) {
        entry.size = static_cast<std::int64_t>(entry.content.size());
        EXPECT_FALSE(writer.Add(entry, [&entry](const auto& take) { return take(entry.content); }));
    }
    EXPECT_FALSE(writer.Finish());
    file.close();
    return Read(At("made.kpk"));
}

Codes QuayTest::CheckBytes(const std::string& bytes) const {
    Write(At("made.kpk"), bytes);
    ::Package package;
    Findings findings;
    const Error error = CheckPackage(At("made.kpk"), kLargestPackage, package, findings);
    EXPECT_FALSE(error) << error.text();
    return CodesOf(findings);
}

std::string MachO() {
    // A load command of 72 bytes that names a segment of 4 bytes behind it.
    std::string bytes("\xcf\xfa\xed\xfe\7\0\0\1\3\0\0\0\2\0\0\0\1\0\0\0\x48\0\0\0\0\0\0\0\0\0\0\0\x19\0\0\0\x48", 37);
    bytes.resize(108);
    bytes[72] = 104;
    bytes[80] = 4;
    return bytes;
}

void QuayTest::MakeClient(int build) const {
    ClientTree(build);
    fs::remove_all(At("client"));
    fs::copy(At("expected-" + std::to_string(build)), At("client"),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void QuayTest::MakeBundle(int build) const {
    MakeClient(build);
    Pack(build);
    Succeed("bundle --launcher LAUNCHER --package @client.kpk -o @bundle");
}

void QuayTest::MakeFifo(const std::string& path) {
    fs::create_directories(fs::path(path).parent_path());
    fs::remove_all(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
}

std::set<std::string> QuayTest::Names(const std::string& folder) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}
