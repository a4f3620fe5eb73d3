// The built launcher on a bundle and a home that are made for the test.
#pragma once

#include <string>
#include <vector>

#include "package.h"
#include "process.h"
#include "test-folder.h"

// A bundle in the test's folder, with the launcher in it, and a home. The client in the packages is a script that says
// in the test's mailbox that it was started, so that a test knows what the launcher started without waiting by guess.
class LauncherTest : public FolderTest {
protected:
    LauncherTest();

    // Lays the bundle: the launcher's binary, INFO with this build, and a package of the client of the same build.
    void LayBundle(int build);

    // The entries of a client of a build: what the package layout asks for, links, folders and odd names included, with
    // INFO last and the binary the one before.
    static std::vector<PackageEntry> ClientEntries(int build);

    // What those entries look like once they are installed.
    Tree ClientTree(int build) const;

    // Installs a client as an earlier run would have left it.
    void InstallClient(int build) const;

    // Puts a level file into the bundle that has everything logged.
    void LogEverything() const;

    // Starts the launcher and waits for its end.
    Outcome Launch(uid_t user = 0) { return Process(Arguments(), environment_, user).Wait(); }
    std::vector<std::string> Arguments() const { return {At("bundle/Contents/MacOS/kelvane-quay-launcher")}; }

    // What the client says when it has been started: "started BUILD in WORKINGFOLDER".
    std::string StartedLine(int build) const;

    // Checks a good run: exit code 0, nothing on the standard streams, and the client of this build started.
    void ExpectLaunched(const Outcome& outcome, int build);

    // The text part of each line of the log, without time, ids, file and line: "[ERROR] failed to ...".
    std::vector<std::string> LogLines() const;

    std::string Private(const std::string& name) const { return home_ + "/.KelvaneQuay/" + name; }
    std::string App() const { return Private("KelvaneQuay.app"); }

    // The tree of the private folder without the log.
    Tree PrivateTree() const;

    std::string home_;
    Environment environment_;
    Mailbox mailbox_;
};
