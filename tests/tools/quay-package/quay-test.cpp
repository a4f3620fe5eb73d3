#include "quay-test.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "tools/quay-package/zip.h"

std::string MachO() {
    // A load command of 72 bytes that names a segment of 4 bytes behind it.
    std::string bytes("\xcf\xfa\xed\xfe\7\0\0\1\3\0\0\0\2\0\0\0\1\0\0\0\x48\0\0\0\0\0\0\0\0\0\0\0\x19\0\0\0\x48", 37);
    bytes.resize(108);
    bytes[72] = 104;
    bytes[80] = 4;
    return bytes;
}

Entry MakeEntry(const std::string& path, Kind kind, const std::string& text, unsigned mode) {
    Entry entry{path, kind, kind == Kind::Folder ? 0755 : kind == Kind::Link ? 0777 : mode};
    (kind == Kind::Link ? entry.target : entry.content) = text;
    entry.size = static_cast<std::int64_t>(entry.content.size());
    return entry;
}

Lines QuayTest::Words(const std::string& line, Lines words) const {
    words.push_back(tool_);
    for (const QString& part : QProcess::splitCommand(QString::fromStdString(line))) {
        const std::string word = part.toStdString();
        words.push_back(word[0] == '@' ? At(word.substr(1)) : word == "LAUNCHER" ? KQ_LAUNCHER : word);
    }
    return words;
}

QJsonObject QuayTest::RunJson(const std::string& line) const {
    const Outcome outcome = Run("--json " + line);
    QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object();
    const std::map<std::string, int> results = {{"good", 0}, {"defects", 1}, {"error", 2}};
    const auto result = results.find(Value(object, "result"));
    EXPECT_TRUE(result != results.end() && result->second == outcome.exitCode) << line << outcome.output;
    EXPECT_EQ(Value(object, "error").empty(), outcome.exitCode != 2) << line;
    EXPECT_TRUE(outcome.exitCode != 2 || !outcome.errors.empty()) << line;
    EXPECT_EQ(Value(object, "schema"), "1");
    return object;
}

std::string QuayTest::Value(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key)).toVariant().toString().toStdString();
}

Codes QuayTest::CodesOf(const QJsonObject& object, const char* key) {
    Codes codes = Value(object, "result") == "error" ? Codes{"error"} : Codes();
    for (const auto& finding : object.value(QLatin1String(key)).toArray()) {
        codes.insert(Value(finding.toObject(), "code"));
    }
    return codes;
}

Lines QuayTest::CodesOf(const Findings& findings) {
    Lines codes;
    for (const auto& [defect, group] : findings.found()) {
        codes.insert(codes.end(), group.total, IdOf(defect));
    }
    return codes;
}

void QuayTest::ExpectAll(const Codes& sown, Defect first, Defect last) {
    for (const auto& [defect, texts] : AllDefects()) {
        EXPECT_TRUE(defect < first || defect > last || sown.count(IdOf(defect)) == 1) << IdOf(defect);
    }
}

std::vector<Entry> QuayTest::GoodEntries() {
    std::vector<Entry> entries;
    for (const PackageEntry& source : ClientEntries(7)) {
        const std::string path = source.path.substr(0, source.path.find_last_not_of('/') + 1);
        entries.push_back(MakeEntry(path, KindOf(source.type), source.content.substr(0, 200), source.mode));
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

Lines QuayTest::CheckBytes(const std::string& bytes) const {
    Write(At("made.kpk"), bytes);
    ::Package package;
    Findings findings;
    EXPECT_FALSE(CheckPackage(At("made.kpk"), kLargestPackage, package, findings));
    return CodesOf(findings);
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
