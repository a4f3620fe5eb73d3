#include "quay-test.h"
#include "volume.h"

class ExplainTest : public QuayTest {
protected:
    void SetUp() override { MakeBundle(8); }

    // Explains, or verifies, and checks that nothing has changed: not even a time.
    QJsonObject Explain(const Codes& codes, const std::string& command = "explain") const {
        const Lines list = {"/bin/ls", "-lAiRc", "--time-style=full-iso", home_, bundle_};
        const std::string before = RunProcess(list).output;
        QJsonObject object = RunJson(command + " @bundle --home @home");
        EXPECT_EQ(CodesOf(object), codes);
        EXPECT_EQ(RunProcess(list).output, before);
        return object;
    }

    void EmptyHome() const { fs::remove_all(home_), fs::create_directory(home_); }

    const std::string c_ = App() + "/Contents";
    const std::string program_ = c_ + "/MacOS/cloud-quay-ui";
    const std::string old_ = home_ + "/.Tessaly";
};

// What it says of a home, and what the launcher then does there.
TEST_F(ExplainTest, SaysWhatTheLauncherThenDoes) {
    Write(old_ + "/data/history", "");
    const QJsonObject first = Explain({});
    EXPECT_EQ(Value(first, "decision"), "install");
    EXPECT_EQ(Value(first, "reason"), "the client's binary is missing");
    EXPECT_EQ(Value(first, "migrate"), old_);
    ExpectLaunched(Launch(), 8);
    EXPECT_EQ(ReadTree(App()), ClientTree(8));
    EXPECT_TRUE(fs::exists(Private("data/history")));

    EXPECT_EQ(Value(Explain({}), "decision"), "none");
    ExpectLaunched(Launch(), 8);

    MakeBundle(9);
    Write(Private("KelvaneQuay.app_tmp/leftover"), "");
    Write(old_ + "/app/x", "");
    FakeClient client(FakeClient::kPrompt);
    Write(Private("ui.pid"), "pid=" + std::to_string(client.id()) + "\n");
    const QJsonObject third = Explain({"KQ806", "KQ809"});
    EXPECT_EQ(Value(third, "decision"), "upgrade");
    EXPECT_EQ(Value(third, "stop"), std::to_string(client.id()));
    EXPECT_EQ(Value(third, "backup"), App() + "_tmp1");
    EXPECT_EQ(Value(third, "remove"), old_ + "/app");
    ExpectLaunched(Launch(), 9);
    Succeed("verify @bundle --home @home");
    EXPECT_EQ(client.AwaitEnd(), 128 + SIGTERM);
    EXPECT_FALSE(fs::exists(old_ + "/app"));
}

// What stands in the way, one home each; what the next upgrade replaces does not.
TEST_F(ExplainTest, FindsWhatStandsInTheWay) {
    const Cases homes = {
        {{"KQ801"}, [&] { fs::remove(home_), fs::create_symlink("nowhere", home_); }},
        {{"KQ804"}, [&] { Write(home_ + "/.KelvaneQuay", "a file"); }},
        {{"KQ805"}, [&] { fs::create_directory_symlink(At("run"), home_ + "/.KelvaneQuay"); }},
        {{"KQ805"}, [&] { fs::rename(home_, At("real")), fs::create_directory_symlink("real", home_); }},
        {{"KQ808"}, [&] { Write(old_ + "/data/old", ""), Write(Private("data/new"), ""); }},
        {{"KQ809"}, [&] { InstallClient(7), Write(Private("ui.pid"), "pid=0\n"); }},
        {{"KQ804"}, [&] { MakeFifo(c_ + "/Resources/INFO"); }},
        {{"KQ502"}, [&] { InstallClient(8), fs::permissions(program_, fs::perms(0644)); }},
        {{},
         [&] { InstallClient(7), fs::permissions(program_, fs::perms(0644)), fs::create_symlink("/x", c_ + "/l"); }},
    };
    for (const auto& [codes, spoil] : homes) {
        EmptyHome();
        spoil();
        Explain(codes);
    }
    for (const char* digit : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        Write(App() + "_tmp" + digit + "/x", "");
    }
    EXPECT_EQ(Value(Explain({"KQ806", "KQ807"}), "backup"), "");
}

// By the same rules as `check`, and only where the package is going to be unpacked.
TEST_F(ExplainTest, ABundleThatCantBeInstalled) {
    const std::string info = bundle_ + "/Contents/Resources/INFO";
    fs::resize_file(Package(), fs::file_size(Package()) - 1);
    Explain({"KQ102"});
    InstallClient(8);
    Explain({});
    Write(info, "[Version]\nbuild_version=9\n");
    fs::remove(Package());
    Explain({"KQ602"});
    MakeFifo(info);
    Explain({"KQ804"});
}

TEST_F(ExplainTest, NoRoomAndNoRightToWrite) {
    KQ_NEED(Ability::Root);
    const Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    EXPECT_EQ(Find("explain @bundle --home @volume"), Codes{"KQ803"});
    // The build may lie where another user can't go.
    fs::copy_file(tool_, At("quay-package"));
    tool_ = At("as-nobody");
    Write(tool_, "#!/bin/sh\nexec setpriv --reuid=65534 --clear-groups '" + At("quay-package") + "' \"$@\"\n");
    fs::permissions(tool_, fs::perms(0755));
    fs::permissions(home_, fs::perms(0555));
    Explain({"KQ802"});
}

// The private copy is what the package holds, or each difference is named.
TEST_F(ExplainTest, VerifyFindsEachDifference) {
    Explain({"KQ901"}, "verify");
    const std::string large = c_ + "/Resources/large";
    const std::string current = c_ + "/Resources/current";
    const Cases changes = {
        {{}, [&] { fs::permissions(large, fs::perms(0600)); }},
        {{"KQ902"}, [&] { Write(c_ + "/Resources/only-in-8", "9"); }},
        {{"KQ902"}, [&] { Write(c_ + "/Resources/only-in-8", "88"); }},
        {{"KQ902"}, [&] { fs::remove(current), fs::create_symlink("large", current); }},
        {{"KQ902", "KQ903"}, [&] { MakeFifo(large), Write(c_ + "/Resources/empty/more", ""); }},
        {{"KQ901", "KQ902", "KQ903"},
         [&] { fs::rename(c_ + "/MacOS", c_ + "/M"), fs::create_symlink("M", c_ + "/MacOS"); }},
        {{"KQ904"}, [&] { fs::permissions(program_, fs::perms(0644)); }},
        {{"KQ904"}, [&] { fs::permissions(large, fs::perms(0666)); }},
    };
    for (const auto& [codes, change] : changes) {
        SCOPED_TRACE(::testing::PrintToString(codes));
        EmptyHome();
        InstallClient(8);
        change();
        Explain(codes, "verify");
    }
}
