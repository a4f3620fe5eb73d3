// The launcher and other processes: running clients, second starts, and an end or an error in the middle of the work.

#include <csignal>

#include "launcher-test.h"

namespace {

class ProcessTest : public LauncherTest {
protected:
    void WritePid(pid_t process) const { Write(Private("ui.pid"), "pid=" + std::to_string(process) + "\n"); }
};

TEST_F(ProcessTest, ARunningClientIsStoppedForAnUpgradeAlone) {
    InstallClient(1000);
    LayBundle(1000);
    FakeClient prompt(FakeClient::kPrompt);
    WritePid(prompt.id());
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(kill(prompt.id(), 0), 0);

    LayBundle(2000);
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(prompt.AwaitEnd(), 128 + SIGTERM);
    // The pid file is the client's: the launcher reads it and leaves it.
    EXPECT_EQ(PrivateTree(), HomeWith(2000, {{"ui.pid", "644 file pid=" + std::to_string(prompt.id()) + "\n"}}));
    EXPECT_EQ(LogLines(), Lines());
}

// The seconds pass in no time here: the call that waits is answered at once.
TEST_F(ProcessTest, AClientThatStaysIsKilledInTheEnd) {
    KQ_NEED(Ability::Tracing);
    for (const bool isAnothers : {false, true}) {
        fs::remove_all(home_);
        InstallClient(1000);
        LayBundle(2000);
        FakeClient client(FakeClient::kDeaf);
        WritePid(client.id());
        Lines arguments = {"-e", "trace=kill,clock_nanosleep", "-e", "inject=clock_nanosleep:retval=0"};
        if (isAnothers) {
            arguments.insert(arguments.end(), {"-e", "inject=kill:error=EPERM"});
        }
        ExpectLaunched(Launch(Traced(arguments)), 2000);
        const std::string wanted = "(kill\\(" + std::to_string(client.id()) + ", |0, .tv_sec=)\\K\\w+";
        std::string calls = RunProcess({"grep", "-oP", wanted, At("trace")}).output;
        std::replace(calls.begin(), calls.end(), '\n', ' ');
        EXPECT_EQ(calls, "SIGTERM 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 SIGKILL ");
        EXPECT_EQ(LogLines(), isAnothers ? Lines{"[ERROR] kill: Operation not permitted (1)"} : Lines());
        if (!isAnothers) {
            // Killed without a pause, it may not come to say that it heard.
            const std::string line = client.ReadLine();
            EXPECT_EQ(line == "term" ? client.AwaitEnd() : std::stoi(line), 128 + SIGKILL);
        }
    }
}

TEST_F(ProcessTest, PidFilesThatNameNobody) {
    const std::string ended = std::to_string(FakeClient(FakeClient::kPrompt).id());
    const std::string file = Private("ui.pid");
    int build = 1000;
    InstallClient(build);
    LogEverything();
    // From the third on nobody can be read in it. A FIFO keeps nobody waiting.
    const Lines lays = {"echo pid=" + ended + " >",
                        "printf '# client\\nport = 1\\npid = \"" + ended + "\"\\n' >",
                        ": >",
                        "echo process=1 >",
                        "echo 'pid=\"\"' >",
                        "printf \"pid=$PPID\\nwhat is this\\n\" >",
                        "printf '\\0\\1\\377\\n' >",
                        "mkdir",
                        "mkfifo"};
    for (const std::string& lay : lays) {
        LayBundle(++build);
        fs::remove_all(file);
        fs::remove_all(Private("log"));
        EXPECT_EQ(RunProcess({"/bin/sh", "-c", lay + " \"$0\"", file}).exitCode, 0) << lay;
        ExpectLaunched(Launch(), build);
        const Lines lines = LogLines();
        const std::string note = "[NOTE] Failed to read pid file '" + file + "', not exist ?";
        EXPECT_EQ(std::count(lines.begin(), lines.end(), note), build > 1002 ? 1 : 0) << lay;
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
        FakeClient client(FakeClient::kDeaf);
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
    int build = 1000;
    for (const std::string lay :
         {"echo 1 >", "mkdir", "ln -s $0", "ln -s nowhere", "mkfifo", "install -m 0 /dev/null"}) {
        fs::remove(lock);
        EXPECT_EQ(RunProcess({"/bin/sh", "-c", lay + " \"$0\"", lock}).exitCode, 0) << lay;
        LayBundle(++build);
        ExpectLaunched(Launch(), build);
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(lock))) << lay;
    }
    EXPECT_TRUE(fs::is_empty(At("tmp")));
    // A folder that others can write is no place for a lock: one of our own is made, if the system has made none.
    const std::string user = std::to_string(getuid());
    const bool hasOther = fs::exists("/run/user/" + user);
    fs::permissions(At("run"), fs::perms::all);
    fs::remove(lock);
    LayBundle(++build);
    ExpectLaunched(Launch(), build);
    EXPECT_FALSE(fs::exists(lock));
    EXPECT_NE(fs::exists(At("tmp/kelvane-quay-launcher-" + user)), hasOther);
}

// Ends the launcher at the n-th call of a kind that changes its folders, or lets that call fail, for n from 1 until a
// run has fewer such calls. Afterwards the home must hold a client that is whole or that the next start completes, and
// nothing else must be lost. The errors take turns.
class InterruptionTest : public ProcessTest, public ::testing::WithParamInterface<const char*> {
protected:
    // Runs the launcher with a fault at a call on what a run may change. Whether it came to that call.
    bool Interrupt(const std::string& call, const std::string& fault) {
        Lines arguments = {"-e", "trace=" + call, "-e", "inject=" + call + ":" + fault,
                           "-P", Private("log"),  "-P", Private("log/launcher.log"),
                           "-P", App(),           "-P", App() + "_tmp"};
        for (const auto& [path, description] : ReadTree(home_)) {
            arguments.insert(arguments.end(), {"-P", home_ + "/" + path});
        }
        Tree clients = ClientTree(1000);
        clients.merge(ClientTree(2000));
        for (const auto& [path, description] : clients) {
            arguments.insert(arguments.end(), {"-P", App() + "/" + path, "-P", App() + "_tmp/" + path});
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
    const std::string name = GetParam();
    const Lines faults = name == "Failing" ? Lines{"error=ENOSPC", "error=EIO", "error=EACCES"} : Lines{"signal=KILL"};
    LayBundle(2000);
    int hits = 0;
    for (const std::string call : {"openat", "write", "mkdir", "rename", "unlink", "rmdir", "symlink"}) {
        // Of the opened files the first is spared: the client's shell reads its script as its own first.
        std::size_t at = call == "openat" ? 2 : 1;
        for (bool wasHit = true; wasHit; ++at) {
            const std::string fault = faults[at % faults.size()] + ":when=" + std::to_string(at);
            SCOPED_TRACE(call + " " + fault);
            fs::remove_all(home_);
            if (name == "Migration") {
                Write(home_ + "/.Tessaly/data/notes", "precious");
                Write(home_ + "/.Tessaly/Tessaly.app/x", "");
            } else {
                InstallClient(1000);
                Write(Private("data/notes"), "precious");
            }
            wasHit = Interrupt(call, fault);
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

INSTANTIATE_TEST_SUITE_P(OfA, InterruptionTest, ::testing::Values("Upgrade", "Migration", "Failing"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
