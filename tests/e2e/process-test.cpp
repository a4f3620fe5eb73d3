// The launcher and other processes: running clients, second starts, and an end in the middle of the work.
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "launcher-test.h"

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

class ProcessTest : public LauncherTest {
protected:
    void WritePid(pid_t process) const { Write(Private("ui.pid"), "pid=" + std::to_string(process) + "\n"); }

    // Whether a line of the log begins so.
    bool Logged(const std::string& start) const {
        for (const std::string& line : LogLines()) {
            if (line.compare(0, start.size(), start) == 0) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(ProcessTest, StopsARunningClientBeforeItsFilesMove) {
    InstallClient(1000);
    LayBundle(2000);
    FakeClient client(FakeClient::Manners::Prompt);
    WritePid(client.id());
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(client.AwaitEnd(), SIGTERM);
    // The pid file is the client's: the launcher reads it and leaves it.
    EXPECT_TRUE(fs::exists(Private("ui.pid")));
    EXPECT_EQ(LogLines(), Lines());
}

TEST_F(ProcessTest, LeavesARunningClientAloneWhenNothingIsToDo) {
    InstallClient(1000);
    LayBundle(1000);
    FakeClient client(FakeClient::Manners::Deaf);
    WritePid(client.id());
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(kill(client.id(), 0), 0);
}

TEST_F(ProcessTest, WaitsForAClientThatTakesSecondsToQuit) {
    InstallClient(1000);
    LayBundle(2000);
    FakeClient client(FakeClient::Manners::Slow);
    WritePid(client.id());
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(client.AwaitEnd(), 0) << "it was killed although it was about to quit";
}

TEST_F(ProcessTest, KillsADeafClientInTheEnd) {
    InstallClient(1000);
    LayBundle(2000);
    FakeClient client(FakeClient::Manners::Deaf);
    WritePid(client.id());
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(client.AwaitEnd(), SIGKILL);
}

TEST_F(ProcessTest, AZombieCountsAsRunningAndDoesNotStopTheUpgrade) {
    InstallClient(1000);
    LayBundle(2000);
    FakeClient client(FakeClient::Manners::Zombie);
    WritePid(client.id());
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(LogLines(), Lines());
}

TEST_F(ProcessTest, PidFilesThatNameNobody) {
    const pid_t ended = [] {
        FakeClient client(FakeClient::Manners::Prompt);
        return client.id();
    }();
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
    };
    int build = 1000;
    InstallClient(build);
    LogEverything();
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        LayBundle(++build);
        Write(Private("ui.pid"), entry.text);
        fs::remove_all(Private("log"));
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(Logged("[NOTE] Failed to read pid file '" + Private("ui.pid") + "', not exist ?"), entry.unreadable);
        EXPECT_FALSE(Logged("[ERROR]"));
    }
    // A FIFO keeps nobody waiting.
    fs::remove(Private("ui.pid"));
    EXPECT_EQ(mkfifo(Private("ui.pid").c_str(), 0600), 0);
    LayBundle(++build);
    ExpectLaunched(Launch(), build);
    // A folder in the file's place can be opened but not read: no key in it.
    fs::remove(Private("ui.pid"));
    fs::create_directories(Private("ui.pid"));
    LayBundle(++build);
    ExpectLaunched(Launch(), build);
}

TEST_F(ProcessTest, AClientOfAnotherUserIsReportedAndTheUpgradeGoesOn) {
    if (getuid() != 0) {
        GTEST_SKIP() << "needs root, to run the launcher as another user";
    }
    constexpr uid_t kUser = 65534;
    InstallClient(1000);
    LayBundle(2000);
    FakeClient client(FakeClient::Manners::Prompt);
    WritePid(client.id());
    ASSERT_EQ(RunProcess({"/bin/chown", "-R", std::to_string(kUser), home_, At("run")}, {}).exitCode, 0);
    fs::permissions(folder(), static_cast<fs::perms>(0755));
    ExpectLaunched(Launch(kUser), 2000);
    EXPECT_EQ(LogLines(), (Lines{"[ERROR] kill: Operation not permitted (1)"}));
    EXPECT_EQ(kill(client.id(), 0), 0);
}

TEST_F(ProcessTest, ASecondStartLeavesAtOnceAndAKilledFirstOneDoesNotBlock) {
    InstallClient(1000);
    LayBundle(2000);
    FakeClient client(FakeClient::Manners::Deaf);
    WritePid(client.id());
    LogEverything();

    Process first(Arguments(), environment_);
    client.AwaitTerm();  // the first launcher is now busy waiting for the client
    Outcome second = Launch();
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.output + second.errors, "");
    EXPECT_TRUE(Logged("[DEBUG] app has already launched, return"));
    EXPECT_TRUE(mailbox_.IsEmpty());

