#include "platform/application-registry.h"
#include "platform/file-reference.h"
#include "platform/linux/desktop-entry.h"
#include "platform/linux/name-spelling.h"
#include "test-folder.h"
#include "volume.h"

using platform::Leaf;
using platform::Likeness;

namespace {

class LinuxTest : public FolderTest {
protected:
    static std::string Spelled(const std::string& path, Leaf leaf) {
        std::string spelled;
        return platform::SpelledPath(path, leaf, spelled) == 0 ? spelled : "";
    }

    // The same as the standard library has it: links are resolved, but for a name at the end that is to be kept.
    static std::string Canonical(const fs::path& path, Leaf leaf) {
        const std::string name = path.filename();
        const bool isWhole = leaf == Leaf::Follow || name.empty() || name[0] == '.';
        std::error_code error;
        const fs::path resolved =
            isWhole ? fs::canonical(path, error) : fs::canonical(fs::absolute(path).parent_path(), error) / name;
        return !error && fs::exists(fs::symlink_status(resolved, error)) ? resolved.string() : "";
    }
};

TEST_F(LinuxTest, AnOrdinaryFolderTellsAllSpellingsApart) {
    fs::current_path(folder());
    for (const char* name : {"dir/file", "FILE", "file", "\u00E9", "e\u0301", "caf\xE9 \xFF"}) {
        Write(name, "");
    }
    fs::create_hard_link("FILE", "File");
    fs::create_symlink("dir", "to-dir");
    fs::create_symlink("dir/file", "to-file");
    fs::create_symlink("loop", "loop");
    const std::string parts[] = {"",       "dir",     "to-dir", "to-file",      "loop", "FILE", "File", "fILE",
                                 "\u00E9", "e\u0301", "absent", "caf\xE9 \xFF", ".",    "..",   "/",    "..//dir/"};
    for (const std::string& one : parts) {
        for (const std::string& two : parts) {
            for (const std::string& path : {one, one + "/" + two, At(one) + "/" + two}) {
                for (const Leaf leaf : {Leaf::Keep, Leaf::Follow}) {
                    EXPECT_EQ(Canonical(path, leaf), Spelled(path, leaf)) << path;
                }
            }
        }
    }
}

// However a path's letters are changed, the spelling is that of what was made.
TEST_F(LinuxTest, VolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    // Words, each behind it in other letters; two forms are two names there.
    const char* const words[] = {"ReadMe.txt", "rEADmE.TXT",         "\u00C5t",           "\u00E5T", "A\u030At",
                                 "a\u030AT",   "\u041F\u0440\u0438", "\u043F\u0440\u0438"};
    std::mt19937 random(5);
    for (int round = 0; round < 100; ++round) {
        std::string made = At("volume");
        std::string asked = made;
        for (auto depth = random() % 3 + 1; depth > 0; --depth) {
            const auto at = random() % std::size(words) / 2 * 2;
            made += std::string("/") + words[at];
            asked += std::string(random() % 4 == 0 ? "/./" : "/") + words[at + random() % 2];
        }
        fs::create_directories(made);
        EXPECT_EQ(made, Spelled(asked, Leaf::Keep)) << asked;
        EXPECT_EQ(made, Spelled(asked + "/", Leaf::Follow)) << asked;
    }
}

TEST(NameSpelling, OtherSpellingsAndTheirLikeness) {
    std::string spellings;
    for (const char* name : {"2024-11 @[`{", "ReadMe.txt", "x\u00E9", "e\u0301", "\u00DF\u0131\u017F\u0416\u0436",
                             "\u00E9", "\U00010428", "a\xFF\u00E9"}) {
        for (const std::string& other : platform::OtherSpellings(name)) {
            spellings += other + ",";
        }
        spellings += " ";
    }
    // Of the fifth that letter alone whose case goes both ways; the last is not UTF-8.
    EXPECT_EQ(spellings,
              " rEADmE.TXT, X\u00E9,xe\u0301, E\u0301,\u00E9, \u00DF\u0131\u017F\u0436\u0436, \u00C9,e\u0301, "
              "\U00010400, A\xFF\u00E9, ");
    const std::pair<Likeness, std::vector<const char*>> pairs[] = {
        {Likeness::Case, {"File", "fILE", "\u00C5", "\u00E5", "\u03C3", "\u03C2", "k", "\u212A", "\xFFy", "\xFFY"}},
        {Likeness::Form, {"\u00C5", "a\u030A", "stra\u00DFe", "STRASSE", "\u1EA1\u0307", "A\u0307\u0323"}},
        {Likeness::None, {"File", "File1", "@", "`", "\u00E9", "e", "\xE9", "\xC9"}}};
    for (const auto& [likeness, names] : pairs) {
        for (std::size_t at = 0; at < names.size(); ++at) {
            EXPECT_EQ(likeness, platform::CompareNames(names[at], names[at ^ 1])) << names[at];
        }
    }
}

TEST(DesktopEntry, ProgramOfAnExecValue) {
    std::string programs;
    for (const char* value : {"  /a/b --flag %U", "\"/a b/c\" %f", R"("/a \\\\ b/\\"c\\$\\`")", "/with%%percent",
                              "/a\\sb", "\"/a\\tb\\nc\\rd\\xe\"", "\"/unclosed quote", ""}) {
        programs += platform::ProgramOfExec(QString::fromUtf8(value)).toStdString() + "|";
    }
    EXPECT_EQ(programs, "/a/b|/a b/c|/a \\ b/\"c$`|/with%percent|/a|/a\tb\nc\rdxe|/unclosed quote||");
}

