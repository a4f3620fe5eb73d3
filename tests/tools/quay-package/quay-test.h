// The tool's library, and the built quay-package, on things that are made for the test.
#pragma once

#include <QJsonObject>
#include <set>
#include <string>
#include <vector>

#include "launcher-test.h"
#include "tools/quay-package/entry.h"
#include "tools/quay-package/finding.h"

using Codes = std::set<std::string>;

// What is found once something was done.
using Cases = std::vector<std::pair<Codes, std::function<void()>>>;

// A whole program for macOS.
std::string MachO();

class QuayTest : public LauncherTest {
protected:
    // The tool with the arguments of a line: "@x" is x in the test's folder, LAUNCHER the built one.
    Lines Words(const std::string& line) const;

    // Runs it in the fixture's environment; the same, and it must succeed.
    Outcome Run(const std::string& line) const { return RunProcess(Words(line), environment_); }
    void Succeed(const std::string& line) const;

    // With --json: the object that it printed; a text or a number of such an object; the codes in it, each once.
    QJsonObject RunJson(const std::string& line, int exitCode) const;
    static std::string Value(const QJsonObject& object, const char* key);
    static Codes CodesOf(const QJsonObject& object, const char* key = "findings");
    static Codes CodesOf(const Findings& findings);

    // What the tool says of a bundle or a package; options may follow.
    Codes Check(const std::string& operand) const;

    // A good client as a package's entries, and such entries as an archive's bytes, with no rule in the way.
    static std::vector<Entry> GoodEntries();
    std::string Zip(std::vector<Entry> entries) const;

    // What the library says of an archive of these bytes.
    Codes CheckBytes(const std::string& bytes) const;

    // Makes "client", which has all that a good one needs: programs, links, names outside ASCII; packs it to
    // "client.kpk"; lays "bundle" of both and the real launcher, where Launch() looks for it.
    void MakeClient(int build = 7) const;
    void Pack(int build = 7) const { Succeed("pack @client -o @client.kpk --build " + std::to_string(build)); }
    void MakeBundle(int build = 7) const;

    // Puts a FIFO where something may stand, parents included.
    static void MakeFifo(const std::string& path);

    // The names in a folder.
    static std::set<std::string> Names(const std::string& folder);

    std::string tool_ = KQ_PACKAGE_TOOL;
};