    // Another home is another matter.
    const std::string home = home_;
    home_ = environment_["HOME"] = At("other home");
    ExpectLaunched(Launch(), 2000);
    home_ = environment_["HOME"] = home;

    first.Signal(SIGKILL);
    first.Wait();
    kill(client.id(), SIGKILL);
    client.AwaitEnd();
    ExpectLaunched(Launch(), 2000);
}

TEST_F(ProcessTest, WithoutARuntimeFolderTheInstancesStillMeet) {
    InstallClient(1000);
    LayBundle(2000);
    environment_.erase("XDG_RUNTIME_DIR");
    environment_["TMPDIR"] = At("run");
    FakeClient client(FakeClient::Manners::Deaf);
    WritePid(client.id());
    Process first(Arguments(), environment_);
    client.AwaitTerm();
    const Outcome second = Launch();
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.output + second.errors, "");
    kill(client.id(), SIGKILL);
    client.AwaitEnd();
    ExpectLaunched(first.Wait(), 2000);
}

TEST_F(ProcessTest, WhateverLiesInTheLocksPlaceBlocksNobody) {
    environment_["TMPDIR"] = At("tmp");
    fs::create_directory(At("tmp"));
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    std::string lock;
    for (const fs::directory_entry& entry : fs::directory_iterator(At("run"))) {
        EXPECT_TRUE(lock.empty());
        lock = entry.path().string();
    }
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

TEST_F(ProcessTest, WithoutAThreadTheWorkIsDoneAllTheSame) {
#if defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the thread sanitizer makes threads of its own: which call is the launcher's can't be told";
#endif
    InstallClient(1000);
    LayBundle(2000);
    environment_["ASAN_OPTIONS"] = "detect_leaks=0";  // which a traced process can't do
    const Outcome outcome = RunProcess({"/usr/bin/strace", "-f", "-qq", "-o", "/dev/null", "-e", "trace=clone3,clone",
                                        "-e", "inject=clone3:error=EAGAIN:when=1", Arguments().front()},
                                       environment_);
    if (outcome.exitCode != 0) {
        GTEST_SKIP() << "needs strace: " << outcome.errors;
    }
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(2000));
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(2000));
}

// Kills the launcher at the n-th call of a kind that changes what is on disk, for n from 1 until a run survives. After
// each the home must hold a client that the next start completes, and nothing else must be lost.
class KillTest : public ProcessTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(KillTest, TheNextStartCompletesTheWork) {
    if (!fs::exists("/usr/bin/strace")) {
        GTEST_SKIP() << "needs strace, to end the launcher at a chosen call";
    }
    LayBundle(2000);
    // The launcher dies of the signal at the call's entry, before the call has done anything.
    const std::string call = GetParam();
    Environment traced = environment_;
    traced["ASAN_OPTIONS"] = "detect_leaks=0";  // which a traced process can't do
    constexpr int kMostCalls = 400;
    int at = 0;
    for (bool survived = false; !survived;) {
        ASSERT_LT(++at, kMostCalls);
        SCOPED_TRACE(call + " number " + std::to_string(at));
        fs::remove_all(home_);
        InstallClient(1000);
        Write(Private("data/precious"), "the user's own");
        const Outcome killed =
            RunProcess({"/usr/bin/strace", "-f", "-qq", "-o", "/dev/null", "-e", "trace=" + call, "-e",
                        "inject=" + call + ":signal=KILL:when=" + std::to_string(at), Arguments().front()},
                       traced);
        if (killed.errors.find("ptrace") != std::string::npos || killed.errors.find("PTRACE") != std::string::npos) {
            GTEST_SKIP() << "strace can't trace here: " << killed.errors;
        }
        // strace ends as its tracee did.
        survived = killed.signal != SIGKILL;
        EXPECT_TRUE(!survived || killed.exitCode == 0) << killed.errors;
        while (!mailbox_.IsEmpty()) {
            mailbox_.ReadLine();
        }
        ExpectLaunched(Launch(), 2000);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(2000));
        EXPECT_EQ(Read(Private("data/precious")), "the user's own");
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_GT(at, 1) << "the launcher never calls " << call;
}

INSTANTIATE_TEST_SUITE_P(AtEach, KillTest,
                         ::testing::Values("rename", "mkdir", "unlink", "rmdir", "symlink", "/^(write|pwrite64)$"));

}  // namespace
