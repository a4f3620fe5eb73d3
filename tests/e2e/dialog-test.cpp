// What a person sees, in their language.
#include "launcher-test.h"

namespace {

class DialogTest : public LauncherTest {
protected:
    DialogTest() {
        environment_["QT_PLUGIN_PATH"] = KQ_TEST_PLUGINS;
        environment_["QT_QPA_GENERIC_PLUGINS"] = "dialog-probe";
        environment_["KQ_PROBE_FILE"] = At("probe");
        environment_["QT_FONT_DPI"] = "96";
        Write(At("probe"), "");
    }

    // The lines of the probe, which see dialog-probe.cpp; and those of a dialog that is as it should be.
    std::string Seen() { return Read(At("probe")); }
    static std::string Shown(const std::string& first, const std::string& steps, const std::string& last,
                             const std::string& family = "Arial", const std::string& size = "400x80") {
        const std::string title = "|Kelvane Quay Client|";
        const std::string rest = "|" + family + "|120|" + size + "|0|12288|0|0|72\n";
        return "show" + title + first + "|0" + rest + steps + "hide" + title + last + "|100" + rest;
    }
};

constexpr char kInitializing[] = "Kelvane Quay Client is initializing...";
constexpr char kReady[] = "Kelvane Quay Client is ready.";

TEST_F(DialogTest, SpeaksTheUsersLanguageAtAnyScale) {
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"LANG", "de_DE.UTF-8", "Kelvane Quay Client wird initialisiert ...", "Kelvane Quay Client ist bereit."},
        {"LANG", "th_TH.UTF-8", "Kelvane Quay Client กำลังเริ่มต้น...", "Kelvane Quay Client พร้อมแล้ว"},
        {"LANG", "zh_TW.UTF-8", "Kelvane Quay Client 準備中...", "Kelvane Quay Client 準備完成"},
        {"LANG", "xx_YY.UTF-8", kInitializing, kReady},
        {"LC_ALL", "fr_FR", "Kelvane Quay Client est en cours d'initialisation...", "Kelvane Quay Client est prêt."},
        {"LANGUAGE", "uk:pl:de", "Aplikacja Kelvane Quay Client jest inicjowana...",
         "Aplikacja Kelvane Quay Client jest gotowa."},
        {"QT_FONT_DPI", "144", kInitializing, kReady}};
    int build = 1000;
    for (const auto& [variable, value, initializing, ready] : cases) {
        SCOPED_TRACE(value);
        const Environment before = environment_;
        environment_[variable] = value;
        LayBundle(++build);
        std::vector<PackageEntry> entries = ClientEntries(build);
        entries.erase(entries.begin() + 4, entries.begin() + 7);  // seven, whose percentages have fractions
        WritePackage(Package(), entries);
        fs::remove(At("probe"));
        ExpectLaunched(Launch(), build);
        environment_ = before;
        EXPECT_EQ(Seen(),
                  Shown(initializing, "14\n28\n42\n57\n71\n85\n100\n", ready,
                        value[0] == 't' ? "Microsoft Sans Serif" : "Arial", variable[0] == 'Q' ? "600x120" : "400x80"));
    }
}

TEST_F(DialogTest, ShownOnlyForWorkItSaysNothingOfAFailureAndClosedItChangesNothing) {
    InstallClient(1000);
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Seen(), "");

    LayBundle(2000);
    fs::remove(Package());
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Seen(), Shown(kInitializing, "100\n", kInitializing));

    environment_["KQ_PROBE_KEYS"] = "1";
    LayBundle(2000);
    ExpectLaunched(Launch(), 2000);
    EXPECT_EQ(PrivateTree(), HomeWith(2000));
}

TEST_F(DialogTest, WithoutAScreenTheClientStartsAllTheSame) {
    // The last is as it was: no screen is named at all.
    const std::pair<const char*, const char*> settings[] = {{"DISPLAY", ":4095"},
                                                            {"QT_QPA_PLATFORM", "xcb"},
                                                            {"QT_QPA_PLATFORM", "no-such"},
                                                            {"QT_QPA_PLATFORMTHEME", "gtk3"},
                                                            {"QT_STYLE_OVERRIDE", "gtk2"},
                                                            {"WAYLAND_DISPLAY", "nobody"},
                                                            {"TZ", "UTC"}};
    environment_.erase("QT_QPA_PLATFORM");
    int build = 1000;
    for (const auto& [name, value] : settings) {
        Environment environment = environment_;
        environment[name] = value;
        LayBundle(++build);
        Outcome outcome = RunProcess(Arguments(), environment);
        // Only where Qt's Wayland is installed is there a library below Qt to complain.
        outcome.errors.erase(0, outcome.errors.find("Failed to create wl_display") == 0 ? std::string::npos : 0);
        ExpectLaunched(outcome, build);
    }
}

}  // namespace
