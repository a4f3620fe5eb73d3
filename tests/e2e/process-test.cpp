// The launcher and other processes: running clients, second starts, and an end or an error in the middle of the work.
#include <sys/stat.h>

#include <csignal>
#include <regex>

#include "launcher-test.h"

namespace {

class ProcessTest : public LauncherTest {
protected:
    void WritePid(pid_t process) const { Write(Private("ui.pid"), "pid=" + std::to_string(process) + "\n"); }

    // What was traced of the signals to a process and of the seconds in between, in order.
    Lines TracedSignals(pid_t process) const {
        const std::regex call("kill\\(" + std::to_string(process) +
                              ", (\\w+)|clock_nanosleep\\(\\w+, 0, \\{tv_sec=(\\d+)");
        Lines seen;
        const std::string text = Read(At("trace"));
        for (std::sregex_iterator match(text.begin(), text.end(), call), end; match != end; ++match) {
            seen.push_back(match->str(1) + match->str(2));
        }
        return seen;
    }
};

TEST_F(ProcessTest, ARunningClientIsStoppedForAnUpgradeAlone) {
    InstallClient(1000);
    LayBundle(1000);
    FakeClient prompt(manners::kPrompt);
    WritePid(prompt.id());
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(kill(prompt.id(), 0), 0);

    LayBundle(2000);
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(prompt.AwaitEnd(), 128 + SIGTERM);
    // The pid file is the client's: the launcher reads it and leaves it.
    ExpectInstalled(2000, {{"ui.pid", "644 file pid=" + std::to_string(prompt.id()) + "\n"}});

    FakeClient slow(manners::kSlow);
    WritePid(slow.id());
    LayBundle(3000);
    ExpectLaunched(Launch(), 3000);
    EXPECT_EQ(slow.AwaitEnd(), 7) << "it was killed although it was about to quit";
    EXPECT_EQ(LogLines(), Lines());
}

// The seconds pass in no time here: the call that waits is answered at once.
TEST_F(ProcessTest, AClientThatStaysIsKilledInTheEnd) {
    KQ_NEED(Ability::Tracing);
    KQ_NEED(Ability::Root);
    Lines expected = {"SIGTERM"};
    for (int probe = 0; probe < 15; ++probe) {
        expected.insert(expected.end(), {"0", "1"});
    }
    expected.emplace_back("SIGKILL");
    const Lines traced = Traced({"-e", "trace=kill,clock_nanosleep", "-e", "inject=clock_nanosleep:retval=0"});
    for (const char* manner : {manners::kDeaf, manners::kZombie, manners::kPrompt}) {
        SCOPED_TRACE(manner);
        fs::remove_all(home_);
        InstallClient(1000);
        LayBundle(2000);
        FakeClient client(manner);
        WritePid(client.id());
        // To another user's process nothing can be sent.
        const bool isOthers = manner == manners::kPrompt;
        Lines prefix = isOthers ? AsNobody({home_, At("run"), folder(), At("trace")}) : Lines();
        prefix.insert(prefix.end(), traced.begin(), traced.end());
        ExpectLaunched(Launch(prefix), 2000);
        EXPECT_EQ(TracedSignals(client.id()), expected);
        EXPECT_EQ(LogLines(), isOthers ? Lines{"[ERROR] kill: Operation not permitted (1)"} : Lines());
        if (manner == manners::kDeaf) {
            // Killed without a pause, it may not come to say that it heard.
            const std::string line = client.ReadLine();
            EXPECT_EQ(line == "term" ? client.AwaitEnd() : std::stoi(line), 128 + SIGKILL);
        } else if (isOthers) {
            EXPECT_EQ(kill(client.id(), 0), 0);
        }
    }
}

TEST_F(ProcessTest, PidFilesThatNameNobody) {
    const pid_t ended = FakeClient(manners::kPrompt).id();
    const struct {
        const char* about;
        std::string text;
        bool unreadable;
    } cases[] = {
        {"stale", "pid=" + std::to_string(ended) + "\n", false},
        {"stale among other keys", "# client\nport = 1\npid = \"" + std::to_string(ended) + "\"\n", false},
        {"empty file", "", true},
        {"no such key", "process=1\n", true},
        {"empty value", "pid=\"\"\n", true},
        {"value missing", "pid=\n", true},
        {"another line malformed", "pid=" + std::to_string(getpid()) + "\nwhat is this\n", true},
        {"binary", std::string("\0\1\2\xFF", 4) + "\n", true},
        {"a folder", "", true},
        {"a FIFO, which keeps nobody waiting", "", true},
    };
    int build = 1000;
    InstallClient(build);
    LogEverything();
    const std::string note = "[NOTE] Failed to read pid file '" + Private("ui.pid") + "', not exist ?";
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        LayBundle(++build);
        fs::remove_all(Private("ui.pid"));
        fs::remove_all(Private("log"));
        if (entry.about[0] != 'a' || entry.about[1] != ' ') {
            Write(Private("ui.pid"), entry.text);
        } else {
            const std::string path = Private("ui.pid");
            EXPECT_TRUE(entry.about[2] == 'f' ? fs::create_directory(path) : mkfifo(path.c_str(), 0600) == 0);
        }
        ExpectLaunched(Launch(), build);
        const Lines lines = LogLines();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), note), entry.unreadable ? 1 : 0);
    }
}

