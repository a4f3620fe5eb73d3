// The built tool and the real launcher: from a client's folder to an installed client.
#include <sys/stat.h>

#include <filesystem>
#include <functional>

#include "quay-test.h"
#include "tools/quay-package/bundle-check.h"
#include "tools/quay-package/rules.h"
#include "volume.h"

namespace fs = std::filesystem;

class BundleTest : public QuayTest {};

// From a client's folder to an installed client, by the tool and the real launcher alone; then the next version.
TEST_F(BundleTest, InstallsAndUpgradesThroughTheLauncher) {
    for (const int build : {7, 8}) {
        const std::string client = MakeClient("client-" + std::to_string(build), build);
        MakeBundle(MakePackage(client, build));
        fs::create_directories(At("tmp"));
        environment_["TMPDIR"] = At("tmp");
        EXPECT_EQ(Check(At("bundle")), Codes());
        EXPECT_TRUE(fs::is_empty(At("tmp")));
        environment_.erase("TMPDIR");
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(build));
        EXPECT_EQ(Run({"verify", At("bundle"), "--home", home_}).exitCode, 0);
        fs::remove_all(At("expected-" + std::to_string(build)));
    }
}

TEST_F(BundleTest, LaysWhatIsAskedForAndReplacesABundleInOneStep) {
    const std::string package = MakePackage(MakeClient());
    Write(At("levels"), "service_debug=7\n");
    const std::vector<std::string> arguments = {"bundle",
                                                "--launcher",
                                                KQ_LAUNCHER,
                                                "--package",
                                                package,
                                                "-o",
                                                At("bundle/"),
                                                "--levels",
                                                At("levels"),
                                                "--installed-at",
                                                "/srv/Kelvane Quay.app"};
    fs::create_directory(At("bundle"));  // an empty folder is nobody's
    EXPECT_EQ(Run(arguments).exitCode, 0);
    const std::string resources = At("bundle/Contents/Resources");
    EXPECT_EQ(Read(resources + "/log/launcher.debug"), "service_debug=7\n");
    EXPECT_EQ(Read(resources + "/package/tessaly.kpk"), Read(package));
    EXPECT_NE(Read(resources + "/kelvane-quay.desktop").find("Exec=\"/srv/Kelvane Quay.app/Contents/MacOS/"),
              std::string::npos);
    const std::string propertyList = Read(At("bundle/Contents/Info.plist"));
    EXPECT_NE(propertyList.find("<string>1.2</string>"), std::string::npos);
    EXPECT_NE(propertyList.find("<string>7</string>"), std::string::npos);
    EXPECT_EQ(propertyList.find('@'), std::string::npos);

    Write(resources + "/stale", "");
    EXPECT_EQ(Run(arguments).exitCode, 0);
    EXPECT_FALSE(fs::exists(resources + "/stale"));
    // Something that is no bundle is nobody's to replace.
    Write(At("folder/precious"), "");
    EXPECT_EQ(Run({"bundle", "--launcher", KQ_LAUNCHER, "--package", package, "-o", At("folder")}).exitCode, 2);
    EXPECT_TRUE(fs::exists(At("folder/precious")));
}

// The skeleton that the build installs becomes a good bundle in its own place.
TEST_F(BundleTest, CompletesTheInstalledSkeleton) {
    const Outcome installed =
        RunProcess({KQ_CMAKE, "--install", KQ_BUILD, "--component", "bundle", "--prefix", folder()}, environment_);
    ASSERT_EQ(installed.exitCode, 0) << installed.output << installed.errors;
    const std::string bundle = At("KelvaneQuay.app");
    // What a client brings is missing, and nothing else.
    EXPECT_EQ(Check(bundle), (Codes{"KQ601", "KQ602"}));
    const std::string launcher = bundle + "/Contents/MacOS/kelvane-quay-launcher";
    const std::string package = MakePackage(MakeClient());
    EXPECT_EQ(Run({"bundle", "--launcher", launcher, "--package", package, "-o", bundle}).exitCode, 0);
    EXPECT_EQ(Check(bundle), Codes());
}

