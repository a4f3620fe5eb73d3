// What a person sees, and hears from a screen reader, in their language.
#include <filesystem>
#include <fstream>

#include "launcher-test.h"

namespace fs = std::filesystem;

namespace {

class DialogTest : public LauncherTest {
protected:
    DialogTest() {
        environment_["QT_PLUGIN_PATH"] = KQ_TEST_PLUGINS;
        environment_["QT_QPA_GENERIC_PLUGINS"] = "dialog-probe";
        environment_["KQ_PROBE_FILE"] = At("probe");
    }

    // The lines of the probe, which see dialog-probe.cpp.
    std::vector<std::string> Seen() const {
        std::vector<std::string> lines;
        std::ifstream in(At("probe"));
        for (std::string line; std::getline(in, line);) {
            lines.push_back(line);
        }
        return lines;
    }
};

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
        {"LANG", "pt_BR.UTF-8", "O Kelvane Quay Client está sendo inicializado...",
         "O Kelvane Quay Client está pronto.", "Arial"},
        {"LANG", "C", "Kelvane Quay Client is initializing...", "Kelvane Quay Client is ready.", "Arial"},
        {"LANG", "xx_YY.UTF-8", "Kelvane Quay Client is initializing...", "Kelvane Quay Client is ready.", "Arial"},
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

        const std::string title = "Kelvane Quay Client";
        const std::string font = std::string("|") + entry.family + "|12|";
        const auto line = [&](const std::string& event, const std::string& label, const std::string& value) {
            return event + "|" + title + "|" + label + "|" + value + font + title + "|" + label + "|" + value;
        };
        EXPECT_EQ(Seen(),
                  (std::vector<std::string>{line("show", entry.initializing, "0"), line("hide", entry.ready, "100")}));
    }
}

TEST_F(DialogTest, IsNotShownWhenNothingIsToDoAndSaysNothingOfAFailure) {
    InstallClient(1000);
    LayBundle(1000);
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Seen(), std::vector<std::string>());

    LayBundle(2000);
    fs::remove(At("bundle/Contents/Resources/package/tessaly.kpk"));
    ExpectLaunched(Launch(), 1000);
    const std::vector<std::string> seen = Seen();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[1].find("hide|Kelvane Quay Client|Kelvane Quay Client is initializing...|100|"), 0U) << seen[1];
}

TEST_F(DialogTest, WithoutAScreenTheClientStartsAllTheSame) {
    const struct {
        const char* variable;
        const char* value;
        const char* complaint;  // of a library that stays below Qt
    } cases[] = {
        {"KQ_NONE", "", ""},
        {"DISPLAY", ":4095", ""},
        {"WAYLAND_DISPLAY", "nobody", "Failed to create wl_display (No such file or directory)\n"},
        {"QT_QPA_PLATFORM", "xcb", ""},
        {"QT_QPA_PLATFORM", "no-such-platform", ""},
        {"QT_QPA_PLATFORMTHEME", "gtk3", ""},
        {"QT_STYLE_OVERRIDE", "gtk2", ""},
    };
    environment_.erase("QT_QPA_PLATFORM");
    int build = 1000;
    for (const auto& entry : cases) {
        SCOPED_TRACE(std::string(entry.variable) + "=" + entry.value);
        const Environment before = environment_;
        environment_[entry.variable] = entry.value;
        LayBundle(++build);
        Outcome outcome = Launch();
        // Only where Qt's Wayland is installed is there anybody to complain.
        if (outcome.errors == entry.complaint) {
            outcome.errors.clear();
        }
        ExpectLaunched(outcome, build);
        environment_ = before;
    }
}

TEST_F(DialogTest, ClosedFromTheKeyboardItChangesNothing) {
    LayBundle(1000);
    environment_["KQ_PROBE_KEYS"] = "1";
    ExpectLaunched(Launch(), 1000);
    EXPECT_EQ(Below(PrivateTree(), "KelvaneQuay.app"), ClientTree(1000));
    const std::vector<std::string> seen = Seen();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[1].find("hide|"), 0U) << seen[1];
}

}  // namespace
