// What becomes of a home in every branch of a run.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "launcher-test.h"
#include "volume.h"

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

class UpgradeTest : public LauncherTest {
protected:
    // A run that fails its upgrade leaves exactly these error lines and starts the client all the same.
    void ExpectErrors(const Lines& expected) const { EXPECT_EQ(LogLines(), expected); }
};

TEST_F(UpgradeTest, FirstInstallThenNothingToDo) {
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
    EXPECT_EQ(LogLines(), Lines());

    const Tree installed = ReadTree(home_);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(ReadTree(home_), installed);
}

TEST_F(UpgradeTest, OnlyAHigherBuildOrAMissingBinaryUpgrades) {
    const struct {
        const char* about;
        int installed;
        int carried;
        bool binary;
        int started;
    } cases[] = {
        {"older copy", 999, 1000, true, 1000},
        {"same build", 1000, 1000, true, 1000},
        {"newer copy stays", 2000, 1000, true, 2000},
        {"broken copy of the same build", 1000, 1000, false, 1000},
        {"broken copy that is newer", 2000, 1000, false, 1000},
    };
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        fs::remove_all(home_);
        InstallClient(entry.installed);
        LayBundle(entry.carried);
        if (!entry.binary) {
            fs::remove(App() + "/Contents/MacOS/cloud-quay-ui");
        }
        ExpectLaunched(Launch(), entry.started);
        const Tree after = PrivateTree();
        EXPECT_EQ(Below(after, "KelvaneQuay.app"), ClientTree(entry.started));
        EXPECT_EQ(after.count("KelvaneQuay.app_tmp"), 0U);
        EXPECT_EQ(LogLines(), Lines());
    }
}

TEST_F(UpgradeTest, AGoodRunLogsEachStepWhenAskedTo) {
    InstallClient(1000);
    LayBundle(2000);
    LogEverything();
    ExpectLaunched(Launch(), 2000);
    const std::string resources = At("bundle/Contents/Resources");
    const Lines expected = {
        // The paths are cut to their first character, those that are not set to nothing.
        "[INFO] >>> user_tessaly_path = /",
        "[INFO] >>> user_tessaly_app_path = ",
        "[INFO] >>> user_tessaly_resource_path = /",
        "[INFO] >>> user_tessaly_data_path = ",
        "[INFO] >>> user_tessaly_working_dir_path = ",
        "[INFO] >>> user_tessaly_quay_ui_path = ",
        "[INFO] >>> root_resource_path = /",
        "[DEBUG] running",
        "[INFO] target_version = (1, 2, 2000, 3)",
        "[INFO] source_version = (1, 2, 1000, 3)",
        "[DEBUG] Source version: ('1000', '3')",
        "[DEBUG] Target version: ('2000', '3')",
        "[DEBUG] source version = 1000, target version = 2000",
        "[DEBUG] local appdata exist",
        "[DEBUG] pid file '" + Private("ui.pid") + "' does not exist, no need to terminate",
        "[INFO] extract package: '" + resources + "/package/tessaly.kpk' -> '" + App() + "'",
        "[DEBUG] decompress from '" + resources + "/package/tessaly.kpk' to '" + App() + "'",
        "[INFO] user installation is ready, removing backup app",
        "[INFO] removing aged app folder " + home_ + "/.Tessaly/app",
        "[DEBUG] done",
    };
    EXPECT_EQ(LogLines(), expected);
}