TEST_F(BundleTest, RefusesBadPartsAndLeavesWhatStoodThere) {
    const std::string package = MakePackage(MakeClient());
    Write(At("levels"), "no levels at all\n");
    Write(At("icon"), "no icon");
    Write(At("launcher"), "#!/bin/sh\n");
    fs::copy(KQ_LAUNCHER, At("cut"));
    fs::resize_file(At("cut"), 5000);
    ASSERT_EQ(mkfifo(At("fifo").c_str(), 0600), 0);
    Write(At("odd.kpk"), Read(package) + "x");
    const struct {
        Codes codes;
        std::vector<std::string> arguments;
    } parts[] = {
        {{"KQ605"}, {"--launcher", At("launcher"), "--package", package}},
        {{"KQ616"}, {"--launcher", At("cut"), "--package", package}},
        {{"KQ606"}, {"--launcher", KQ_LAUNCHER, "--package", package, "--icon", At("icon")}},
        {{"KQ607"}, {"--launcher", KQ_LAUNCHER, "--package", package, "--levels", At("levels")}},
        {{"KQ102"}, {"--launcher", KQ_LAUNCHER, "--package", At("odd.kpk")}},
        {{}, {"--launcher", At("fifo"), "--package", package}},
        {{}, {"--launcher", KQ_LAUNCHER, "--package", At("fifo")}},
        {{}, {"--launcher", KQ_LAUNCHER, "--package", package, "--icon", At("fifo")}},
    };
    fs::create_directory(At("bundle"));
    const std::set<std::string> before = Names(folder());
    for (const auto& part : parts) {
        std::vector<std::string> arguments = {"bundle", "-o", At("bundle")};
        arguments.insert(arguments.end(), part.arguments.begin(), part.arguments.end());
        EXPECT_EQ(CodesOf(RunJson(arguments, part.codes.empty() ? 2 : 1)), part.codes);
        EXPECT_EQ(Names(folder()), before) << "something was left behind";
        EXPECT_TRUE(fs::is_empty(At("bundle")));
    }
}

// Each defect that can be sown in a bundle.
TEST_F(BundleTest, CheckFindsEverySeed) {
    const auto info = [](const char* build, const char* major) {
        return std::string("[Version]\nmajor_version=") + major + "\nminor_version=2\nbuild_version=" + build +
               "\nicon_overlay_version=3\n";
    };
    using Path = const std::string&;
    const auto odd = [](Path path) {
        fs::remove_all(path);
        ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
    };
    const auto link = [this](Path path) {
        fs::rename(path, At("moved"));
        fs::create_symlink(At("moved"), path);
    };
    const auto write = [](const std::string& text) { return [text](Path path) { Write(path, text); }; };
    const auto mode = [](unsigned bits) { return [bits](Path path) { fs::permissions(path, fs::perms(bits)); }; };
    const auto remove = [](Path path) { fs::remove(path); };
    const std::string desktop = "[Desktop Entry]\nType=Application\nName=X\nExec=";
    const std::string launcher = "/opt/X.app/Contents/MacOS/kelvane-quay-launcher";
    const std::string binaryList(
        "bplist00\xd1\1\2_\x10\x12"
        "CFBundleExecutable_\x10\x15"
        "kelvane-quay-launcher\x08\x0b \0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3"
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x38",
        91);
    const struct {
        Codes codes;
        const char* path;  // below the bundle's Contents
        std::function<void(Path)> sow;
    } seeds[] = {
        {{"KQ601"}, "Resources/INFO", remove},
        {{"KQ602"}, "Resources/package/tessaly.kpk", remove},
        {{"KQ603"}, "Resources/INFO", write(info("8", "1"))},
        {{"KQ604"}, "MacOS/kelvane-quay-launcher", remove},
        {{"KQ605"}, "MacOS/kelvane-quay-launcher", mode(0644)},
        {{"KQ606"}, "Resources/images/ico_72_tessaly.png", write("\x89PNG\r\n\x1a\n")},
        {{"KQ606"}, "Resources/images/ico_72_tessaly.png", remove},
        {{"KQ607"}, "Resources/log/launcher.debug", write("service_debug 7\n")},
        {{"KQ608"}, "Info.plist", remove},
        {{"KQ609"}, "Info.plist", [](Path path) { fs::resize_file(path, 700); }},
        {{}, "Info.plist", write(binaryList)},
        {{"KQ610"}, "Resources/kelvane-quay.desktop", write(desktop + "another\n")},
        {{}, "Resources/kelvane-quay.desktop", write(desktop + launcher + " %U\n")},
        {{}, "Resources/kelvane-quay.desktop", remove},
        {{"KQ611"}, "Resources/INFO", write(info("7", "2"))},
        {{"KQ612", "KQ603"}, "Resources/INFO", write(info("x7", "1"))},
        {{"KQ613"}, "._Resources", write("")},
        {{"KQ614"}, "..", mode(0700)},
        {{"KQ614"}, "Resources", mode(0777)},
        {{"KQ614"}, "Resources/INFO", mode(0600)},
        {{"KQ614"}, "MacOS/kelvane-quay-launcher", mode(0744)},
        {{"KQ614"}, "MacOS/kelvane-quay-launcher", mode(04755)},
        {{"KQ615"}, "Resources/INFO", odd},
        {{"KQ615"}, "Resources/INFO", link},
        {{"KQ615"}, "Resources/package/tessaly.kpk", odd},
        {{"KQ615"}, "Resources/package/tessaly.kpk", link},
        {{"KQ615"}, "Resources/package", link},
        {{"KQ615"}, "MacOS/kelvane-quay-launcher", odd},
        {{"KQ615"}, "MacOS/kelvane-quay-launcher", link},
        {{"KQ615"}, "Resources/images/ico_72_tessaly.png", odd},
        {{"KQ615"}, "Info.plist", odd},
        {{"KQ615"},
         "Resources/log/launcher.debug",
         [odd](Path path) { fs::create_directory(fs::path(path).parent_path()), odd(path); }},
        {{"KQ615"}, "Resources/kelvane-quay.desktop", odd},
        {{"KQ615"}, "Resources/somewhere", odd},
        {{}, "Resources/somewhere", write("what else a bundle carries")},
        {{"KQ616"}, "MacOS/kelvane-quay-launcher", [](Path path) { fs::resize_file(path, fs::file_size(path) - 1); }},
        {{"KQ616"}, "MacOS/kelvane-quay-launcher", write("no program")},
    };
    MakeBundle(MakePackage(MakeClient()));
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
    for (const Defect* defect : defects::kAll) {
        EXPECT_EQ(sown.count(IdOf(*defect)),
                  (defect->code > 600 && defect->code < 800 && defect->code != 704) ? 1U : 0U)
            << IdOf(*defect);
    }
}

