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

class QuayTest : public LauncherTest {
protected:
    // Runs the tool with these arguments in the fixture's environment.
    Outcome Run(const std::vector<std::string>& arguments) const;

    // The same with --json: the object that it printed.
    QJsonObject RunJson(std::vector<std::string> arguments, int exitCode) const;

    // The codes of an object's findings, each once.
    static Codes CodesOf(const QJsonObject& object);
    static Codes CodesOf(const Findings& findings);

    // What the tool says of a bundle or a package.
    Codes Check(const std::string& operand, const std::vector<std::string>& options = {}) const;

    // A good client as a package's entries, and such entries as an archive's bytes, with no rule in the way.
    static std::vector<Entry> GoodEntries();
    std::string Zip(std::vector<Entry> entries) const;

    // What the library says of an archive of these bytes.
    Codes CheckBytes(const std::string& bytes) const;

    // A client's folder that has all that a good one needs: programs, links, names outside ASCII.
    std::string MakeClient(const std::string& name = "client", int build = 7) const;

    // Packs a client's folder; the package's path.
    std::string MakePackage(const std::string& client, int build = 7) const;

    // Lays a bundle with the real launcher at "bundle", where Launch() looks for it.
    std::string MakeBundle(const std::string& package) const;

    // The names in a folder.
    static std::set<std::string> Names(const std::string& folder);

    std::string tool_ = KQ_PACKAGE_TOOL;
};
