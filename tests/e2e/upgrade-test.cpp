// What becomes of a home in every branch of a run.

#include "launcher-test.h"

namespace {

using UpgradeTest = LauncherTest;

TEST_F(UpgradeTest, OnlyAHigherBuildOrAMissingBinaryUpgrades) {
    // What is installed (0: nothing) and carried; each one's INFO where it is an odd one, "-" being none.
    const std::tuple<const char*, int, std::string, int, std::string, bool> cases[] = {
        {"first install", 0, "", 1000, "", true},
        {"older copy", 999, "", 1000, "", true},
        {"same build", 1000, "", 1000, "", false},
        {"newer copy stays", 2000, "", 1000, "", false},
        {"no binary, same build", 1000, "", 1000, "", true},
        {"no binary, newer copy", 2000, "", 1000, "", true},
        {"copy without INFO", 2000, "-", 1000, "", true},
        {"bundle without INFO", 999, "", 1000, "-", false},
        {"in another group", 2000, "[Else]\nbuild_version=2000\n", 1000, "", true},
        {"leading digits count", 999, "[Version]\nbuild_version=1000beta\n", 1000, "", false},
        {"no digits count nothing", 999, "[Version]\nbuild_version=beta\n", 1, "", true}};
    for (const auto& [about, installed, installedInfo, carried, carriedInfo, upgrades] : cases) {
        SCOPED_TRACE(about);
        fs::remove_all(home_);
        LayBundle(carried);
        if (installed != 0) {
            InstallClient(installed);
        }
        for (const auto& [root, info] : {std::pair(App(), installedInfo), std::pair(bundle_, carriedInfo)}) {
            if (info == "-") {
                fs::remove(root + "/Contents/Resources/INFO");
            } else if (!info.empty()) {
                Write(root + "/Contents/Resources/INFO", info);
            }
        }
        if (about[0] == 'n' && about[3] == 'b') {
            fs::remove(App() + "/Contents/MacOS/cloud-quay-ui");
        }
        const Tree before = PrivateTree();
        ExpectLaunched(Launch(), upgrades ? carried : installed);
        EXPECT_EQ(PrivateTree(), upgrades ? HomeWith(carried) : before);
        EXPECT_EQ(LogLines(), Lines());
    }
}

TEST_F(UpgradeTest, EachStepIsLoggedWhenAskedTo) {
    LogEverything();
    const auto expect = [&](int build, const std::string& source, const std::string& versions, const Lines& steps) {
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
                       "[INFO] " + source,
                       "[DEBUG] Source version: (" + versions + ")",
                       "[DEBUG] Target version: ('" + target + "', '3')"};
        lines.insert(lines.end(), steps.begin(), steps.end());
        lines.insert(lines.end(), {"[INFO] removing aged app folder " + home_ + "/.Tessaly/app", "[DEBUG] done"});
        fs::remove_all(Private("log"));
        LayBundle(build);
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(LogLines(), lines);
    };
    const std::string extract = "[INFO] extract package: '" + Package() + "' -> '" + App() + "'";
    const std::string decompress = "[DEBUG] decompress from '" + Package() + "' to '" + App() + "'";
    const std::string ready = "[INFO] user installation is ready, removing backup app";
    const std::string source = "source_version = (1, 2, 1000, 3)";
    const std::string noPid = "[DEBUG] pid file '" + Private("ui.pid") + "' does not exist, no need to terminate";
    const std::string compare = "[DEBUG] source version = ";
    expect(1000, "source does not exist", "'', ''", {compare + "0, target version = 1000", extract, decompress, ready});
    expect(1000, source, "'1000', '3'", {compare + "1000, target version = 1000", "[DEBUG] no need to upgrade"});
    expect(2000, source, "'1000', '3'",
           {compare + "1000, target version = 2000", "[DEBUG] local appdata exist", noPid, extract, decompress, ready});
}

TEST_F(UpgradeTest, FailedExtractionPutsTheOldCopyBack) {
    const auto cut = [&] {
        WritePackage(Package(), ClientEntries(2000), "pax");
        fs::resize_file(Package(), 4096 + 512);
    };
    const std::pair<std::function<void()>, std::string> cases[] = {
        // and what the first line has
        {[&] { fs::remove(Package()); }, "archive_read_open_filename failed: 'Failed to open '" + Package() + "''"},
        {[&] { Write(Package(), ""); }, ""},
        {[&] { Write(Package(), std::string(5000, 'x')); }, ""},
        {[&] { fs::resize_file(Package(), fs::file_size(Package()) / 2); }, ""},
        {[&] { WritePackage(Package(), {}, "pax"); }, "Failed to calculate total file numbers, ret: 0"},
        {[&] {
             WritePackage(Package(), {{"Contents/../../escaped", "x"}});
         },
         "extract2 failed: 'Path contains '..''"},
        {cut, "[ERROR] archive_read_"}};
    InstallClient(1000);
    for (const auto& [damage, first] : cases) {
        LayBundle(2000);
        damage();
        fs::remove_all(Private("log"));
        ExpectLaunched(Launch(), 1000);
        EXPECT_EQ(PrivateTree(), HomeWith(1000));
        const Lines lines = LogLines();
        ASSERT_GE(lines.size(), 3U);
        EXPECT_NE(lines.front().find(first), std::string::npos) << lines.front();
        EXPECT_EQ(lines[lines.size() - 2], "[ERROR] Failed to extract package, rollback to old installation");
        EXPECT_EQ(lines.back(), "[ERROR] Failed to upgrade package");
    }
    // A limit for the size of files is a failure like any other.
    LayBundle(2000);
    ExpectLaunched(Launch({"/bin/bash", "-c", "ulimit -f 100; exec \"$0\""}), 1000);
    EXPECT_EQ(PrivateTree(), HomeWith(1000));
    // A failed first install leaves what was unpacked, and is mended by the next start.
    fs::remove_all(home_);
    LayBundle(2000);
    fs::rename(Package(), At("away"));
    EXPECT_EQ(Launch().errors, "");
    EXPECT_EQ(PrivateTree(), (Tree{{"KelvaneQuay.app", "755 folder"}}));
    const Lines lines = LogLines();
    // Linux starts the binary itself and so knows that there is none.
    EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
              (Lines{"[ERROR] Failed to extract package, and no old installation to rollback",
                     "[ERROR] Failed to upgrade package", "[ERROR] Failed to launch Tessaly UI"}));
    fs::rename(At("away"), Package());
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(PrivateTree(), HomeWith(2000));
}