// Says of a client for one platform in a bundle for another what is wrong.
TEST_F(BundleTest, LauncherAndClientAreForOnePlatform) {
    const std::string client = MakeClient();
    std::string mach("\xcf\xfa\xed\xfe\7\0\0\1\3\0\0\0\2\0\0\0\1\0\0\0\x08\0\0\0\0\0\0\0\0\0\0\0\x02\0\0\0\x08\0\0\0",
                     40);
    Write(client + "/Contents/MacOS/cloud-quay-ui", mach);
    Write(client + "/Contents/Info.plist",
          "<plist><dict><key>CFBundleExecutable</key><string>cloud-quay-ui</string></dict></plist>");
    EXPECT_EQ(CodesOf(RunJson(
                  {"bundle", "--launcher", KQ_LAUNCHER, "--package", MakePackage(client), "-o", At("bundle")}, 1)),
              Codes{"KQ616"});
}

// What is found can be accepted, and is listed then; what is wrong beyond doubt can't.
TEST_F(BundleTest, AcceptsWhatItIsToldTo) {
    const std::string client = MakeClient();
    fs::create_symlink("nowhere", client + "/Contents/l");
    const std::string accept = "KQ404=Contents/l";
    EXPECT_EQ(Run({"pack", client, "-o", At("p.kpk"), "--build", "7"}).exitCode, 1);
    EXPECT_EQ(Run({"--accept", accept, "pack", "--build", "7", "-o", At("p.kpk"), client}).exitCode, 0);
    EXPECT_EQ(Check(At("p.kpk")), Codes{"KQ404"});
    const QJsonObject checked = RunJson({"check", At("p.kpk"), "--accept", accept}, 0);
    EXPECT_EQ(CodesOf({{QStringLiteral("findings"), checked.value(QStringLiteral("accepted"))}}), Codes{"KQ404"});
    EXPECT_EQ(checked.value(QStringLiteral("rehearsal")).toString(), QStringLiteral("done"));
    EXPECT_EQ(Run({"check", At("p.kpk"), "--accept", "KQ503"}).exitCode, 2);
}

// A volume without modes and links shows in the rehearsal that what is installed there is not what was packed.
TEST_F(BundleTest, TheRehearsalSeesWhatTheVolumeDoesNotKeep) {
    const std::string client = MakeClient();
    fs::remove(client + "/Contents/Resources/current");
    const std::string package = MakePackage(client);
    Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    environment_["TMPDIR"] = At("volume");
    EXPECT_EQ(Check(package), Codes{"KQ704"});
}

// On a terminal the long steps show how far they are, and nothing of it stays.
TEST_F(BundleTest, ShowsProgressOnATerminalOnly) {
    const std::string package = MakePackage(MakeClient());
    const std::string terminal = "/usr/bin/script";
    if (!fs::exists(terminal)) {
        GTEST_SKIP() << "no terminal: there is no " << terminal;
    }
    const Outcome outcome = RunProcess({terminal, "-qec", tool_ + " check " + package, "/dev/null"}, environment_);
    const std::size_t full = outcome.output.find("] 100%\r\033[K");
    EXPECT_NE(full, std::string::npos) << outcome.output;
    EXPECT_GT(outcome.output.find(": good"), full);
    EXPECT_EQ(Run({"check", package}).errors, "");
}

TEST_F(BundleTest, TheDocumentHasEveryCode) {
    const std::string table = Run({"check", "--codes"}).output;
    EXPECT_NE(Read(std::string(KQ_DOCS) + "/findings.md").find(table), std::string::npos);
}
