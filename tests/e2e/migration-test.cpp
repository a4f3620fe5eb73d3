// A first install from the older product.
#include "launcher-test.h"
#include "volume.h"

namespace {

class MigrationTest : public LauncherTest {
protected:
    // The older product's folder with data, an application and a leftover, and what it looks like.
    Tree LayOlder() const {
        Write(Older("data/db/notes"), "precious");
        Write(Older("data/empty"), "");
        fs::create_symlink("db", Older("data/link"));
        Write(Older("Tessaly.app/Contents/Resources/INFO"), "[Version]\nbuild_version=9000\n");
        Write(Older("app/leftover"), "aged");
        Write(Older("log/old.log"), "lines");
        return ReadTree(home_ + "/.Tessaly");
    }

    std::string Older(const std::string& name) const { return home_ + "/.Tessaly/" + name; }
};

TEST_F(MigrationTest, TheDataMovesAndTheRestGoes) {
    const Tree moved = {
        {"db", "755 folder"}, {"db/notes", "644 file precious"}, {"empty", "644 file "}, {"link", "777 link db"}};
    const auto beFile = [&] {
        InstallClient(999);
        fs::remove_all(Older("app"));
        Write(Older("app"), "a file");
    };
    const auto beLinked = [&] {
        fs::create_symlink(home_, At("link"));
        environment_["HOME"] = home_ = At("link");
    };
    // What is laid beforehand, what the data is then, whether the older folder stays but for what is aged.
    const std::tuple<const char*, std::function<void()>, Tree, bool> cases[] = {
        {"as it was left", [] {}, moved, false},
        {"new data stays", [&] { Write(Private("data/x"), "new"); }, {{"x", "644 file new"}}, false},
        {"an empty new folder is replaced", [&] { fs::create_directories(Private("data")); }, moved, false},
        {"no data", [&] { fs::remove_all(Older("data")); }, {}, false},
        {"a private copy is there", [&] { InstallClient(999); }, {}, true},
        {"a file in the aged folder's place", beFile, {}, true},
        {"the home is reached through a link", beLinked, {}, true}};
    LayBundle(1000);
    for (const auto& [about, lay, data, stays] : cases) {
        SCOPED_TRACE(about);
        fs::remove_all(home_);
        Tree older = LayOlder();
        older.erase("app");
        older.erase("app/leftover");
        lay();
        EXPECT_EQ(Launch().exitCode, 0);
        EXPECT_NE(mailbox_.ReadLine().find("started 1000 in "), std::string::npos);
        EXPECT_EQ(ReadTree(Private("data")), data);
        EXPECT_EQ(fs::exists(Older("")), stays);
        EXPECT_EQ(ReadTree(home_ + "/.Tessaly"), stays ? older : Tree());
        EXPECT_EQ(LogLines(), about[0] == 'n' && about[1] == 'e'
                                  ? Lines{"[ERROR] Failed to move data to Kelvane Quay folder"}
                                  : Lines());
    }
}

TEST_F(MigrationTest, TheOlderClientIsStoppedAlsoWithoutAFolderForTheLog) {
    KQ_NEED(Ability::Tracing);
    LayBundle(1000);
    LayOlder();
    FakeClient client(FakeClient::kPrompt);
    Write(Older("ui.pid"), "pid=" + std::to_string(client.id()) + "\n");
    Launch(Traced({"-P", Private("log"), "-e", "trace=mkdir", "-e", "inject=mkdir:error=EIO:when=1"}));
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(1000));
    EXPECT_EQ(client.AwaitEnd(), 128 + SIGTERM);
    EXPECT_EQ(Read(Private("data/db/notes")), "precious");
}

TEST_F(MigrationTest, AnOlderFolderThatStaysIsLogged) {
    KQ_NEED(Ability::Tracing);
    LayBundle(1000);
    LayOlder();
    ExpectLaunched(Launch(Traced({"-P", home_ + "/.Tessaly", "-e", "inject=rmdir:error=EACCES"})), 1000);
    EXPECT_EQ(LogLines(), Lines{"[ERROR] Failed to remove old .Tessaly folder"});
}

TEST_F(MigrationTest, AFolderInOtherLettersIsNotTheOlderProducts) {
    const Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    home_ = environment_["HOME"] = At("volume/home");
    LayBundle(1000);
    std::vector<PackageEntry> entries = ClientEntries(1000);
    entries.erase(entries.begin() + 3);  // the volume has no links
    WritePackage(Package(), entries);
    Write(home_ + "/.TESSALY/data/notes", "precious");
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Read(home_ + "/.TESSALY/data/notes"), "precious");
}

}  // namespace