TEST_F(UpgradeTest, FailedExtractionPutsTheOldCopyBack) {
    const std::string package = At("bundle/Contents/Resources/package/tessaly.kpk");
    const std::vector<PackageEntry> climbing = {{"Contents/../../escaped", "x"}};
    const Lines tail = {"[ERROR] Failed to extract package, rollback to old installation",
                        "[ERROR] Failed to upgrade package"};
    const struct {
        const char* about;
        std::function<void()> damage;
        std::string first;
    } cases[] = {
        {"no package", [&] { fs::remove(package); },
         "[ERROR] archive_read_open_filename failed: 'Failed to open '" + package + "''"},
        {"empty file", [&] { Write(package, ""); }, ""},
        {"no archive", [&] { Write(package, std::string(5000, 'x')); }, ""},
        {"cut short", [&] { fs::resize_file(package, fs::file_size(package) / 2); }, ""},
        {"a path that climbs", [&] { WritePackage(package, climbing); },
         "[ERROR] archive_read_extract2 failed: 'Path contains '..''"},
        {"no entries", [&] { WritePackage(package, {}, "pax"); },
         "[ERROR] Failed to calculate total file numbers, ret: 0"},
    };
    InstallClient(1000);
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        LayBundle(2000);
        entry.damage();
        fs::remove_all(Private("log"));
        ExpectLaunched(Launch(), 1000);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
        EXPECT_EQ(PrivateTree().count("KelvaneQuay.app_tmp"), 0U);
        const Lines lines = LogLines();
        ASSERT_GE(lines.size(), 3U);
        EXPECT_EQ(Lines(lines.end() - 2, lines.end()), tail);
        if (!entry.first.empty()) {
            EXPECT_EQ(lines.front(), entry.first);
        }
    }
    EXPECT_FALSE(fs::exists(Private("escaped")));
}

TEST_F(UpgradeTest, AnArchiveCutBehindItsFirstEntriesCountsThemAndRollsBack) {
    InstallClient(1000);
    LayBundle(2000);
    const std::string package = At("bundle/Contents/Resources/package/tessaly.kpk");
    WritePackage(package, ClientEntries(2000), "pax");
    fs::resize_file(package, 4096 + 512);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
}

TEST_F(UpgradeTest, FailedFirstInstallLeavesWhatWasUnpackedAndIsMendedByTheNextStart) {
    LayBundle(1000);
    const std::string package = At("bundle/Contents/Resources/package/tessaly.kpk");
    fs::rename(package, package + ".away");
    const Outcome outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
    const Tree empty = {{"KelvaneQuay.app", "755 folder"}};
    EXPECT_EQ(PrivateTree(), empty);
    const Lines lines = LogLines();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[2], "[ERROR] Failed to extract package, and no old installation to rollback");
    EXPECT_EQ(lines[3], "[ERROR] Failed to upgrade package");
    // Linux starts the binary itself and so knows that there is none.
    EXPECT_EQ(lines[4], "[ERROR] Failed to launch Tessaly UI");
    EXPECT_TRUE(mailbox_.IsEmpty());

    fs::rename(package + ".away", package);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
    EXPECT_EQ(PrivateTree().count("KelvaneQuay.app_tmp"), 0U);
}

TEST_F(UpgradeTest, LeftoversUnderBackupNames) {
    const auto leave = [&](int index) {
        Write(App() + "_tmp" + (index == 0 ? "" : std::to_string(index)) + "/kept", "left by an earlier run");
    };
    const std::string failed = "[ERROR] failed to backup app from '" + App() + "' -> '" + App() + "_tmp";

    // Two in the way: the third name takes the copy, and all three go after the success.
    InstallClient(1000);
    LayBundle(2000);
    leave(0);
    leave(1);
    leave(7);
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(LogLines(), (Lines{failed + "'", failed + "1'"}));
    Tree expected = {{"KelvaneQuay.app", "755 folder"},
                     {"KelvaneQuay.app_tmp7", "755 folder"},
                     {"KelvaneQuay.app_tmp7/kept", "644 file left by an earlier run"}};
    for (const auto& [path, description] : ClientTree(2000)) {
        expected["KelvaneQuay.app/" + path] = description;
    }
    EXPECT_EQ(PrivateTree(), expected);

    // All ten in the way: the old copy stays in use, and nothing is unpacked.
    for (int index = 0; index <= 9; ++index) {
        leave(index);
    }
    LayBundle(3000);
    fs::remove_all(Private("log"));
    const Tree before = PrivateTree();
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(PrivateTree(), before);
    Lines lines = {failed + "'"};
    for (int index = 1; index <= 9; ++index) {
        lines.push_back(failed + std::to_string(index) + "'");
    }
    lines.push_back(failed + "9' at max retries, exiting");
    lines.emplace_back("[ERROR] Failed to upgrade package");
    EXPECT_EQ(LogLines(), lines);

    // A rollback from the third name leaves the first two where they lie.
    fs::remove_all(App() + "_tmp2");
    fs::remove(At("bundle/Contents/Resources/package/tessaly.kpk"));
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(2000));
    EXPECT_TRUE(fs::exists(App() + "_tmp1/kept"));
    EXPECT_FALSE(fs::exists(App() + "_tmp2"));
}

