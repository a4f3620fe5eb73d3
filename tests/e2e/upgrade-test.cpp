// What becomes of a home in every branch of a run.
#include <algorithm>

#include "launcher-test.h"

namespace {

using UpgradeTest = LauncherTest;

TEST_F(UpgradeTest, OnlyAHigherBuildOrAMissingBinaryUpgrades) {
    const struct {
        const char* about;
        int installed;              // 0: none
        const char* installedInfo;  // null: as the build has it; empty: none
        int carried;
        const char* carriedInfo;
        bool binary;
        bool upgrades;
    } cases[] = {
        {"first install", 0, nullptr, 1000, nullptr, true, true},
        {"older copy", 999, nullptr, 1000, nullptr, true, true},
        {"same build", 1000, nullptr, 1000, nullptr, true, false},
        {"newer copy stays", 2000, nullptr, 1000, nullptr, true, false},
        {"broken copy of the same build", 1000, nullptr, 1000, nullptr, false, true},
        {"broken copy that is newer", 2000, nullptr, 1000, nullptr, false, true},
        {"copy without INFO", 2000, "", 1000, nullptr, true, true},
        {"copy's build in another group", 2000, "[Else]\nbuild_version=2000\n", 1000, nullptr, true, true},
        {"leading digits count", 999, "[Version]\nbuild_version=1000beta\n", 1000, nullptr, true, false},
        {"no digits count nothing", 999, "[Version]\nbuild_version=beta\n", 1, nullptr, true, true},
        {"bundle without INFO", 999, nullptr, 1000, "", true, false},
    };
    const auto replace = [](const std::string& file, const char* text) {
        if (text != nullptr && *text == '\0') {
            fs::remove(file);
        } else if (text != nullptr) {
            Write(file, text);
        }
    };
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        fs::remove_all(home_);
        if (entry.installed != 0) {
            InstallClient(entry.installed);
            replace(App() + "/Contents/Resources/INFO", entry.installedInfo);
        }
        LayBundle(entry.carried);
        replace(bundle_ + "/Contents/Resources/INFO", entry.carriedInfo);
        if (!entry.binary) {
            fs::remove(App() + "/Contents/MacOS/cloud-quay-ui");
        }
        const Tree before = PrivateTree();
        ExpectLaunched(Launch(), entry.upgrades ? entry.carried : entry.installed);
        if (entry.upgrades) {
            ExpectInstalled(entry.carried);
        } else {
            EXPECT_EQ(PrivateTree(), before);
        }
        EXPECT_EQ(LogLines(), Lines());
    }
}

TEST_F(UpgradeTest, EachStepIsLoggedWhenAskedTo) {
    const auto run = [&](int build, const Lines& source, const Lines& steps) {
        const std::string target = std::to_string(build);
        // The paths are cut to their first character, those that are not set to nothing.
        Lines lines = {"[INFO] >>> user_tessaly_path = /",
                       "[INFO] >>> user_tessaly_app_path = ",
                       "[INFO] >>> user_tessaly_resource_path = /",
                       "[INFO] >>> user_tessaly_data_path = ",
                       "[INFO] >>> user_tessaly_working_dir_path = ",
                       "[INFO] >>> user_tessaly_quay_ui_path = ",
                       "[INFO] >>> root_resource_path = /",
                       "[DEBUG] running",
                       "[INFO] target_version = (1, 2, " + target + ", 3)",
                       source[0],
                       "[DEBUG] Source version: (" + source[1] + ")",
                       "[DEBUG] Target version: ('" + target + "', '3')",
                       "[DEBUG] source version = " + source[2] + ", target version = " + target};
        lines.insert(lines.end(), steps.begin(), steps.end());
        lines.push_back("[INFO] removing aged app folder " + home_ + "/.Tessaly/app");
        lines.emplace_back("[DEBUG] done");
        fs::remove_all(Private("log"));
        LayBundle(build);
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(LogLines(), lines);
    };
    const std::string extract = "'" + Package() + "' -> '" + App() + "'";
    const std::string decompress = "'" + Package() + "' to '" + App() + "'";
    Lines steps = {"[INFO] extract package: " + extract, "[DEBUG] decompress from " + decompress,
                   "[INFO] user installation is ready, removing backup app"};
    LogEverything();
    run(1000, {"[INFO] source does not exist", "'', ''", "0"}, steps);
    const Lines source = {"[INFO] source_version = (1, 2, 1000, 3)", "'1000', '3'", "1000"};
    run(1000, source, {"[DEBUG] no need to upgrade"});
    steps.insert(steps.begin(), {"[DEBUG] local appdata exist",
                                 "[DEBUG] pid file '" + Private("ui.pid") + "' does not exist, no need to terminate"});
    run(2000, source, steps);
}

