// The built launcher on a bundle and a home that are made for the test.
#pragma once

#include "process.h"
#include "test-folder.h"

using Lines = std::vector<std::string>;

// A bundle in the test's folder, with the launcher in it, and a home. The client in the packages is a script that says
// in the test's mailbox that it was started, so that a test knows what the launcher started without waiting by guess.
class LauncherTest : public FolderTest {
protected:
    LauncherTest();

    // Lays the bundle: the launcher's binary, INFO with this build, and a package of the client of the same build; and
    // a level file that has everything logged.
    void LayBundle(int build);
    void LogEverything() const;

    // The entries of a client: links, folders and odd names included, INFO last and the binary the one before.
    static std::vector<PackageEntry> ClientEntries(int build);
    // What they look like once they are installed; installs them as an earlier run would have left them; the private
    // folder with them and what else is named.
    Tree ClientTree(int build) const;
    void InstallClient(int build) const;
    Tree HomeWith(int build, Tree others = {}) const;

    // Starts the launcher, with a program in front, and waits for its end. Such a program: strace with these arguments,
    // on all threads, to the file "trace".
    Lines Arguments(Lines prefix = {}) const;
    Outcome Launch(const Lines& prefix = {}) const { return RunProcess(Arguments(prefix), environment_); }
    Lines Traced(const Lines& arguments) const;

    // What the client says when it has been started; checks a good run: exit code 0, nothing on the standard streams,
    // and the client of this build started.
    std::string StartedLine(int build) const;
    void ExpectLaunched(const Outcome& outcome, int build);

    // The text part of each line of the log, without time, ids, file and line: "[ERROR] failed to ...".
    Lines LogLines() const;

    std::string Private(const std::string& name) const { return home_ + "/.KelvaneQuay/" + name; }
    std::string App() const { return Private("KelvaneQuay.app"); }
    std::string Package() const { return bundle_ + "/Contents/Resources/package/tessaly.kpk"; }
    // The tree of the private folder without the log.
    Tree PrivateTree() const;

    std::string home_ = At("home");
    std::string bundle_ = At("bundle");
    Environment environment_;
    Process mailbox_;
};
