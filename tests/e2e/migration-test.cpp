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

    const Lines notMoved_ = {"[ERROR] Failed to move data to Kelvane Quay folder"};
};

TEST_F(MigrationTest, TheDataMovesAndTheRestGoes) {
    const Tree moved = {
        {"db", "755 folder"}, {"db/notes", "644 file precious"}, {"empty", "644 file "}, {"link", "777 link db"}};
    const Tree mine = {{"mine", "644 file newer"}};
    const struct {
        const char* about;
        std::function<void()> lay;
        Tree data;
        bool stays;  // the older folder, but for what is aged
        Lines log;
    } cases[] = {
        {"as it was left", [] {}, moved, false, {}},
        {"data that is already there stays", [&] { Write(Private("data/mine"), "newer"); }, mine, false, notMoved_},
        {"an empty new folder is replaced", [&] { fs::create_directories(Private("data")); }, moved, false, {}},
        {"no data", [&] { fs::remove_all(Older("data")); }, {}, false, {}},
        {"a private copy is there", [&] { InstallClient(999); }, {}, true, {}},
        {"a file in the aged folder's place",
         [&] {
             InstallClient(999);
             fs::remove_all(Older("app"));
             Write(Older("app"), "a file");
         },
         {},
         true,
         {}},
        {"the home is reached through a link",
         [&] {
             fs::create_symlink(home_, At("link"));
             environment_["HOME"] = home_ = At("link");
         },
         {},
         true,
         {}},
    };
    LayBundle(1000);
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        fs::remove_all(home_);
        Tree older = LayOlder();
        older.erase("app");
        older.erase("app/leftover");
        entry.lay();
        const Outcome outcome = Launch();
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_NE(mailbox_.ReadLine().find("started 1000 in "), std::string::npos);
        EXPECT_EQ(Below(PrivateTree(), "data"), entry.data);
        EXPECT_EQ(fs::exists(Older("")), entry.stays);
        EXPECT_EQ(ReadTree(home_ + "/.Tessaly"), entry.stays ? older : Tree());
        EXPECT_EQ(LogLines(), entry.log);
    }
}

TEST_F(MigrationTest, TheOlderClientIsStopped) {
    LayBundle(1000);
    LayOlder();
    FakeClient client(manners::kPrompt);
    Write(Older("ui.pid"), "pid=" + std::to_string(client.id()) + "\n");
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(client.AwaitEnd(), 128 + SIGTERM);
}

TEST_F(MigrationTest, OverAVolumeBorderFilesMoveByCopyAndALinkEndsTheMove) {
    const Volume volume(Volume::Tmpfs, home_ + "/.KelvaneQuay", 16 << 20);
    KQ_NEED(volume);
    LayBundle(1000);
    LayOlder();
    fs::remove(Older("data/link"));
    fs::permissions(Older("data/db/notes"), static_cast<fs::perms>(0600));
    ExpectLaunched(Launch(), 1000);
    // Copies have the mode of new files.
    ExpectInstalled(1000, {{"data", "755 folder"},
                           {"data/db", "755 folder"},
                           {"data/db/notes", "644 file precious"},
                           {"data/empty", "644 file "}});
    EXPECT_FALSE(fs::exists(Older("")));
    EXPECT_EQ(LogLines(), Lines());

    fs::remove_all(App());
    fs::remove_all(Private("data"));
    LayOlder();
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(LogLines(), notMoved_);
    EXPECT_FALSE(fs::exists(Private("data/link")));
    EXPECT_FALSE(fs::exists(Older("")));
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

    fs::remove_all(App());
    fs::rename(home_ + "/.TESSALY", home_ + "/away");
    fs::rename(home_ + "/away", home_ + "/.Tessaly");
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Read(Private("data/notes")), "precious");
    EXPECT_FALSE(fs::exists(home_ + "/.Tessaly"));
}

}  // namespace