TEST_F(LinuxTest, DropsTheEntriesOfTheFolderAndNoOther) {
    qputenv("XDG_DATA_HOME", At("data").c_str());
    qputenv("PATH", At("bin").c_str());
    const auto forget = [&] { return platform::ForgetApplication(QString::fromStdString(At("My Apps/K.app"))); };
    const auto installTool = [&](const std::string& script) {
        Write(At("bin/update-desktop-database"), "#!/bin/sh\n" + script);
        fs::permissions(At("bin/update-desktop-database"), static_cast<fs::perms>(0755));
    };
    installTool("echo \"$1\" >> '" + At("refreshed") + "'\n");
    EXPECT_EQ(forget(), 0) << "nothing is registered, there is not even a folder";
    const std::string head = "[Desktop Entry]\nType=Application\nName=x\n";
    const std::string app = At("My Apps/K.app");
    const std::string ours = head + "Exec=\"" + app + "/Contents/MacOS/cloud-quay-ui\" %U\n";
    const std::map<std::string, std::string> entries = {
        {"drop-1.desktop", ours},
        {"drop-2.desktop", head + "TryExec=" + app + "/bin/x\nExec=x\n"},
        {"drop-3.desktop", head + "Exec=\"" + app + "/../K.app//bin/x\"\n"},
        {"keep-1.desktop", head + "Exec=\"" + app + "2/bin/x\"\n"},
        {"keep-2.desktop", head + "Exec=/usr/bin/open \"" + app + "/bin/x\"\n"},
        {"keep-3.desktop", head + "Exec=x\n[Desktop Action a]\nExec=\"" + app + "/bin/x\"\n"},
        {"keep-4.desktop", head + "TryExec=/usr/bin/x\nIcon=" + app + "/x.png\n#Exec=" + app + "/bin/x\n"},
        {"keep-no-entry.txt", ours}};
    for (const auto& [name, text] : entries) {
        Write(At("data/applications/" + name), text);
    }
    EXPECT_EQ(forget() + forget(), 0);
    for (const auto& [name, text] : entries) {
        EXPECT_EQ(fs::exists(At("data/applications/" + name)), name[0] == 'k') << text;
    }
    EXPECT_EQ(Read(At("refreshed")), At("data/applications") + "\n") << "once, as the second time nothing is dropped";

    // The status is the tool's, and no tool is no failure.
    for (const auto& [script, status] : {std::pair("exit 3\n", 3), {"kill -9 $$\n", -2}, {nullptr, 0}}) {
        script == nullptr ? static_cast<void>(fs::remove_all(At("bin"))) : installTool(script);
        Write(At("data/applications/x.desktop"), ours);
        EXPECT_EQ(forget(), status);
    }
}

}  // namespace
