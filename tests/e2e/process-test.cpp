// The launcher and other processes: running clients, second starts, and an end or an error in the middle of the work.

#include <csignal>
#include <regex>

#include "launcher-test.h"

namespace {

class ProcessTest : public LauncherTest {
protected:
    void WritePid(pid_t process) const { Write(Private("ui.pid"), "pid=" + std::to_string(process) + "\n"); }

    // What was traced of the signals to a process and of the seconds in between, in order.
    std::string TracedSignals(pid_t process) const {
        const std::regex call("kill\\(" + std::to_string(process) +
                              ", (\\w+)|clock_nanosleep\\(\\w+, 0, \\{tv_sec=(\\d+)");
        std::string seen;
        const std::string text = Read(At("trace"));
        for (std::sregex_iterator match(text.begin(), text.end(), call), end; match != end; ++match) {
            seen += match->format("$1$2 ");
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
    EXPECT_EQ(PrivateTree(), HomeWith(2000, {{"ui.pid", "644 file pid=" + std::to_string(prompt.id()) + "\n"}}));

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
        EXPECT_EQ(TracedSignals(client.id()),
                  "SIGTERM 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 SIGKILL ");
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
    // What the file holds, and whether nobody can be read in it.
    const std::string file = Private("ui.pid");
    const std::pair<std::function<void()>, bool> cases[] = {
        {[&] { WritePid(ended); }, false},
        {[&] { Write(file, "# client\nport = 1\npid = \"" + std::to_string(ended) + "\"\n"); }, false},
        {[&] { Write(file, ""); }, true},
        {[&] { Write(file, "process=1\n"); }, true},
        {[&] { Write(file, "pid=\"\"\n"); }, true},
        {[&] { Write(file, "pid=\n"); }, true},
        {[&] { Write(file, "pid=" + std::to_string(getpid()) + "\nwhat is this\n"); }, true},
        {[&] { Write(file, std::string("\0\1\2\xFF", 4) + "\n"); }, true},
        {[&] { fs::create_directory(file); }, true},
        {[&] { EXPECT_EQ(mkfifo(file.c_str(), 0600), 0); }, true}};  // which keeps nobody waiting
    int build = 1000;
    InstallClient(build);
    LogEverything();
    const std::string note = "[NOTE] Failed to read pid file '" + file + "', not exist ?";
    for (const auto& [lay, isUnreadable] : cases) {
        LayBundle(++build);
        fs::remove_all(file);
        fs::remove_all(Private("log"));
        lay();
        ExpectLaunched(Launch(), build);
        const Lines lines = LogLines();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), note), isUnreadable ? 1 : 0) << build;
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
        EXPECT_EQ(Launch().errors, "");
        EXPECT_EQ(LogLines().back(), "[DEBUG] app has already launched, return");