TEST_F(UpgradeTest, PrivateFolderInTheWay) {
    LayBundle(1000);
    // A file where the folder should be: no log, no install, the lines go to standard error, the exit code stays 0.
    Write(home_ + "/.KelvaneQuay", "not a folder");
    Outcome outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_NE(outcome.errors.find("failed to create folder: '" + App() + "'"), std::string::npos) << outcome.errors;
    EXPECT_NE(outcome.errors.find("Failed to upgrade package"), std::string::npos);
    EXPECT_EQ(Read(home_ + "/.KelvaneQuay"), "not a folder");

    // A folder that is reached through a link works like any other.
    fs::remove(home_ + "/.KelvaneQuay");
    fs::create_directories(At("elsewhere"));
    fs::create_symlink(At("elsewhere"), home_ + "/.KelvaneQuay");
    outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
    // The shell in the client's script says where it really is.
    EXPECT_NE(mailbox_.ReadLine().find("started 1000 in "), std::string::npos);
    EXPECT_EQ(Below(ReadTree(At("elsewhere")), "KelvaneQuay.app"), ClientTree(1000));
    EXPECT_TRUE(fs::is_symlink(home_ + "/.KelvaneQuay"));
}

TEST_F(UpgradeTest, ReadOnlyPrivateFolderKeepsTheOldCopy) {
    constexpr uid_t kUser = 65534;
    if (getuid() != 0) {
        GTEST_SKIP() << "needs root, to run the launcher as another user";
    }
    InstallClient(1000);
    LayBundle(2000);
    fs::permissions(folder(), static_cast<fs::perms>(0755));
    fs::create_directories(Private("log"));
    fs::permissions(Private("log"), static_cast<fs::perms>(0777));
    ASSERT_EQ(chown(At("run").c_str(), kUser, kUser), 0);
    const Tree before = PrivateTree();
    const Outcome outcome = Launch(kUser);
    ExpectLaunched(outcome, 1000);
    EXPECT_EQ(PrivateTree(), before);
    EXPECT_EQ(LogLines().size(), 12U);

    // Nothing can be written at all, the log included.
    fs::permissions(Private("log"), static_cast<fs::perms>(0555));
    fs::remove(Private("log/launcher.log"));
    ExpectLaunched(Launch(kUser), 1000);
    EXPECT_FALSE(fs::exists(Private("log/launcher.log")));
}

TEST_F(UpgradeTest, AFullDiskPutsTheOldCopyBack) {
    const Volume volume(Volume::Tmpfs, At("volume"), 1 << 20);
    KQ_NEED(volume);
    home_ = environment_["HOME"] = At("volume/home");
    InstallClient(1000);
    Write(Private("data/precious"), "the user's own");
    const Tree before = PrivateTree();
    LayBundle(2000);
    std::vector<PackageEntry> entries = ClientEntries(2000);
    entries[6].content = std::string(2 << 20, 'x');
    WritePackage(At("bundle/Contents/Resources/package/tessaly.kpk"), entries);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(PrivateTree(), before);

    // Not a byte left: not even the log can grow, and the client starts all the same.
    fs::remove_all(Private("log"));
    std::ofstream filler(At("volume/filler"), std::ios::binary);
    while (filler << std::string(4096, 'f') << std::flush) {
    }
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
}