TEST_F(UpgradeTest, FailedExtractionPutsTheOldCopyBack) {
    const auto climb = [&] { WritePackage(Package(), {{"Contents/../../escaped", "x"}}); };
    const struct {
        const char* about;
        std::function<void()> damage;
        std::string first;  // line of the log
    } cases[] = {
        {"no package", [&] { fs::remove(Package()); }, "open_filename failed: 'Failed to open '" + Package() + "''"},
        {"empty file", [&] { Write(Package(), ""); }, ""},
        {"no archive", [&] { Write(Package(), std::string(5000, 'x')); }, ""},
        {"cut short", [&] { fs::resize_file(Package(), fs::file_size(Package()) / 2); }, ""},
        {"a path that climbs", climb, "[ERROR] archive_read_extract2 failed: 'Path contains '..''"},
        {"no entries", [&] { WritePackage(Package(), {}, "pax"); }, "calculate total file numbers, ret: 0"},
        {"cut within",
         [&] {
             WritePackage(Package(), ClientEntries(2000), "pax");
             fs::resize_file(Package(), 4096 + 512);
         },
         "[ERROR] archive_read_"},
    };
    InstallClient(1000);
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.about);
        LayBundle(2000);
        entry.damage();
        fs::remove_all(Private("log"));
        ExpectLaunched(Launch(), 1000);
        ExpectInstalled(1000);
        const Lines lines = LogLines();
        ASSERT_GE(lines.size(), 3U);
        EXPECT_NE(lines.front().find(entry.first), std::string::npos) << lines.front();
        EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
                  (Lines{"[ERROR] Failed to extract package, rollback to old installation",
                         "[ERROR] Failed to upgrade package"}));
    }
}

TEST_F(UpgradeTest, AFailedFirstInstallIsMendedByTheNextStart) {
    LayBundle(1000);
    fs::rename(Package(), At("away"));
    const Outcome outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
    const Tree empty = {{"KelvaneQuay.app", "755 folder"}};
    EXPECT_EQ(PrivateTree(), empty);
    const Lines lines = LogLines();
    ASSERT_EQ(lines.size(), 5U);
    // Linux starts the binary itself and so knows that there is none.
    EXPECT_EQ(Lines(lines.begin() + 2, lines.end()),
              (Lines{"[ERROR] Failed to extract package, and no old installation to rollback",
                     "[ERROR] Failed to upgrade package", "[ERROR] Failed to launch Tessaly UI"}));
    fs::rename(At("away"), Package());
    ExpectLaunched(Launch(), 1000);
    ExpectInstalled(1000);
}

TEST_F(UpgradeTest, LeftoversUnderBackupNames) {
    const std::string failed = "[ERROR] failed to backup app from '" + App() + "' -> '" + App() + "_tmp";
    const auto leave = [&](Tree& tree, const std::string& number) {
        Write(App() + "_tmp" + number + "/kept", "left by an earlier run");
        tree["KelvaneQuay.app_tmp" + number] = "755 folder";
        tree["KelvaneQuay.app_tmp" + number + "/kept"] = "644 file left by an earlier run";
    };
    // Two in the way: the third name takes the copy, and all three go after the success. One beyond stays.
    InstallClient(1000);
    LayBundle(2000);
    Tree gone;
    Tree left;
    leave(gone, "");
    leave(gone, "1");
    leave(left, "7");
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(LogLines(), (Lines{failed + "'", failed + "1'"}));
    ExpectInstalled(2000, left);

    // All ten in the way: the old copy stays in use, and nothing is unpacked.
    Lines lines;
    for (const char* number : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        leave(left, number);
        lines.push_back(failed + number + "'");
    }
    lines.push_back(failed + "9' at max retries, exiting");
    lines.emplace_back("[ERROR] Failed to upgrade package");
    LayBundle(3000);
    fs::remove_all(Private("log"));
    ExpectLaunched(Launch(), 2000);
    ExpectInstalled(2000, left);
    EXPECT_EQ(LogLines(), lines);

    // The last name is as good as the first, and a rollback from it leaves the others where they lie.
    fs::remove_all(App() + "_tmp9");
    left.erase("KelvaneQuay.app_tmp9");
    left.erase("KelvaneQuay.app_tmp9/kept");
    fs::remove(Package());
    ExpectLaunched(Launch(), 2000);
    ExpectInstalled(2000, left);
}