        // Another home is another matter. It is also the first to have started a client.
        const std::string home = home_;
        home_ = environment_["HOME"] = At("other home " + std::to_string(hasFolder));
        ExpectLaunched(Launch(), 2000);
        home_ = environment_["HOME"] = home;
        first.Signal(SIGKILL);
        first.Wait();
        kill(client.id(), SIGKILL);
        client.AwaitEnd();
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
    // Text of an earlier process, no file, a file that can't be read.
    const std::function<void()> cases[] = {[&] { Write(lock, "1\nkelvane-quay-launcher\nhere\n"); },
                                           [&] { fs::create_directory(lock); },
                                           [&] { fs::create_symlink(lock, lock); },
                                           [&] { fs::create_symlink("nowhere", lock); },
                                           [&] { EXPECT_EQ(mkfifo(lock.c_str(), 0600), 0); },
                                           [&] { EXPECT_EQ(mknod(lock.c_str(), S_IFREG, 0), 0); }};
    int build = 1000;
    for (const auto& lay : cases) {
        fs::remove(lock);
        lay();
        LayBundle(++build);
        ExpectLaunched(Launch(), build);
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(lock))) << build;
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
// run has fewer such calls. Afterwards the home must hold a client that is whole or that the next start completes, and
// nothing else must be lost. The faults take turns.
using Interruption = std::tuple<const char*, std::vector<std::string>>;

class InterruptionTest : public ProcessTest, public ::testing::WithParamInterface<Interruption> {
protected:
    // Runs the launcher with a fault at a call on what a run may change. Whether it came to that call.
    bool Interrupt(const std::string& call, const std::string& fault) {
        Lines arguments = {"-e", "trace=" + call, "-e", "inject=" + call + ":" + fault};
        Tree changed = {
            {".KelvaneQuay/log", ""}, {".KelvaneQuay/log/launcher.log", ""}, {".KelvaneQuay/KelvaneQuay.app", ""}};
        changed.merge(ReadTree(home_));
        for (const auto& [path, description] : ClientTree(2000)) {
            changed[".KelvaneQuay/KelvaneQuay.app/" + path] = "";
        }
        for (const auto& [path, description] : changed) {
            arguments.insert(arguments.end(), {"-P", home_ + "/" + path});
            if (const std::size_t app = path.find(".app"); app != std::string::npos) {
                arguments.insert(arguments.end(),
                                 {"-P", home_ + "/" + path.substr(0, app + 4) + "_tmp" + path.substr(app + 4)});
            }
        }
        // A client that a killed run has started must not be taken for the next one's.
        Environment environment = environment_;
        environment["KQ_TEST_MAILBOX"] = At(fault[0] == 's' ? "lost" : "mailbox");
        const Outcome outcome = RunProcess(Arguments(Traced(arguments)), environment);
        EXPECT_TRUE(outcome.exitCode == 0 || outcome.signal == SIGKILL) << outcome.errors;
        return outcome.signal == SIGKILL || Read(At("trace")).find("INJECTED") != std::string::npos;
    }
};

TEST_P(InterruptionTest, TheNextStartCompletesTheWork) {
    KQ_NEED(Ability::Tracing);
    const auto& [name, faults] = GetParam();
    LayBundle(2000);
    int hits = 0;
    for (const std::string call : {"openat", "write", "mkdir", "rename", "unlink", "rmdir", "symlink"}) {
        // Of the opened files the first is spared: the client's shell reads its script as its own first.
        bool wasHit = true;
        for (int at = call == "openat" ? 2 : 1; wasHit; ++at) {
            const std::string fault = faults[static_cast<std::size_t>(at) % faults.size()];
            SCOPED_TRACE(fault + " at " + call + " " + std::to_string(at));
            fs::remove_all(home_);
            if (name[0] == 'M') {
                Write(home_ + "/.Tessaly/data/notes", "precious");
                Write(home_ + "/.Tessaly/Tessaly.app/x", "");
            } else {
                InstallClient(1000);
                Write(Private("data/notes"), "precious");
            }
            wasHit = Interrupt(call, fault + ":when=" + std::to_string(at));
            hits += wasHit ? 1 : 0;
            if (fault[0] == 'e') {
                const int whole = ReadTree(App()) == ClientTree(1000) ? 1000 : 2000;
                EXPECT_EQ(ReadTree(App()), ClientTree(whole));
                EXPECT_EQ(mailbox_.ReadLine(), StartedLine(whole));
            }
            ExpectLaunched(Launch(), 2000);
            EXPECT_EQ(ReadTree(App()), ClientTree(2000));
            EXPECT_EQ(Read(Private("data/notes")), "precious");
            ASSERT_FALSE(HasFailure());
        }
    }
    EXPECT_GT(hits, 20) << "fewer than the work takes";
}

INSTANTIATE_TEST_SUITE_P(OfA, InterruptionTest,
                         ::testing::Values(Interruption{"Upgrade", {"signal=KILL"}},
                                           Interruption{"Migration", {"signal=KILL"}},
                                           Interruption{"Failing", {"error=ENOSPC", "error=EIO", "error=EACCES"}}),
                         [](const auto& test) { return std::get<0>(test.param); });

}  // namespace
