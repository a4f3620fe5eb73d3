#include "product-layout.h"
#include "quay-test.h"

class BundleTest : public ClientTest {};

TEST_F(BundleTest, LaysWhatIsAskedFor) {
    Write(At("levels"), "service_debug=7\n");
    const std::string line =
        "bundle --launcher LAUNCHER --package @client.kpk --levels @levels --installed-at \"/srv/K Q.app\" -o ";
    fs::create_directory(At("bundle"));  // an empty folder is nobody's
    Succeed(line + "@bundle/");
    const std::pair<const char*, std::string> parts[] = {
        {"Resources/log/launcher.debug", "service_debug=7\n"},
        {"Resources/package/tessaly.kpk", Read(At("client.kpk"))},
        {"Resources/kelvane-quay.desktop", "Exec=\"/srv/K Q.app/Contents/MacOS/"},
        {"Info.plist", "<string>1.2</string>"},
        {"Info.plist", "<string>7</string>"},
    };
    for (const auto& [file, part] : parts) {
        EXPECT_NE(Read(At("bundle/Contents/") + file).find(part), std::string::npos) << file;
    }
    // Something that is no bundle is nobody's to replace.
    Write(At("folder/precious"), "");
    EXPECT_EQ(Find(line + "@folder"), Codes{"error"});
    EXPECT_TRUE(fs::exists(At("folder/precious")));
}

// The skeleton that the build installs becomes a good bundle in its own place.
TEST_F(BundleTest, CompletesTheInstalledSkeleton) {
    const Outcome installed =
        RunProcess({KQ_CMAKE, "--install", KQ_BUILD, "--component", "bundle", "--prefix", folder()}, environment_);
    ASSERT_EQ(installed.exitCode, 0) << installed.output << installed.errors;
    // What a client brings is missing, and nothing else.
    EXPECT_EQ(Find("check @KelvaneQuay.app"), (Codes{"KQ601", "KQ602"}));
    Succeed("bundle --launcher LAUNCHER --package @client.kpk -o @KelvaneQuay.app");
    fs::create_directory(At("tmp"));
    environment_["TMPDIR"] = At("tmp");
    Succeed("check @KelvaneQuay.app");
    EXPECT_TRUE(fs::is_empty(At("tmp")));
}

TEST_F(BundleTest, RefusesBadPartsAndLeavesWhatStoodThere) {
    Write(At("bad"), MachO());
    fs::copy_file(KQ_LAUNCHER, At("client/Contents/MacOS/cloud-quay-ui"), fs::copy_options::overwrite_existing);
    Pack();
    MakeFifo(At("fifo"));
    fs::create_directory(At("bundle"));
    const Tree before = ReadTree(folder());
    const std::pair<const char*, const char*> parts[] = {
        {"KQ616", "--launcher @bad --package @client.kpk"},
        {"KQ606", "--launcher LAUNCHER --package @client.kpk --icon @bad"},
        {"KQ101", "--launcher LAUNCHER --package @bad"},
        {"error", "--launcher @fifo --package @client.kpk"},
        {"error", "--launcher LAUNCHER --package @client.kpk --installed-at relative"},
    };
    for (const auto& [code, line] : parts) {
        EXPECT_EQ(Find(std::string("bundle -o @bundle ") + line).count(code), 1U) << line;
        EXPECT_EQ(ReadTree(folder()), before) << "something was left behind";
    }
}

// Each defect that can be sown in a bundle, several at once.
TEST_F(BundleTest, CheckFindsEverySeed) {
    using Sow = std::function<void(const std::string& path)>;
    const auto remove = [](const std::string& path) { fs::remove(path); };
    const auto cut = [](const std::string& path) { fs::resize_file(path, fs::file_size(path) / 2); };
    const auto write = [](const std::string& text) -> Sow { return [text](auto& path) { Write(path, text); }; };
    const auto mode = [](unsigned bits) -> Sow {
        return [bits](auto& path) { fs::permissions(path, fs::perms(bits)); };
    };
    const auto link = [this](const std::string& path) {
        fs::rename(path, At("moved"));
        fs::create_symlink(At("moved"), path);
    };
    const auto info = [&write](const std::string& major, const std::string& build) {
        return write("[Version]\nmajor_version=" + major + "\nminor_version=2\nbuild_version=" + build +
                     "\nicon_overlay_version=3\n");
    };
    const std::string desktop = "[Desktop Entry]\nType=Application\nName=X\nExec=";
    // What is found, and what is done to what lies in the bundle.
    const std::pair<Lines, std::vector<std::pair<const char*, Sow>>> seeds[] = {
        {{}, {{kDesktopFile, remove}, {"Contents/Resources/somewhere", write("what else a bundle carries")}}},
        {{}, {{kDesktopFile, write(desktop + "/opt/X.app/Contents/MacOS/kelvane-quay-launcher %U\n")}}},
        {{"KQ601", "KQ602", "KQ604", "KQ606", "KQ608", "KQ613", "KQ615"},
         {{kInfoFile, remove},
          {kPackageFile, remove},
          {kLauncherFile, remove},
          {kIconFile, remove},
          {kPropertyListFile, remove},
          {"._Contents", write("")},
          {"Contents/Resources/somewhere", MakeFifo}}},
        {{"KQ603", "KQ605", "KQ606", "KQ607", "KQ609", "KQ610", "KQ614"},
         {{kInfoFile, info("1", "8")},
          {kLauncherFile, mode(0644)},
          {kIconFile, cut},
          {kLevelFile, write("service_debug 7\n")},
          {kPropertyListFile, write("<plist><dict/></plist>")},
          {kDesktopFile, write(desktop + "another\n")},
          {".", mode(0700)}}},
        {{"KQ611", "KQ614", "KQ614"},
         {{kInfoFile, info("2", "7")}, {kLauncherFile, mode(0744)}, {kResourcesFolder, mode(0777)}}},
        {{"KQ603", "KQ612", "KQ615", "KQ616"},
         {{kInfoFile, info("1", "x7")}, {kLauncherFile, cut}, {kLevelFile, MakeFifo}}},
        {{"KQ615", "KQ615", "KQ616"},
         {{kInfoFile, MakeFifo}, {kPackageFile, MakeFifo}, {kLauncherFile, write("no program")}}},
        {{"KQ614", "KQ615"}, {{kInfoFile, mode(0600)}, {"Contents/Resources/package", link}}},
    };
    MakeBundle();
    Codes sown;
    for (const auto& [codes, spoils] : seeds) {
        fs::copy(At("bundle"), At("spoilt"), fs::copy_options::recursive);
        for (const auto& [path, sow] : spoils) {
            sow(At("spoilt/") + path);
        }
        ::Package read;
        VersionInfo versions;
        Findings findings;
        EXPECT_FALSE(CheckBundle(At("spoilt"), kLargestPackage, &read, versions, findings));
        EXPECT_EQ(CodesOf(findings), codes);
        fs::remove_all(At("moved"));
        fs::remove_all(At("spoilt"));
        sown.insert(codes.begin(), codes.end());
    }
    ExpectAll(sown, Defect::BundleInfoMissing, Defect::LauncherNoProgram);
}

TEST_F(BundleTest, ShowsProgressOnATerminalOnly) {
    const std::string command = tool_ + " check " + At("client.kpk");
    const Outcome outcome = RunProcess({"/usr/bin/script", "-qec", command, "/dev/null"}, environment_);
    const std::size_t full = outcome.output.find("] 100%\r\033[K");
    EXPECT_NE(full, std::string::npos) << outcome.output;
    EXPECT_GT(outcome.output.find(": good"), full);
}
