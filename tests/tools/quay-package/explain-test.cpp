#include <sys/stat.h>

#include <QDateTime>
#include <QFileInfo>
#include <csignal>

#include "quay-test.h"
#include "volume.h"

class ExplainTest : public QuayTest {
protected:
    void SetUp() override { MakeBundle(8); }

    // Everything of home and bundle that a look at them may not change, times of modification and change included.
    Lines Snapshot() const {
        Lines lines;
        for (const std::string& folder : {home_, bundle_}) {
            const auto add = [&lines](const fs::path& path) {
                struct stat info = {};
                lstat(path.c_str(), &info);
                lines.push_back(path.string());
                const QFileInfo file(QString::fromStdString(path.string()));
                for (const auto value :
                     {static_cast<qint64>(info.st_ino), static_cast<qint64>(info.st_mode),
                      static_cast<qint64>(info.st_size), file.metadataChangeTime().toMSecsSinceEpoch()}) {
                    lines.back() += " " + std::to_string(value);
                }
            };
            add(folder);
            for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
                add(entry.path());
            }
        }
        return lines;
    }

    // Explains, or verifies, and checks that nothing has changed.
    QJsonObject Explain(const Codes& codes, const std::string& command = "explain") const {
        const Lines before = Snapshot();
        const QJsonObject object = RunJson(command + " @bundle --home @home", codes.empty() ? 0 : 1);
        EXPECT_EQ(CodesOf(object), codes);
        EXPECT_EQ(Snapshot(), before);
        return object;
    }

    void EmptyHome() const {
        fs::remove_all(home_);
        fs::create_directory(home_);
    }

    const std::string c_ = App() + "/Contents";
    const std::string old_ = home_ + "/.Tessaly";
};

// What it says of a home, and what the launcher then does there.
TEST_F(ExplainTest, SaysWhatTheLauncherThenDoes) {
    Write(old_ + "/data/history", "");
    const QJsonObject first = Explain({});
    EXPECT_EQ(Value(first, "decision"), "install");
    EXPECT_EQ(Value(first, "migrate"), old_);
    EXPECT_EQ(Value(first, "package"), "10");
    ExpectLaunched(Launch(), 8);
    EXPECT_TRUE(fs::exists(Private("data/history")));

    EXPECT_EQ(Value(Explain({}), "decision"), "none");
    ExpectLaunched(Launch(), 8);

    MakeBundle(9);
    Write(Private("KelvaneQuay.app_tmp/leftover"), "");
    Write(old_ + "/app/x", "");
    FakeClient client(manners::kPrompt);
    Write(Private("ui.pid"), "pid=" + std::to_string(client.id()) + "\n");
    const QJsonObject third = Explain({"KQ806", "KQ809"});
    EXPECT_EQ(Value(third, "decision"), "upgrade");
    EXPECT_EQ(Value(third, "stop"), std::to_string(client.id()));
    EXPECT_EQ(Value(third, "backup"), App() + "_tmp1");
    EXPECT_EQ(Value(third, "remove"), old_ + "/app");
    LogEverything();
    ExpectLaunched(Launch(), 9);
    EXPECT_EQ(client.AwaitEnd(), 128 + SIGTERM);
    EXPECT_FALSE(fs::exists(old_ + "/app"));
    // It came as said: the first name would not do, the second did.
    const std::string log = Read(Private("log/launcher.log"));
    EXPECT_NE(log.find("failed to backup app from '" + App() + "' -> '" + App() + "_tmp'"), std::string::npos);
    EXPECT_EQ(log.find("-> '" + App() + "_tmp1'"), std::string::npos);
}

// What stands in the way, one home each; what the next upgrade replaces does not.
TEST_F(ExplainTest, FindsWhatStandsInTheWay) {
    const std::string program = c_ + "/MacOS/cloud-quay-ui";
    const Cases homes = {
        {{"KQ804"}, [&] { Write(home_ + "/.KelvaneQuay", "a file"); }},
        {{"KQ805"}, [&] { fs::create_directory_symlink(At("run"), home_ + "/.KelvaneQuay"); }},
        {{"KQ808"}, [&] { Write(old_ + "/data/old", ""), Write(Private("data/new"), ""); }},
        {{"KQ809"}, [&] { InstallClient(7), Write(Private("ui.pid"), "pid=0\n"); }},
        {{"KQ809"}, [&] { InstallClient(7), Write(Private("ui.pid"), "no syntax\n"); }},
        {{"KQ804"}, [&] { fs::create_directories(c_ + "/Resources"), mkfifo((c_ + "/Resources/INFO").c_str(), 0600); }},
        {{"KQ502"}, [&] { InstallClient(8), fs::permissions(program, fs::perms(0644)); }},
        {{}, [&] { InstallClient(7), fs::permissions(program, fs::perms(0644)), fs::create_symlink("/x", c_ + "/l"); }},
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

TEST_F(ExplainTest, AHomeThroughALinkNoneOrTooSmall) {
    Write(old_ + "/data/x", "");
    fs::create_directory_symlink(home_, At("alias"));
    EXPECT_EQ(CodesOf(RunJson("explain @bundle --home @alias", 1)), Codes{"KQ805"});
    EXPECT_EQ(CodesOf(RunJson("explain @bundle --home @none", 1)), Codes{"KQ801"});
    Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    const QJsonObject object = RunJson("explain @bundle --home @volume", 1);
    EXPECT_EQ(CodesOf(object), Codes{"KQ803"});
    const QJsonObject space = object.value(QStringLiteral("space")).toObject();
    EXPECT_GT(space.value(QStringLiteral("needed")).toDouble(), space.value(QStringLiteral("free")).toDouble());
}

// By the same rules as `check`, and only where the package is going to be unpacked.
TEST_F(ExplainTest, ABundleThatCantBeInstalled) {
    const std::string info = bundle_ + "/Contents/Resources/INFO";
    fs::resize_file(Package(), fs::file_size(Package()) - 1);
    Explain({"KQ102"});
    InstallClient(8);
    Explain({});
    Write(info, "[Version]\nbuild_version=9\n");
    Explain({"KQ102"});
    fs::remove(Package());
    Explain({"KQ602"});
    fs::remove(info);
    ASSERT_EQ(mkfifo(info.c_str(), 0644), 0);
    Explain({"KQ804"});
}

TEST_F(ExplainTest, NoRightToWrite) {
    // The build may lie where another user can't go.
    KQ_NEED(Ability::Root);
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
        {{}, [] {}},
        {{}, [&] { fs::permissions(large, fs::perms(0600)); }},
        {{"KQ901"}, [&] { fs::remove(large); }},
        {{"KQ901"}, [&] { fs::remove_all(c_ + "/Resources"); }},
        {{"KQ902"}, [&] { Write(c_ + "/Resources/only-in-8", "9"); }},
        {{"KQ902"}, [&] { Write(c_ + "/Resources/only-in-8", "88"); }},
        {{"KQ902"}, [&] { fs::remove(large), mkfifo(large.c_str(), 0644); }},
        {{"KQ902"}, [&] { fs::remove(current), fs::create_symlink("large", current); }},
        {{"KQ901", "KQ902", "KQ903"},
         [&] { fs::rename(c_ + "/MacOS", c_ + "/M"), fs::create_symlink("M", c_ + "/MacOS"); }},
        {{"KQ903"}, [&] { Write(c_ + "/Resources/empty/more", ""); }},
        {{"KQ904"}, [&] { fs::permissions(c_ + "/MacOS/cloud-quay-ui", fs::perms(0644)); }},
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
