// The built tool and the real launcher: from a client's folder to an installed client.
#include <sys/stat.h>

#include "quay-test.h"
#include "tools/quay-package/checks.h"
#include "volume.h"

class BundleTest : public QuayTest {
protected:
    void SetUp() override {
        MakeClient();
        Pack();
    }
};

// By the tool and the real launcher alone; then the next version.
TEST_F(BundleTest, InstallsAndUpgradesThroughTheLauncher) {
    fs::create_directories(At("tmp"));
    environment_["TMPDIR"] = At("tmp");
    for (const int build : {7, 8}) {
        MakeBundle(build);
        EXPECT_EQ(Check("@bundle"), Codes());
        EXPECT_TRUE(fs::is_empty(At("tmp")));
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(ReadTree(App()), ClientTree(build));
        Succeed("verify @bundle --home @home");
    }
}

TEST_F(BundleTest, LaysWhatIsAskedForAndReplacesABundleInOneStep) {
    Write(At("levels"), "service_debug=7\n");
    const std::string line =
        "bundle --launcher LAUNCHER --package @client.kpk --levels @levels --installed-at \"/srv/Kelvane Quay.app\" "
        "-o ";
    fs::create_directory(At("bundle"));  // an empty folder is nobody's
    Succeed(line + "@bundle/");
    const std::string resources = At("bundle/Contents/Resources");
    EXPECT_EQ(Read(resources + "/log/launcher.debug"), "service_debug=7\n");
    EXPECT_EQ(Read(resources + "/package/tessaly.kpk"), Read(At("client.kpk")));
    const std::string started = "Exec=\"/srv/Kelvane Quay.app/Contents/MacOS/";
    EXPECT_NE(Read(resources + "/kelvane-quay.desktop").find(started), std::string::npos);
    const std::string propertyList = Read(At("bundle/Contents/Info.plist"));
    EXPECT_NE(propertyList.find("<string>1.2</string>"), std::string::npos);
    EXPECT_NE(propertyList.find("<string>7</string>"), std::string::npos);
    EXPECT_EQ(propertyList.find('@'), std::string::npos);

    Write(resources + "/stale", "");
    Succeed(line + "@bundle/");
    EXPECT_FALSE(fs::exists(resources + "/stale"));
    // Something that is no bundle is nobody's to replace.
    Write(At("folder/precious"), "");
    EXPECT_EQ(Run(line + "@folder").exitCode, 2);
    EXPECT_TRUE(fs::exists(At("folder/precious")));
}

// The skeleton that the build installs becomes a good bundle in its own place.
TEST_F(BundleTest, CompletesTheInstalledSkeleton) {
    const Outcome installed =
        RunProcess({KQ_CMAKE, "--install", KQ_BUILD, "--component", "bundle", "--prefix", folder()}, environment_);
    ASSERT_EQ(installed.exitCode, 0) << installed.output << installed.errors;
    // What a client brings is missing, and nothing else.
    EXPECT_EQ(Check("@KelvaneQuay.app"), (Codes{"KQ601", "KQ602"}));
    Succeed(
        "bundle --launcher @KelvaneQuay.app/Contents/MacOS/kelvane-quay-launcher --package @client.kpk"
        " -o @KelvaneQuay.app");
    EXPECT_EQ(Check("@KelvaneQuay.app"), Codes());
}

TEST_F(BundleTest, RefusesBadPartsAndLeavesWhatStoodThere) {
    Write(At("bad"), "no levels at all\n");
    fs::copy(KQ_LAUNCHER, At("cut"));
    fs::resize_file(At("cut"), 5000);
    ASSERT_EQ(mkfifo(At("fifo").c_str(), 0600), 0);
    Write(At("odd.kpk"), Read(At("client.kpk")) + "x");
    const std::pair<Codes, const char*> parts[] = {
        {{"KQ605", "KQ616"}, "--launcher @bad --package @client.kpk"},
        {{"KQ616"}, "--launcher @cut --package @client.kpk"},
        {{"KQ606"}, "--launcher LAUNCHER --package @client.kpk --icon @bad"},
        {{"KQ607"}, "--launcher LAUNCHER --package @client.kpk --levels @bad"},
        {{"KQ102"}, "--launcher LAUNCHER --package @odd.kpk"},
        {{}, "--launcher @fifo --package @client.kpk"},
        {{}, "--launcher LAUNCHER --package @fifo"},
        {{}, "--launcher LAUNCHER --package @client.kpk --icon @fifo"},
    };
    fs::create_directory(At("bundle"));
    const std::set<std::string> before = Names(folder());
    for (const auto& [codes, line] : parts) {
        EXPECT_EQ(CodesOf(RunJson(std::string("bundle -o @bundle ") + line, codes.empty() ? 2 : 1)), codes);
        EXPECT_EQ(Names(folder()), before) << "something was left behind";
        EXPECT_TRUE(fs::is_empty(At("bundle")));
    }
}