TEST_F(ProcessTest, ASecondStartLeavesAtOnceAndAKilledFirstOneDoesNotBlock) {
    // Without a runtime folder of the session's the instances meet as well.
    for (const bool hasFolder : {true, false}) {
        SCOPED_TRACE(hasFolder);
        fs::remove_all(home_);
        InstallClient(1000);
        LayBundle(2000);
        LogEverything();
        environment_[hasFolder ? "XDG_RUNTIME_DIR" : "TMPDIR"] = At("run");
        environment_.erase(hasFolder ? "TMPDIR" : "XDG_RUNTIME_DIR");
        FakeClient client(manners::kDeaf);
        WritePid(client.id());
        Process first(Arguments(), environment_);
        EXPECT_EQ(client.ReadLine(), "term");  // the first launcher is now busy waiting for the client
        const Outcome second = Launch();
        EXPECT_EQ(second.exitCode, 0);
        EXPECT_EQ(second.output + second.errors, "");
        EXPECT_EQ(LogLines().back(), "[DEBUG] app has already launched, return");

        // Another home is another matter. It is also the first to have started a client.
        const std::string home = home_;
        home_ = environment_["HOME"] = At("other home " + std::to_string(hasFolder));
        ExpectLaunched(Launch(), 2000);
        home_ = environment_["HOME"] = home;

        first.Signal(SIGKILL);
        EXPECT_EQ(first.Wait().signal, SIGKILL);
        kill(client.id(), SIGKILL);
        EXPECT_EQ(client.AwaitEnd(), 128 + SIGKILL);
        ExpectLaunched(Launch(), 2000);
    }
}

TEST_F(ProcessTest, WhateverLiesInTheLocksPlaceBlocksNobody) {
    environment_["TMPDIR"] = At("tmp");
    fs::create_directory(At("tmp"));
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    ASSERT_EQ(std::distance(fs::directory_iterator(At("run")), fs::directory_iterator()), 1);
    const std::string lock = fs::directory_iterator(At("run"))->path().string();
    const struct {
        const char* about;
        std::function<void()> lay;
    } cases[] = {
        {"text of an earlier process", [&] { Write(lock, "1\nkelvane-quay-launcher\nhere\n"); }},
        {"a folder", [&] { fs::create_directory(lock); }},
        {"a dangling link", [&] { fs::create_symlink("nowhere", lock); }},
        {"a link in a circle", [&] { fs::create_symlink(lock, lock); }},
        {"a FIFO", [&] { EXPECT_EQ(mkfifo(lock.c_str(), 0600), 0); }},
        {"a file that can't be read",
         [&] {
             Write(lock, "");
             fs::permissions(lock, fs::perms::none);
         }},
    };
    int build = 1000;
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        fs::remove(lock);
        entry.lay();
        LayBundle(++build);
        ExpectLaunched(Launch(), build);
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(lock)));
    }
    EXPECT_TRUE(fs::is_empty(At("tmp")));
    // A folder that others can write is no place for a lock: one of our own is made.
    fs::permissions(At("run"), fs::perms::all);
    fs::remove(lock);
    LayBundle(++build);
    ExpectLaunched(Launch(), build);
    EXPECT_FALSE(fs::exists(lock));
    EXPECT_FALSE(fs::is_empty(At("tmp")));
}

// Ends the launcher at the n-th call of a kind that changes its folders, or lets that call fail, for n from 1 until a
// run has fewer such calls. Afterwards the home must hold a client that is whole or that the next start
// completes, and nothing else must be lost.
struct Interruption {
    const char* name;
    bool isMigration;                 // or else an upgrade
    std::vector<const char*> faults;  // in turn
};
void PrintTo(const Interruption& interruption, std::ostream* out) {
    *out << interruption.name;
}

