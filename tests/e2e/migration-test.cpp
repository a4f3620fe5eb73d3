// A first install from the older product.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "launcher-test.h"
#include "volume.h"

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

class MigrationTest : public LauncherTest {
protected:
    // The older product's folder with data, an application and a leftover.
    void LayOlder() const {
        Write(Older("data/db/notes"), "precious");
        Write(Older("data/empty"), "");
        fs::create_symlink("db", Older("data/link"));
        Write(Older("Tessaly.app/Contents/Resources/INFO"), "[Version]\nbuild_version=10\n");
        Write(Older("app/leftover"), "aged");
        Write(Older("log/old.log"), "lines");
    }

    std::string Older(const std::string& name) const { return home_ + "/.Tessaly/" + name; }
};

TEST_F(MigrationTest, TheDataMovesAndTheRestGoes) {
    LayBundle(1000);
    LayOlder();
    const Tree data = ReadTree(Older("data"));
    FakeClient client(FakeClient::Manners::Prompt);
    Write(Older("ui.pid"), "pid=" + std::to_string(client.id()) + "\n");
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(client.AwaitEnd(), SIGTERM);
    EXPECT_EQ(Below(PrivateTree(), "data"), data);
    EXPECT_FALSE(fs::exists(Older("")));
    EXPECT_EQ(LogLines(), Lines());
}

TEST_F(MigrationTest, WhileThePrivateCopyIsThereOnlyTheAgedFolderGoes) {
    LayBundle(2000);
    InstallClient(1000);
    LayOlder();
    Tree older = ReadTree(home_ + "/.Tessaly");
    older.erase("app");
    older.erase("app/leftover");
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(ReadTree(home_ + "/.Tessaly"), older);

    // A file in the aged folder's place goes like a folder.
    Write(Older("app"), "a file");
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(ReadTree(home_ + "/.Tessaly"), older);
}

TEST_F(MigrationTest, DataThatIsAlreadyThereStaysAndTheOlderFolderGoesAllTheSame) {
    LayBundle(1000);
    LayOlder();
    Write(Private("data/mine"), "newer");
    ExpectLaunched(Launch(), 1000);
    const Tree kept = {{"mine", "644 file newer"}};
    EXPECT_EQ(Below(PrivateTree(), "data"), kept);
    EXPECT_FALSE(fs::exists(Older("")));
    EXPECT_EQ(LogLines(), (Lines{"[ERROR] Failed to move data to Kelvane Quay folder"}));
}

TEST_F(MigrationTest, AnEmptyNewDataFolderIsReplaced) {
    LayBundle(1000);
    LayOlder();
    const Tree data = ReadTree(Older("data"));
    fs::create_directories(Private("data"));
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Below(PrivateTree(), "data"), data);
}

TEST_F(MigrationTest, WithoutDataTheOlderFolderJustGoes) {
    LayBundle(1000);
    LayOlder();
    fs::remove_all(Older("data"));
    ExpectLaunched(Launch(), 1000);
    EXPECT_FALSE(fs::exists(Older("")));
    EXPECT_FALSE(fs::exists(Private("data")));
    EXPECT_EQ(LogLines(), Lines());
}

TEST_F(MigrationTest, AHomeThatIsReachedThroughALinkIsNotMigrated) {
    LayBundle(1000);
    LayOlder();
    fs::create_symlink(home_, At("link"));
    const Tree older = ReadTree(home_ + "/.Tessaly");
    environment_["HOME"] = At("link");
    const Outcome outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_NE(mailbox_.ReadLine().find("started 1000"), std::string::npos);
    Tree left = older;
    left.erase("app");
    left.erase("app/leftover");
    EXPECT_EQ(ReadTree(home_ + "/.Tessaly"), left);
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
    const Tree moved = {{"db", "755 folder"}, {"db/notes", "644 file precious"}, {"empty", "644 file "}};
    EXPECT_EQ(Below(PrivateTree(), "data"), moved);
    EXPECT_FALSE(fs::exists(Older("")));
    EXPECT_EQ(LogLines(), Lines());

    fs::remove_all(App());
    fs::remove_all(Private("data"));
    LayOlder();
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(LogLines(), (Lines{"[ERROR] Failed to move data to Kelvane Quay folder"}));
    EXPECT_FALSE(fs::exists(Private("data/link")));
    EXPECT_FALSE(fs::exists(Older("")));
}

TEST_F(MigrationTest, AFolderInOtherLettersIsNotTheOlderProducts) {
    const Volume volume(Volume::ExFat, At("volume"), 64 << 20);
    KQ_NEED(volume);
    home_ = environment_["HOME"] = At("volume/home");
    LayBundle(1000);
    // The volume has no links.
    std::vector<PackageEntry> entries = ClientEntries(1000);
    entries.erase(entries.begin() + 3);
    WritePackage(At("bundle/Contents/Resources/package/tessaly.kpk"), entries);
    Write(home_ + "/.TESSALY/data/notes", "precious");
    ExpectLaunched(Launch(), 1000);
    EXPECT_TRUE(fs::exists(App() + "/Contents/Resources/INFO"));
    EXPECT_EQ(Read(home_ + "/.TESSALY/data/notes"), "precious");

    fs::remove_all(App());
    fs::rename(home_ + "/.TESSALY", home_ + "/away");
    fs::rename(home_ + "/away", home_ + "/.Tessaly");
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Read(Private("data/notes")), "precious");
    EXPECT_FALSE(fs::exists(home_ + "/.Tessaly"));
}

}  // namespace
