// What becomes of a home in every branch of a run, and what a run asks of the system.
#include <QtGlobal>

#include "launcher-test.h"

namespace {

using UpgradeTest = LauncherTest;

TEST_F(UpgradeTest, OnlyAHigherBuildOrAMissingBinaryUpgrades) {
    // What is installed (0: nothing; below: without its binary) and carried; each one's INFO where it is an odd one,
    // "-" being none; whether the copy is replaced.
    const std::tuple<int, std::string, int, std::string, bool> cases[] = {
        {0, "", 1000, "", true},
        {999, "", 1000, "", true},
        {1000, "", 1000, "", false},
        {2000, "", 1000, "", false},
        {-1000, "", 1000, "", true},
        {-2000, "", 1000, "", true},
        {2000, "-", 1000, "", true},
        {999, "", 1000, "-", false},
        {2000, "[Else]\nbuild_version=2000\n", 1000, "", true},
        {999, "[Version]\nbuild_version=1000beta\n", 1000, "", false},
        {999, "[Version]\nbuild_version=beta\n", 1, "", true}};
    for (const auto& [installed, installedInfo, carried, carriedInfo, upgrades] : cases) {
        SCOPED_TRACE(std::to_string(installed) + installedInfo);
        fs::remove_all(home_);
        LayBundle(carried);
        if (installed != 0) {
            InstallClient(std::abs(installed));
        }
        for (const auto& [root, info] : {std::pair(App(), installedInfo), std::pair(bundle_, carriedInfo)}) {
            if (!info.empty()) {
                Write(root + "/Contents/Resources/INFO", info);
                fs::remove(info == "-" ? root + "/Contents/Resources/INFO" : "");
            }
        }
        fs::remove(installed < 0 ? App() + "/Contents/MacOS/cloud-quay-ui" : "");
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
    const PackageEntry escaping = {"../escaped", "x"};
    // A damage, and what the first line has.
    const std::pair<std::function<void()>, std::string> cases[] = {
        {[&] { fs::remove(Package()); }, "archive_read_open_filename failed: 'Failed to open '" + Package() + "''"},
        {[&] { Write(Package(), ""); }, ""},
        {[&] { fs::resize_file(Package(), fs::file_size(Package()) / 2); }, ""},
        {[&] { WritePackage(Package(), {}, "pax"); }, "Failed to calculate total file numbers, ret: 0"},
        {[&] { WritePackage(Package(), {escaping}); }, "extract2 failed: 'Path contains '..''"},
        {[&] { WritePackage(Package(), ClientEntries(2000), "pax"), fs::resize_file(Package(), 4608); },
         "[ERROR] archive_read_"}};
    InstallClient(1000);
    for (const auto& [damage, first] : cases) {
        LayBundle(2000);
        damage();
        fs::remove_all(Private("log"));
        ExpectLaunched(Launch(), 1000);
        EXPECT_EQ(PrivateTree(), HomeWith(1000));
        const Lines lines = LogLines();
        EXPECT_NE(lines.at(0).find(first), std::string::npos) << lines[0];
        EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
                  (Lines{"[ERROR] Failed to extract package, rollback to old installation",
                         "[ERROR] Failed to upgrade package"}));
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
    const auto name = [](int at) { return "KelvaneQuay.app_tmp" + (at == 0 ? "" : std::to_string(at)); };
    InstallClient(1000);
    LayBundle(2000);
    Tree left;
    Lines lines;
    for (int at = 0; at < 10; ++at) {
        Write(Private(name(at)) + "/kept", "by an earlier run");
        left[name(at)] = "755 folder";
        left[name(at) + "/kept"] = "644 file by an earlier run";
        lines.push_back("[ERROR] failed to backup app from '" + App() + "' -> '" + Private(name(at)) + "'");
    }
    // All ten in the way: the old copy stays in use, and nothing is unpacked.
    lines.insert(lines.end(), {lines[9] + " at max retries, exiting", "[ERROR] Failed to upgrade package"});
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(LogLines(), lines);
    EXPECT_EQ(PrivateTree(), HomeWith(1000, left));

    // The last name is as good as the first, and a rollback from it leaves the others where they lie.
    const auto remove = [&](int at) {
        fs::remove_all(Private(name(at)));
        left.erase(name(at));
        left.erase(name(at) + "/kept");
    };
    remove(9);
    fs::rename(Package(), At("away"));
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(PrivateTree(), HomeWith(1000, left));

    // After a success all go up to the one that took the copy, and those beyond stay.
    fs::rename(At("away"), Package());
    fs::remove_all(Private(name(2)));
    ExpectLaunched(Launch(), 2000);
    for (const int at : {0, 1, 2}) {
        remove(at);
    }
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
    // The two signals above 31 that may be ignored are the C library's own.
    entries.rbegin()[1].content =
        "#!/bin/sh\nexec 9>\"$KQ_TEST_MAILBOX\"\n"
        "grep -cE '^Sig(Blk:.0{16}|Ign:.0{7}[01][08]0{7})$' /proc/self/status >&9\n"
        "echo \"$(($(ps -o sid= -p $$) == $$))\" >&9\n"
        "(for file in /proc/$$/fd/*; do readlink \"$file\"; done; echo end) >&9\n";
    WritePackage(Package(), entries);
    LogEverything();
    const Outcome outcome = Launch({"/bin/sh", "-c", "exec \"$@\" 5</etc/passwd", "sh", "/usr/bin/env",
                                    "--ignore-signal=TERM", "--ignore-signal=HUP", "--block-signal=USR1"});
    EXPECT_EQ(outcome.exitCode, 0);
    Lines lines;
    for (std::string line; (line = mailbox_.ReadLine()) != "end" && !line.empty();) {
        lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end());
    // No blocked and no ignored signals, its own session, and beside the null device the shell's own two files.
    const std::string null = "/dev/null";
    EXPECT_EQ(lines, (Lines{null, null, null, App() + "/Contents/MacOS/cloud-quay-ui", At("mailbox"), "1", "2"}));
}

TEST_F(UpgradeTest, WithoutAThreadTheWorkIsDoneAllTheSame) {
    KQ_NEED(Ability::OwnCalls);
    KQ_NEED(Ability::Tracing);
    LayBundle(2000);
    EXPECT_EQ(Launch(Traced({"-e", "trace=clone3,clone", "-e", "inject=clone3:error=EAGAIN:when=1"})).exitCode, 0);
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(2000));
    EXPECT_EQ(PrivateTree(), HomeWith(2000));
}

// The same on every machine, however busy it is.
TEST_F(UpgradeTest, CallsForEachEntryAndForAStartWithNothingToDo) {
    KQ_NEED(Ability::OwnCalls);
    environment_.erase("TZ");  // which would spare the looks at the system's zone
    constexpr int kFiles = 1000;
    for (const int build : {1000, 1001}) {
        LayBundle(build);
        std::vector<PackageEntry> entries = ClientEntries(build);
        for (int at = 0; at < kFiles; ++at) {
            entries.insert(entries.begin() + 1, {"Contents/file" + std::to_string(at), "a few bytes"});
        }
        WritePackage(Package(), entries);
        ExpectLaunched(Launch(build == 1000 ? Lines() : Traced({"-c", "-U", "name,calls"})), build);
    }
    const int calls = std::stoi(RunProcess({"awk", "$1 == \"total\" { print $2 }", At("trace")}).output);
    EXPECT_LE(calls / kFiles, QT_VERSION_MAJOR == 5 ? 16 : 22) << "Qt 6 wakes a thread with more calls";
    EXPECT_GE(calls / kFiles, 5) << "an entry can't be replaced with less";

    ExpectLaunched(Launch(Traced({"-e", "trace=%file"})), 1001);
    const int looks = std::stoi(RunProcess({"grep", "-c", "/.KelvaneQuay", At("trace")}).output);
    EXPECT_LE(looks, 24);
    EXPECT_GE(looks, 3) << "INFO, the binary and its start";
    EXPECT_EQ(RunProcess({"grep", "-c", "libjpeg", At("trace")}).output, "0\n") << "the icon is a PNG image";
}

}  // namespace