class InterruptionTest : public ProcessTest, public ::testing::WithParamInterface<Interruption> {
protected:
    static std::vector<PackageEntry> SmallEntries(int build) {
        std::vector<PackageEntry> entries = ClientEntries(build);
        entries.erase(entries.begin() + 4, entries.begin() + 7);
        return entries;
    }

    // A home as it is before the run, and a bundle.
    void Lay() {
        fs::remove_all(home_);
        if (GetParam().isMigration) {
            Write(home_ + "/.Tessaly/data/db/notes", "precious");
            Write(home_ + "/.Tessaly/Tessaly.app/x", "");
            return;
        }
        Write(Private("data/db/notes"), "precious");
        for (const PackageEntry& entry : SmallEntries(1000)) {
            const std::string path = App() + "/" + entry.path;
            entry.type == S_IFDIR ? static_cast<void>(fs::create_directories(path)) : Write(path, entry.content);
        }
        fs::permissions(App() + "/Contents/MacOS/cloud-quay-ui", static_cast<fs::perms>(0755));
    }

    // Runs the launcher with a fault at a call on what a run may change. Whether it came to that call.
    bool Interrupt(const std::string& call, const std::string& fault) {
        Lines arguments = {"-e", "trace=" + call, "-e", "inject=" + call + ":" + fault};
        const auto watch = [&](const std::string& path) { arguments.insert(arguments.end(), {"-P", path}); };
        for (const std::string& base : {App(), App() + "_tmp"}) {
            watch(base);
            for (const int build : {1000, 2000}) {
                for (const PackageEntry& entry : SmallEntries(build)) {
                    const std::string path = base + "/" + entry.path;
                    watch(entry.type == S_IFDIR ? path.substr(0, path.size() - 1) : path);
                }
            }
        }
        for (const char* path : {"", "/data", "/log", "/log/launcher.log"}) {
            watch(home_ + "/.KelvaneQuay" + path);
        }
        for (const char* path : {"", "/data", "/Tessaly.app", "/Tessaly.app/x"}) {
            watch(home_ + "/.Tessaly" + path);
        }
        // A client that a killed run has started must not be taken for the next one's.
        const bool isKill = fault.rfind("signal", 0) == 0;
        Environment environment = environment_;
        environment["KQ_TEST_MAILBOX"] = At(isKill ? "lost" : "mailbox");
        const Outcome outcome = RunProcess(Arguments(Traced(arguments)), environment);
        if (isKill && outcome.signal == SIGKILL) {
            return true;
        }
        EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
        return Read(At("trace")).find("INJECTED") != std::string::npos;
    }
};

TEST_P(InterruptionTest, TheNextStartCompletesTheWork) {
    KQ_NEED(Ability::Tracing);
    LayBundle(2000);
    WritePackage(Package(), SmallEntries(2000));
    Lay();
    const Tree old = Below(PrivateTree(), "KelvaneQuay.app");
    ExpectLaunched(Launch(), 2000);
    const Tree good = Below(PrivateTree(), "KelvaneQuay.app");
    int hits = 0;
    for (const std::string call : {"openat", "write", "mkdir", "rename", "unlink", "rmdir", "symlink"}) {
        // Of the opened files the first is spared: the client's shell reads its script as its own first.
        bool wasHit = true;
        for (int at = call == "openat" ? 2 : 1; wasHit; ++at) {
            const std::string fault = GetParam().faults[static_cast<std::size_t>(at) % GetParam().faults.size()];
            SCOPED_TRACE(fault + " at " + call + " " + std::to_string(at));
            Lay();
            wasHit = Interrupt(call, fault + ":when=" + std::to_string(at));
            hits += wasHit ? 1 : 0;
            if (fault != "signal=KILL") {
                const bool isOld = Below(PrivateTree(), "KelvaneQuay.app") == old;
                EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), isOld ? old : good);
                EXPECT_EQ(mailbox_.ReadLine(), StartedLine(isOld ? 1000 : 2000));
            }
            ExpectLaunched(Launch(), 2000);
            EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), good);
            EXPECT_EQ(Read(Private("data/db/notes")), "precious");
            ASSERT_FALSE(HasFailure());
        }
    }
    EXPECT_GT(hits, 20) << "fewer than the work takes";
}

INSTANTIATE_TEST_SUITE_P(OfA, InterruptionTest,
                         ::testing::Values(Interruption{"KilledUpgrade", false, {"signal=KILL"}},
                                           Interruption{"KilledMigration", true, {"signal=KILL"}},
                                           Interruption{
                                               "FailingUpgrade", false, {"error=ENOSPC", "error=EIO", "error=EACCES"}}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
