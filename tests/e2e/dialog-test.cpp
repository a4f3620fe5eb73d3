// What a person sees, and hears from a screen reader, in their language.
#include <algorithm>
#include <sstream>

#include "launcher-test.h"

namespace {

class DialogTest : public LauncherTest {
protected:
    DialogTest() {
        environment_["QT_PLUGIN_PATH"] = KQ_TEST_PLUGINS;
        environment_["QT_QPA_GENERIC_PLUGINS"] = "dialog-probe";
        environment_["KQ_PROBE_FILE"] = At("probe");
        environment_["QT_FONT_DPI"] = "96";
    }

    // The lines of the probe, which see dialog-probe.cpp.
    Lines Seen() const {
        Lines lines;
        std::istringstream text(fs::exists(At("probe")) ? Read(At("probe")) : "");
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    // The probe's line for a dialog that is as it should be.
    static std::string Line(const std::string& event, const std::string& label, const std::string& value,
                            const std::string& family = "Arial", const std::string& size = "400x80") {
        const std::string title = "Kelvane Quay Client";
        return event + "|" + title + "|" + label + "|" + value + "|" + family + "|12|" + size + "+0x0|3000|0|0|" +
               title + "|" + label + "|" + value;
    }
};

constexpr char kInitializing[] = "Kelvane Quay Client is initializing...";
constexpr char kReady[] = "Kelvane Quay Client is ready.";

TEST_F(DialogTest, SpeaksTheUsersLanguage) {
    const struct {
        const char* variable;
        const char* value;
        const char* initializing;
        const char* ready;
        const char* family;
    } cases[] = {
        {"LANG", "de_DE.UTF-8", "Kelvane Quay Client wird initialisiert ...", "Kelvane Quay Client ist bereit.",
         "Arial"},
        {"LANG", "th_TH.UTF-8", "Kelvane Quay Client กำลังเริ่มต้น...", "Kelvane Quay Client พร้อมแล้ว",
         "Microsoft Sans Serif"},
        {"LANG", "zh_TW.UTF-8", "Kelvane Quay Client 準備中...", "Kelvane Quay Client 準備完成", "Arial"},
        {"LANG", "C", kInitializing, kReady, "Arial"},
        {"LANG", "xx_YY.UTF-8", kInitializing, kReady, "Arial"},
        {"LC_ALL", "fr_FR", "Kelvane Quay Client est en cours d'initialisation...", "Kelvane Quay Client est prêt.",
         "Arial"},
        {"LANGUAGE", "uk:pl:de", "Aplikacja Kelvane Quay Client jest inicjowana...",
         "Aplikacja Kelvane Quay Client jest gotowa.", "Arial"},
    };
    int build = 1000;
    for (const auto& entry : cases) {
        SCOPED_TRACE(entry.value);
        const Environment before = environment_;
        environment_[entry.variable] = entry.value;
        LayBundle(++build);
        fs::remove(At("probe"));
        ExpectLaunched(Launch(), build);
        environment_ = before;
        const Lines seen = Seen();
        ASSERT_FALSE(seen.empty());
        EXPECT_EQ(seen.front(), Line("show", entry.initializing, "0", entry.family));
        EXPECT_EQ(seen.back(), Line("hide", entry.ready, "100", entry.family));
    }
}

TEST_F(DialogTest, ShowsEachStepAtAnyScale) {
    LayBundle(1000);
    std::vector<PackageEntry> entries = ClientEntries(1000);
    entries.erase(entries.begin() + 4, entries.begin() + 7);
    WritePackage(Package(), entries);
    for (const auto& [dots, size] : std::map<std::string, std::string>{{"96", "400x80"}, {"144", "600x120"}}) {
        environment_["QT_FONT_DPI"] = dots;
        fs::remove_all(home_);
        fs::remove(At("probe"));
        ExpectLaunched(Launch(), 1000);
        EXPECT_EQ(Seen(), (Lines{Line("show", kInitializing, "0", "Arial", size), "14", "28", "42", "57", "71", "85",
                                 "100", Line("hide", kReady, "100", "Arial", size)}));
    }
}

TEST_F(DialogTest, ClosedFromTheKeyboardItChangesNothing) {
    environment_["KQ_PROBE_KEYS"] = "1";
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    ExpectInstalled(1000);
    const Lines seen = Seen();
    EXPECT_EQ(std::count_if(seen.begin(), seen.end(), [](const std::string& line) { return line[0] == 's'; }), 1);
}

TEST_F(DialogTest, IsNotShownWhenNothingIsToDoAndSaysNothingOfAFailure) {
    InstallClient(1000);
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Seen(), Lines());

    LayBundle(2000);
    fs::remove(Package());
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Seen(), (Lines{Line("show", kInitializing, "0"), "100", Line("hide", kInitializing, "100")}));
}

TEST_F(DialogTest, WithoutAScreenTheClientStartsAllTheSame) {
    const std::pair<const char*, const char*> cases[] = {{"KQ_NONE", ""},
                                                         {"DISPLAY", ":4095"},
                                                         {"WAYLAND_DISPLAY", "nobody"},
                                                         {"QT_QPA_PLATFORM", "xcb"},
                                                         {"QT_QPA_PLATFORM", "no-such-platform"},
                                                         {"QT_QPA_PLATFORMTHEME", "gtk3"},
                                                         {"QT_STYLE_OVERRIDE", "gtk2"}};
    environment_.erase("QT_QPA_PLATFORM");
    int build = 1000;
    for (const auto& [variable, value] : cases) {
        SCOPED_TRACE(std::string(variable) + "=" + value);
        const Environment before = environment_;
        environment_[variable] = value;
        LayBundle(++build);
        Outcome outcome = Launch();
        // Only where Qt's Wayland is installed is there a library below Qt to complain.
        if (outcome.errors == "Failed to create wl_display (No such file or directory)\n") {
            outcome.errors.clear();
        }
        ExpectLaunched(outcome, build);
        environment_ = before;
    }
}

}  // namespace
