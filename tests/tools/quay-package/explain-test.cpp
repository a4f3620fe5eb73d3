#include <sys/stat.h>

#include <csignal>

#include <QJsonArray>
#include <filesystem>
#include <functional>

#include "platform/change-time.h"
#include "quay-test.h"
#include "volume.h"

namespace fs = std::filesystem;

namespace {

// Everything of a tree that a look at it may not change, the times of change included.
std::map<std::string, std::string> Snapshot(const std::string& folder) {
    std::map<std::string, std::string> snapshot;
    const auto add = [&snapshot](const fs::path& path) {
        struct stat info = {};
        ASSERT_EQ(lstat(path.c_str(), &info), 0) << path;
        const struct timespec changed = platform::ChangeTime(info);
        std::string text;
        for (const auto value : {static_cast<long>(info.st_ino), static_cast<long>(info.st_mode),
                                 static_cast<long>(info.st_size), changed.tv_sec, changed.tv_nsec}) {
            text += std::to_string(value) + " ";
        }
        snapshot[path.string()] = text;
    };
    add(folder);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        add(entry.path());
    }
    return snapshot;
}

}  // namespace

class ExplainTest : public QuayTest {
protected:
    std::string Text(const QJsonObject& object, const char* key) {
        return object.value(QString::fromLatin1(key)).toString().toStdString();
    }

    // Explains and checks that nothing has changed, neither in the home nor in the bundle.
    QJsonObject Explain(const Codes& codes) {
        const auto home = Snapshot(home_);
        const auto bundle = Snapshot(At("bundle"));
        const QJsonObject object = RunJson({"explain", At("bundle"), "--home", home_}, codes.empty() ? 0 : 1);
        EXPECT_EQ(CodesOf(object), codes);
        EXPECT_EQ(Snapshot(home_), home);
        EXPECT_EQ(Snapshot(At("bundle")), bundle);
        return object;
    }
};

// What it says of a home, and what the launcher then does there.
TEST_F(ExplainTest, SaysWhatTheLauncherThenDoes) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    Write(home_ + "/.Tessaly/data/history", "");
    QJsonObject first = Explain({});
    EXPECT_EQ(Text(first, "decision"), "install");
    EXPECT_EQ(Text(first, "migrate"), home_ + "/.Tessaly");
    EXPECT_EQ(first.value(QStringLiteral("package")).toInt(), 10);
    ExpectLaunched(Launch(), 8);
    EXPECT_TRUE(fs::exists(Private("data/history")));

    const QJsonObject second = Explain({});
    EXPECT_EQ(Text(second, "decision"), "none");
    ExpectLaunched(Launch(), 8);

    MakeBundle(MakePackage(MakeClient("client-9", 9), 9));
    Write(Private("KelvaneQuay.app_tmp/leftover"), "");
    Write(home_ + "/.Tessaly/app/x", "");
    FakeClient client(manners::kPrompt);
    Write(Private("ui.pid"), "pid=" + std::to_string(client.id()) + "\n");
    const QJsonObject third = Explain({"KQ806", "KQ809"});
    EXPECT_EQ(Text(third, "decision"), "upgrade");
    EXPECT_EQ(third.value(QStringLiteral("stop")).toInt(), client.id());
    EXPECT_EQ(Text(third, "backup"), App() + "_tmp1");
    EXPECT_EQ(Text(third, "remove"), home_ + "/.Tessaly/app");
    LogEverything();
    ExpectLaunched(Launch(), 9);
    EXPECT_EQ(client.AwaitEnd(), 128 + SIGTERM);
    EXPECT_FALSE(fs::exists(home_ + "/.Tessaly/app"));
    // It came as said: the first name would not do, the second did.
    const std::string log = Read(Private("log/launcher.log"));
    EXPECT_NE(log.find("failed to backup app from '" + App() + "' -> '" + App() + "_tmp'"), std::string::npos);
    EXPECT_EQ(log.find("-> '" + App() + "_tmp1'"), std::string::npos);
}

// What stands in the way, one home each.
TEST_F(ExplainTest, FindsWhatStandsInTheWay) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    const struct {
        const char* code;
        std::function<void()> spoil;
    } homes[] = {
        {"KQ804", [this] { Write(home_ + "/.KelvaneQuay", "a file"); }},
        {"KQ805", [this] { fs::create_directory_symlink(At("elsewhere"), home_ + "/.KelvaneQuay"); }},
        {"KQ808",
         [this] {
             Write(home_ + "/.Tessaly/data/old", "");
             Write(Private("data/new"), "");
         }},
        {"KQ809",
         [this] {
             InstallClient(7);
             Write(Private("ui.pid"), "pid=0\n");
         }},
        {"KQ809",
         [this] {
             InstallClient(7);
             Write(Private("ui.pid"), "no syntax\n");
         }},
        {"KQ804",
         [this] {
             fs::create_directories(App() + "/Contents/Resources");
             ASSERT_EQ(mkfifo((App() + "/Contents/Resources/INFO").c_str(), 0600), 0);
         }},
        {"KQ502",
         [this] {
             InstallClient(8);
             fs::permissions(App() + "/Contents/MacOS/cloud-quay-ui", fs::perms(0644));
         }},
    };
    fs::create_directories(At("elsewhere"));
    for (const auto& home : homes) {
        SCOPED_TRACE(home.code);
        fs::remove_all(home_);
        fs::create_directories(home_);
        home.spoil();
        Explain({home.code});
    }
}