TEST_F(UpgradeTest, AnyLocaleAnyHome) {
    const std::string home = At("home/Üser und 日本語 \xF0\x9F\x98\x80");
    fs::create_directories(home);
    home_ = home;
    environment_["HOME"] = home;
    int build = 1000;
    for (const char* locale : {"", "C", "C.UTF-8", "de_DE.UTF-8", "xx_YY"}) {
        SCOPED_TRACE(locale);
        environment_.erase("LANG");
        if (*locale != '\0') {
            environment_["LANG"] = locale;
        }
        LayBundle(++build);
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(build));
        EXPECT_EQ(LogLines(), Lines());
    }
}

TEST_F(UpgradeTest, ABundleInAFolderOutsideAsciiWorksWithoutALocale) {
    LayBundle(1000);
    fs::create_directories(At("Anwendungen für alle"));
    fs::rename(At("bundle"), At("Anwendungen für alle/Kelvane Quay 日本.app"));
    environment_.erase("LANG");
    const std::string binary = At("Anwendungen für alle/Kelvane Quay 日本.app/Contents/MacOS/kelvane-quay-launcher");
    ExpectLaunched(RunProcess({binary}, environment_), 1000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
}

TEST_F(UpgradeTest, PackageFormats) {
    const struct {
        const char* format;
        const char* filter;
    } formats[] = {{"zip", ""}, {"pax", "gzip"}, {"gnutar", "xz"}, {"7zip", ""}, {"pax", "zstd"}};
    int build = 1000;
    for (const auto& entry : formats) {
        SCOPED_TRACE(std::string(entry.format) + " " + entry.filter);
        LayBundle(++build);
        WritePackage(At("bundle/Contents/Resources/package/tessaly.kpk"), ClientEntries(build), entry.format,
                     entry.filter);
        environment_.erase("LANG");
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(build));
    }
}

TEST_F(UpgradeTest, TheClientStartsWithAllSignalsAsTheyAreByDefault) {
    LayBundle(1000);
    std::vector<PackageEntry> entries = ClientEntries(1000);
    entries[8].content = "#!/bin/sh\ngrep -E '^Sig(Blk|Ign)' /proc/self/status > \"$KQ_TEST_MAILBOX\"\n";
    WritePackage(At("bundle/Contents/Resources/package/tessaly.kpk"), entries);
    const Outcome outcome = RunProcess(
        {"/usr/bin/env", "--ignore-signal=TERM", "--ignore-signal=HUP", "--block-signal=USR1", Arguments().front()},
        environment_);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    EXPECT_EQ(mailbox_.ReadLine(), "SigBlk:\t0000000000000000");
    // The two signals above 31 are the C library's own.
    const std::string ignored = mailbox_.ReadLine();
    ASSERT_EQ(ignored.find("SigIgn:\t"), 0U);
    EXPECT_EQ(std::stoull(ignored.substr(8), nullptr, 16) & 0x7FFFFFFF, 0U) << ignored;
}

TEST_F(UpgradeTest, TheClientHoldsNoneOfTheLaunchersFiles) {
    LayBundle(1000);
    std::vector<PackageEntry> entries = ClientEntries(1000);
    entries[8].content =
        "#!/bin/sh\n"
        "{ for f in /proc/self/fd/*; do readlink $f; done; ps -o sid= -p $$; echo end; } > \"$KQ_TEST_MAILBOX\"\n";
    WritePackage(At("bundle/Contents/Resources/package/tessaly.kpk"), entries);
    LogEverything();
    EXPECT_EQ(Launch().exitCode, 0);
    std::string all;
    for (std::string line = mailbox_.ReadLine(); line != "end" && !line.empty(); line = mailbox_.ReadLine()) {
        all += line + "\n";
    }
    EXPECT_NE(all.find("/dev/null"), std::string::npos) << all;
    EXPECT_EQ(all.find("launcher.log"), std::string::npos) << all;
    EXPECT_EQ(all.find(".lock"), std::string::npos) << all;
    EXPECT_EQ(all.find("socket:"), std::string::npos) << all;
    EXPECT_EQ(all.find("memfd:"), std::string::npos) << all;
}

}  // namespace