TEST_F(UpgradeTest, PrivateFolderInTheWay) {
    LayBundle(1000);
    // A file where the folder should be: no log, no install, the lines go to standard error, the exit code stays 0.
    Write(home_ + "/.KelvaneQuay", "not a folder");
    const Outcome outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    for (const std::string& line : {"failed to create folder: '" + App() + "'\n", std::string("upgrade package\n")}) {
        EXPECT_NE(outcome.errors.find(line), std::string::npos) << outcome.errors;
    }
    EXPECT_EQ(Read(home_ + "/.KelvaneQuay"), "not a folder");

    // A folder that is reached through a link works like any other.
    fs::remove(home_ + "/.KelvaneQuay");
    fs::create_directories(At("elsewhere"));
    fs::create_symlink(At("elsewhere"), home_ + "/.KelvaneQuay");
    EXPECT_EQ(Launch().errors, "");
    // The shell in the client's script says where it really is.
    EXPECT_EQ(mailbox_.ReadLine(), "started 1000 in " + At("elsewhere/KelvaneQuay.app/Contents/MacOS") + ", zone UTC");
    EXPECT_EQ(ReadTree(At("elsewhere/KelvaneQuay.app")), ClientTree(1000));
}

TEST_F(UpgradeTest, AReadOnlyPrivateFolderKeepsTheOldCopy) {
    KQ_NEED(Ability::Root);
    InstallClient(1000);
    LayBundle(2000);
    const Lines asNobody = AsNobody({At("run"), Private("log")});
    Write(Private("log/launcher.log"), "");
    AsNobody({Private("log")});
    ExpectLaunched(Launch(asNobody), 1000);
    ExpectInstalled(1000);
    EXPECT_EQ(LogLines().size(), 12U) << "one for each name";

    // Nothing can be written at all, the log included.
    fs::permissions(Private("log"), static_cast<fs::perms>(0555));
    fs::remove(Private("log/launcher.log"));
    ExpectLaunched(Launch(asNobody), 1000);
    EXPECT_FALSE(fs::exists(Private("log/launcher.log")));
}

TEST_F(UpgradeTest, AnyLocaleAnyHomeAnyBundleAnyFormat) {
    home_ = environment_["HOME"] = At("Üser und 日本語 \xF0\x9F\x98\x80");
    bundle_ = At("Anwendungen für alle/Kelvane Quay 日本.app");
    fs::create_directories(home_);
    const struct {
        const char* locale;
        const char* format;
        const char* filter;
    } cases[] = {{"", "zip", ""},
                 {"C", "pax", "gzip"},
                 {"C.UTF-8", "gnutar", "xz"},
                 {"de_DE.UTF-8", "7zip", ""},
                 {"xx_YY", "pax", "zstd"}};
    int build = 1000;
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.format);
        environment_["LANG"] = entry.locale;
        LayBundle(++build);
        WritePackage(Package(), ClientEntries(build), entry.format, entry.filter);
        ExpectLaunched(Launch(), build);
        ExpectInstalled(build);
        EXPECT_EQ(LogLines(), Lines());
    }
}

TEST_F(UpgradeTest, TheClientInheritsNothing) {
    LayBundle(1000);
    std::vector<PackageEntry> entries = ClientEntries(1000);
    entries[8].content =
        "#!/bin/sh\nexec 9>\"$KQ_TEST_MAILBOX\"\n"
        "grep -E '^Sig(Blk|Ign)' /proc/self/status >&9\n"
        "[ \"$(ps -o sid= -p $$)\" -eq $$ ] && echo 'leads a session' >&9\n"
        "for file in /proc/$$/fd/*; do readlink \"$file\" >&9; done\n";
    WritePackage(Package(), entries);
    LogEverything();
    EXPECT_EQ(Launch({"/usr/bin/env", "--ignore-signal=TERM", "--ignore-signal=HUP", "--block-signal=USR1"}).exitCode,
              0);
    EXPECT_EQ(mailbox_.ReadLine(), "SigBlk:\t0000000000000000");
    // The two signals above 31 are the C library's own.
    EXPECT_EQ(std::stoull(mailbox_.ReadLine().substr(8), nullptr, 16) & 0x7FFFFFFF, 0U);
    EXPECT_EQ(mailbox_.ReadLine(), "leads a session");
    // Beside the null device the shell's own two.
    Lines files(5);
    std::generate(files.begin(), files.end(), [&] { return mailbox_.ReadLine(); });
    std::sort(files.begin(), files.end());
    const std::string null = "/dev/null";
    EXPECT_EQ(files, (Lines{null, null, null, App() + "/Contents/MacOS/cloud-quay-ui", At("mailbox")}));
}

TEST_F(UpgradeTest, WithoutAThreadTheWorkIsDoneAllTheSame) {
    KQ_NEED(Ability::OwnThreads);
    KQ_NEED(Ability::Tracing);
    InstallClient(1000);
    LayBundle(2000);
    EXPECT_EQ(Launch(Traced({"-e", "trace=clone3,clone", "-e", "inject=clone3:error=EAGAIN:when=1"})).exitCode, 0);
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(2000));
    ExpectInstalled(2000);
}

}  // namespace