TEST_F(ExplainTest, EveryBackupNameTaken) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    InstallClient(7);
    for (const char* digit : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        Write(App() + "_tmp" + digit + "/x", "");
    }
    EXPECT_TRUE(Explain({"KQ806", "KQ807"}).value(QStringLiteral("backup")).isNull());
}

TEST_F(ExplainTest, AHomeThroughALinkOrNone) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    Write(home_ + "/.Tessaly/data/x", "");
    fs::create_directory_symlink(home_, At("alias"));
    EXPECT_EQ(CodesOf(RunJson({"explain", At("bundle"), "--home", At("alias")}, 1)), Codes{"KQ805"});
    EXPECT_EQ(CodesOf(RunJson({"explain", At("bundle"), "--home", At("none")}, 1)), Codes{"KQ801"});
}

// By the same rules as `check`, and only where the package is going to be unpacked.
TEST_F(ExplainTest, ABundleThatCantBeInstalled) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    const std::string package = At("bundle/Contents/Resources/package/tessaly.kpk");
    fs::resize_file(package, fs::file_size(package) - 1);
    Explain({"KQ102"});
    InstallClient(8);
    Explain({});
    Write(At("bundle/Contents/Resources/INFO"), "[Version]\nbuild_version=9\n");
    Explain({"KQ102"});
    fs::remove(package);
    Explain({"KQ602"});
    fs::remove(At("bundle/Contents/Resources/INFO"));
    ASSERT_EQ(mkfifo(At("bundle/Contents/Resources/INFO").c_str(), 0644), 0);
    Explain({"KQ804"});
}

// What the next upgrade replaces is no finding.
TEST_F(ExplainTest, TheOldCopyMayBeAsItIs) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    InstallClient(7);
    fs::permissions(App() + "/Contents/MacOS/cloud-quay-ui", fs::perms(0644));
    fs::create_symlink("/nowhere", App() + "/Contents/MacOS/l");
    Explain({});
}

TEST_F(ExplainTest, TooLittleSpaceAndNoRight) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    const QJsonObject object = RunJson({"explain", At("bundle"), "--home", At("volume")}, 1);
    EXPECT_EQ(CodesOf(object), Codes{"KQ803"});
    const QJsonObject space = object.value(QStringLiteral("space")).toObject();
    EXPECT_GT(space.value(QStringLiteral("needed")).toDouble(), space.value(QStringLiteral("free")).toDouble());
}

TEST_F(ExplainTest, NoRightToWrite) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    fs::permissions(folder(), fs::perms(0755));
    fs::permissions(home_, fs::perms(0555));
    // The build may lie where another user can't go.
    fs::copy_file(tool_, At("quay-package"));
    tool_ = At("quay-package");
    AsOrdinaryUser([this] { Explain({"KQ802"}); });
}

// The private copy is what the package holds, or each difference is named.
TEST_F(ExplainTest, VerifyFindsEachDifference) {
    MakeBundle(MakePackage(MakeClient("client", 8), 8));
    const auto verify = [this](const Codes& codes) {
        const auto before = fs::exists(home_) ? Snapshot(home_) : std::map<std::string, std::string>();
        const QJsonObject object = RunJson({"verify", "--home", home_, At("bundle")}, codes.empty() ? 0 : 1);
        EXPECT_EQ(CodesOf(object), codes);
        EXPECT_EQ(Snapshot(home_), before);
    };
    verify({"KQ901"});
    const struct {
        Codes codes;
        std::function<void(const std::string& contents)> change;
    } changes[] = {
        {{}, [](const std::string& /*contents*/) {}},
        {{}, [](const std::string& c) { fs::permissions(c + "/Resources/large", fs::perms(0600)); }},
        {{"KQ901"}, [](const std::string& c) { fs::remove(c + "/Resources/large"); }},
        {{"KQ901"}, [](const std::string& c) { fs::remove_all(c + "/Resources"); }},
        {{"KQ902"}, [](const std::string& c) { Write(c + "/Resources/only-in-8", "9"); }},
        {{"KQ902"}, [](const std::string& c) { Write(c + "/Resources/only-in-8", "88"); }},
        {{"KQ902"},
         [](const std::string& c) {
             fs::remove(c + "/Resources/large"), mkfifo((c + "/Resources/large").c_str(), 0644);
         }},
        {{"KQ902"},
         [](const std::string& c) {
             fs::remove(c + "/Resources/current"), fs::create_symlink("large", c + "/Resources/current");
         }},
        {{"KQ901", "KQ902", "KQ903"},
         [](const std::string& c) { fs::rename(c + "/MacOS", c + "/M"), fs::create_symlink("M", c + "/MacOS"); }},
        {{"KQ903"}, [](const std::string& c) { Write(c + "/Resources/empty/more", ""); }},
        {{"KQ904"}, [](const std::string& c) { fs::permissions(c + "/MacOS/cloud-quay-ui", fs::perms(0644)); }},
        {{"KQ904"}, [](const std::string& c) { fs::permissions(c + "/Resources/large", fs::perms(0666)); }},
    };
    for (const auto& change : changes) {
        SCOPED_TRACE(&change - changes);
        fs::remove_all(home_);
        fs::create_directory(home_);
        InstallClient(8);
        change.change(App() + "/Contents");
        verify(change.codes);
    }
}
