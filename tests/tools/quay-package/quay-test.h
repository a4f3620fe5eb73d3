// The tool's library, and the built quay-package, on things that are made for the test.
#pragma once

#include <QJsonObject>
#include <set>

#include "launcher-test.h"
#include "tools/quay-package/checks.h"

using Codes = std::set<std::string>;

// What is found once something was done.
using Cases = std::vector<std::pair<Codes, std::function<void()>>>;

// A whole program for macOS; an entry, of a mode that suits its kind.
std::string MachO();
Entry MakeEntry(const std::string& path, Kind kind = Kind::File, const std::string& text = {}, unsigned mode = 0644);

class QuayTest : public LauncherTest {
protected:
    // Behind other words the tool with the arguments of a line: "@x" is x in the test's folder, LAUNCHER the built one.
    Lines Words(const std::string& line, Lines words = {}) const;
    Outcome Run(const std::string& line) const { return RunProcess(Words(line), environment_); }

    // With --json: the object that it printed; a text or a number in it; the codes in it, and "error" for a failure.
    QJsonObject RunJson(const std::string& line) const;
    static std::string Value(const QJsonObject& object, const char* key);
    static Codes CodesOf(const QJsonObject& object, const char* key = "findings");
    // The codes of findings, each as often as it was found; all defects of a range must be in what was sown.
    static Lines CodesOf(const Findings& findings);
    static void ExpectAll(const Codes& sown, Defect first, Defect last);
    Codes Find(const std::string& line) const { return CodesOf(RunJson(line)); }
    void Succeed(const std::string& line) const { EXPECT_EQ(Find(line), Codes()) << line; }

    // A good client, small, as a package's entries, and such entries as an archive's bytes, with no rule in the way.
    static std::vector<Entry> GoodEntries();
    std::string Zip(std::vector<Entry> entries) const;

    // What the library says of an archive of these bytes.
    Lines CheckBytes(const std::string& bytes) const;

    // Makes "client"; packs it to "client.kpk"; lays "bundle" of both and the real launcher, where Launch() looks for
    // it.
    void MakeClient(int build = 7) const;
    void Pack(int build = 7) const { Succeed("pack @client -o @client.kpk --build " + std::to_string(build)); }
    void MakeBundle(int build = 7) const;

    // Puts a FIFO where something may stand, parents included.
    static void MakeFifo(const std::string& path);

    std::string tool_ = KQ_PACKAGE_TOOL;
};

// With "client", and "client.kpk" of it.
class ClientTest : public QuayTest {
protected:
    void SetUp() override { MakeClient(), Pack(); }
};