// Each defect that can be sown in a bundle.
TEST_F(BundleTest, CheckFindsEverySeed) {
    using Path = const std::string&;
    const auto remove = [](Path path) { fs::remove(path); };
    const auto write = [](const std::string& text) { return [text](Path path) { Write(path, text); }; };
    const auto mode = [](unsigned bits) { return [bits](Path path) { fs::permissions(path, fs::perms(bits)); }; };
    const auto cut = [](Path path) { fs::resize_file(path, fs::file_size(path) - 1); };
    const auto odd = [](Path path) {
        fs::create_directories(fs::path(path).parent_path());
        fs::remove_all(path);
        ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
    };
    const auto link = [this](Path path) {
        fs::rename(path, At("moved"));
        fs::create_symlink(At("moved"), path);
    };
    const auto info = [&write](const std::string& major, const std::string& build) {
        return write("[Version]\nmajor_version=" + major + "\nminor_version=2\nbuild_version=" + build +
                     "\nicon_overlay_version=3\n");
    };
    const std::string desktop = "[Desktop Entry]\nType=Application\nName=X\nExec=";
    constexpr char kInfo[] = "Resources/INFO";
    constexpr char kPackage[] = "Resources/package/tessaly.kpk";
    constexpr char kLauncher[] = "MacOS/kelvane-quay-launcher";
    constexpr char kIcon[] = "Resources/images/ico_72_tessaly.png";
    constexpr char kLevels[] = "Resources/log/launcher.debug";
    constexpr char kDesktop[] = "Resources/kelvane-quay.desktop";
    const struct {
        Codes codes;
        const char* path;  // below the bundle's Contents
        std::function<void(Path)> sow;
    } seeds[] = {
        {{"KQ601"}, kInfo, remove},
        {{"KQ602"}, kPackage, remove},
        {{"KQ603"}, kInfo, info("1", "8")},
        {{"KQ604"}, kLauncher, remove},
        {{"KQ605"}, kLauncher, mode(0644)},
        {{"KQ606"}, kIcon, write("\x89PNG\r\n\x1a\n")},
        {{"KQ606"}, kIcon, remove},
        {{"KQ607"}, kLevels, write("service_debug 7\n")},
        {{"KQ608"}, "Info.plist", remove},
        {{"KQ609"}, "Info.plist", [](Path path) { fs::resize_file(path, 700); }},
        {{"KQ610"}, kDesktop, write(desktop + "another\n")},
        {{}, kDesktop, write(desktop + "/opt/X.app/Contents/MacOS/kelvane-quay-launcher %U\n")},
        {{}, kDesktop, remove},
        {{"KQ611"}, kInfo, info("2", "7")},
        {{"KQ612", "KQ603"}, kInfo, info("1", "x7")},
        {{"KQ613"}, "._Resources", write("")},
        {{"KQ614"}, "..", mode(0700)},
        {{"KQ614"}, "Resources", mode(0777)},
        {{"KQ614"}, kInfo, mode(0600)},
        {{"KQ614"}, kLauncher, mode(0744)},
        {{"KQ614"}, kLauncher, mode(04755)},
        {{"KQ615"}, kInfo, odd},
        {{"KQ615"}, kInfo, link},
        {{"KQ615"}, kPackage, odd},
        {{"KQ615"}, kPackage, link},
        {{"KQ615"}, "Resources/package", link},
        {{"KQ615"}, kLauncher, odd},
        {{"KQ615"}, kLauncher, link},
        {{"KQ615"}, kIcon, odd},
        {{"KQ615"}, "Info.plist", odd},
        {{"KQ615"}, kLevels, odd},
        {{"KQ615"}, kDesktop, odd},
        {{"KQ615"}, "Resources/somewhere", odd},
        {{}, "Resources/somewhere", write("what else a bundle carries")},
        {{"KQ616"}, kLauncher, cut},
        {{"KQ616"}, kLauncher, write("no program")},
    };
    MakeBundle();
    Codes sown = {"KQ701", "KQ702", "KQ703", "KQ705"};  // which the rules keep from happening
    for (const auto& seed : seeds) {
        SCOPED_TRACE(std::string(seed.path) + " " + (seed.codes.empty() ? "" : *seed.codes.begin()));
        fs::copy(At("bundle"), At("spoilt"), fs::copy_options::recursive);
        seed.sow(At("spoilt/Contents/") + seed.path);
        ::Package read;
        VersionInfo versions;
        Findings findings;
        EXPECT_FALSE(CheckBundle(At("spoilt"), kLargestPackage, &read, versions, findings));
        EXPECT_EQ(CodesOf(findings), seed.codes);
        fs::remove_all(At("moved"));
        fs::remove_all(At("spoilt"));
        sown.insert(seed.codes.begin(), seed.codes.end());
    }
    for (const auto& [defect, texts] : AllDefects()) {
        const int code = static_cast<int>(defect);
        const bool isOurs = code > 600 && code < 800 && code != 704;
        EXPECT_EQ(sown.count(IdOf(defect)), isOurs ? 1U : 0U) << IdOf(defect);
    }
}