TEST_F(UpgradeTest, LeftoversUnderBackupNames) {
    const std::string failed = "[ERROR] failed to backup app from '" + App() + "' -> '" + App() + "_tmp";
    Tree left;
    const auto leave = [&](const std::string& number) {
        Write(App() + "_tmp" + number + "/kept", "left by an earlier run");
        left["KelvaneQuay.app_tmp" + number] = "755 folder";
        left["KelvaneQuay.app_tmp" + number + "/kept"] = "644 file left by an earlier run";
    };
    // Two in the way: the third name takes the copy, and all three go after the success. One beyond stays.
    InstallClient(1000);
    LayBundle(2000);
    leave("");
    leave("1");
    left.clear();
    leave("7");
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(LogLines(), (Lines{failed + "'", failed + "1'"}));
    EXPECT_EQ(PrivateTree(), HomeWith(2000, left));

    // All ten in the way: the old copy stays in use, and nothing is unpacked.
    Lines lines;
    for (const char* number : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        leave(number);
        lines.push_back(failed + number + "'");
    }
    lines.insert(lines.end(), {failed + "9' at max retries, exiting", "[ERROR] Failed to upgrade package"});
    LayBundle(3000);
    fs::remove_all(Private("log"));
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(PrivateTree(), HomeWith(2000, left));
    EXPECT_EQ(LogLines(), lines);

    // The last name is as good as the first, and a rollback from it leaves the others where they lie.
    fs::remove_all(App() + "_tmp9");
    left.erase("KelvaneQuay.app_tmp9");
    left.erase("KelvaneQuay.app_tmp9/kept");
    fs::remove(Package());
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(PrivateTree(), HomeWith(2000, left));
}

TEST_F(UpgradeTest, ThePrivateFolderIsInTheWayALinkOrReadOnly) {
    LayBundle(1000);
    // A file where the folder should be: no log, no install, the lines go to standard error, the exit code stays 0.
    Write(home_ + "/.KelvaneQuay", "not a folder");
    const Outcome outcome = Launch();
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_NE(outcome.errors.find("failed to create folder: '" + App() + "'\n"), std::string::npos) << outcome.errors;
    EXPECT_EQ(Read(home_ + "/.KelvaneQuay"), "not a folder");
    // A folder that is reached through a link works like any other; the client's shell says where it really is.
    fs::remove(home_ + "/.KelvaneQuay");
    fs::create_directories(At("elsewhere"));
    fs::create_symlink(At("elsewhere"), home_ + "/.KelvaneQuay");
    EXPECT_EQ(Launch().errors, "");
    EXPECT_EQ(mailbox_.ReadLine(), "started 1000 in " + At("elsewhere/KelvaneQuay.app/Contents/MacOS, zone UTC"));
    EXPECT_EQ(ReadTree(At("elsewhere")).at("KelvaneQuay.app/Contents/Resources/only-in-1000"), "644 file 1000");

    // Nothing can be written at all, the log included.
    KQ_NEED(Ability::Root);
    fs::remove(home_ + "/.KelvaneQuay");
    InstallClient(1000);
    LayBundle(2000);
    const std::string nobody = "65534";
    fs::create_directory(Private("log"));
    RunProcess({"/bin/chown", nobody, At("run")});
    ExpectLaunched(Launch({"/usr/bin/setpriv", "--reuid=" + nobody, "--regid=" + nobody, "--clear-groups"}), 1000);
    EXPECT_EQ(PrivateTree(), HomeWith(1000));
}

TEST_F(UpgradeTest, AnyLocaleAnyHomeAnyBundleAnyFormat) {
    home_ = environment_["HOME"] = At("Üser und 日本語 \xF0\x9F\x98\x80");
    bundle_ = At("Anwendungen für alle/Kelvane Quay 日本.app");
    fs::create_directories(home_);
    const std::tuple<const char*, const char*, const char*> cases[] = {{"", "zip", ""},
                                                                       {"C", "pax", "gzip"},
                                                                       {"C.UTF-8", "gnutar", "xz"},
                                                                       {"de_DE.UTF-8", "7zip", ""},
                                                                       {"xx_YY", "pax", "zstd"}};
    int build = 1000;
    for (const auto& [locale, format, filter] : cases) {
        SCOPED_TRACE(format);
        environment_["LANG"] = locale;
        LayBundle(++build);
        WritePackage(Package(), ClientEntries(build), format, filter);
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(PrivateTree(), HomeWith(build));
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
    KQ_NEED(Ability::OwnCalls);
    KQ_NEED(Ability::Tracing);
    LayBundle(2000);
    EXPECT_EQ(Launch(Traced({"-e", "trace=clone3,clone", "-e", "inject=clone3:error=EAGAIN:when=1"})).exitCode, 0);
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(2000));
    EXPECT_EQ(PrivateTree(), HomeWith(2000));
}

}  // namespace
