#include <filesystem>

#include "quay-test.h"

namespace fs = std::filesystem;

class BundleTest : public QuayTest {};

// From a client's folder to an installed client, by the tool and the real launcher alone; then the next version.
TEST_F(BundleTest, InstallsAndUpgradesThroughTheLauncher) {
    for (const int build : {7, 8}) {
        const std::string client = MakeClient("client-" + std::to_string(build), build);
        MakeBundle(MakePackage(client, build));
        ExpectLaunched(Launch(), build);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(build));
    }
}

// Every format that can be written is one that the launcher installs, also where no locale is set.
TEST_F(BundleTest, EveryFormatInstalls) {
    const std::string client = MakeClient();
    environment_.erase("LANG");
    for (const char* format : {"tar.gz", "tar.xz", "tar.zst", "tar"}) {
        SCOPED_TRACE(format);
        EXPECT_EQ(Run({"pack", client, "-o", At("p.kpk"), "--build", "7", "--format", format}).exitCode, 0);
        MakeBundle(At("p.kpk"));
        fs::remove_all(Private(""));
        ExpectLaunched(Launch(), 7);
        EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(7));
    }
}

TEST_F(BundleTest, LaysWhatIsAskedForAndReplacesABundleAsAWhole) {
    const std::string package = MakePackage(MakeClient());
    Write(At("levels"), "service_debug=7\n");
    const std::vector<std::string> arguments = {"bundle",
                                                "--launcher",
                                                KQ_LAUNCHER,
                                                "--package",
                                                package,
                                                "-o",
                                                At("bundle"),
                                                "--levels",
                                                At("levels"),
                                                "--installed-at",
                                                "/srv/Kelvane Quay.app"};
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
    if (fs::exists("/usr/bin/desktop-file-validate")) {
        const Outcome valid =
            RunProcess({"/usr/bin/desktop-file-validate", resources + "/kelvane-quay.desktop"}, environment_);
        EXPECT_EQ(valid.output + valid.errors, "");
    }

    Write(At("bundle/Contents/Resources/stale"), "");
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
    EXPECT_EQ(Codes(RunJson({"check", bundle}, 1)), (std::set<std::string>{"KQ601", "KQ602"}));
    const std::string launcher = bundle + "/Contents/MacOS/kelvane-quay-launcher";
    const std::string package = MakePackage(MakeClient());
    EXPECT_EQ(Run({"bundle", "--launcher", launcher, "--package", package, "-o", bundle}).exitCode, 0);
    EXPECT_EQ(Codes(RunJson({"check", bundle}, 0)), std::set<std::string>());
}

TEST_F(BundleTest, RefusesBadParts) {
    const std::string package = MakePackage(MakeClient());
    Write(At("levels"), "no levels at all\n");
    Write(At("icon"), "no icon");
    Write(At("launcher"), "not executable");
    const struct {
        const char* code;
        std::vector<std::string> arguments;
    } parts[] = {
        {"KQ605", {"--launcher", At("launcher"), "--package", package}},
        {"KQ606", {"--launcher", KQ_LAUNCHER, "--package", package, "--icon", At("icon")}},
        {"KQ607", {"--launcher", KQ_LAUNCHER, "--package", package, "--levels", At("levels")}},
    };
    const std::set<std::string> before = Names(folder());
    for (const auto& part : parts) {
        std::vector<std::string> arguments = {"bundle", "-o", At("bundle")};
        arguments.insert(arguments.end(), part.arguments.begin(), part.arguments.end());
        EXPECT_EQ(Codes(RunJson(arguments, 1)), std::set<std::string>{part.code});
    }
    std::vector<PackageEntry> entries = ClientEntries(7);
    entries.back().content = "[Version]\nbuild_version=seven\n";
    WritePackage(At("odd.kpk"), entries);
    EXPECT_EQ(Codes(RunJson({"bundle", "-o", At("bundle"), "--launcher", KQ_LAUNCHER, "--package", At("odd.kpk")}, 1)),
              std::set<std::string>{"KQ506"});
    fs::remove(At("odd.kpk"));
    EXPECT_EQ(Names(folder()), before) << "something was left behind";
}