TEST_F(BundleTest, LauncherAndClientAreForOnePlatform) {
    Write(At("client/Contents/MacOS/cloud-quay-ui"), MachO());
    Write(At("client/Contents/Info.plist"),
          "<plist><dict><key>CFBundleExecutable</key><string>cloud-quay-ui</string></dict></plist>");
    Pack();
    EXPECT_EQ(CodesOf(RunJson("bundle --launcher LAUNCHER --package @client.kpk -o @bundle", 1)), Codes{"KQ616"});
}

// What is found can be accepted, and is listed then; what is wrong beyond doubt can't.
TEST_F(BundleTest, AcceptsWhatItIsToldTo) {
    fs::create_symlink("nowhere", At("client/Contents/l"));
    EXPECT_EQ(Run("pack @client -o @p.kpk --build 7").exitCode, 1);
    Succeed("--accept KQ404=Contents/l pack --build 7 -o @p.kpk @client");
    EXPECT_EQ(Check("@p.kpk"), Codes{"KQ404"});
    const QJsonObject checked = RunJson("check @p.kpk --accept KQ404=Contents/l", 0);
    EXPECT_EQ(CodesOf(checked, "accepted"), Codes{"KQ404"});
    EXPECT_EQ(Value(checked, "rehearsal"), "done");
    EXPECT_EQ(Run("check @p.kpk --accept KQ503").exitCode, 2);
}

// A volume without modes and links shows in the rehearsal that what is installed there is not what was packed.
TEST_F(BundleTest, TheRehearsalSeesWhatTheVolumeDoesNotKeep) {
    fs::remove(At("client/Contents/Resources/current"));
    Pack();
    Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    environment_["TMPDIR"] = At("volume");
    EXPECT_EQ(Check("@client.kpk"), Codes{"KQ704"});
}

// On a terminal the long steps show how far they are, and nothing of it stays.
TEST_F(BundleTest, ShowsProgressOnATerminalOnly) {
    const std::string terminal = "/usr/bin/script";
    if (!fs::exists(terminal)) {
        GTEST_SKIP() << "no terminal: there is no " << terminal;
    }
    const std::string command = tool_ + " check " + At("client.kpk");
    const Outcome outcome = RunProcess({terminal, "-qec", command, "/dev/null"}, environment_);
    const std::size_t full = outcome.output.find("] 100%\r\033[K");
    EXPECT_NE(full, std::string::npos) << outcome.output;
    EXPECT_GT(outcome.output.find(": good"), full);
    EXPECT_EQ(Run("check @client.kpk").errors, "");
}

TEST_F(BundleTest, TheDocumentHasEveryCode) {
    EXPECT_NE(Read(std::string(KQ_DOCS) + "/findings.md").find(Run("check --codes").output), std::string::npos);
}
