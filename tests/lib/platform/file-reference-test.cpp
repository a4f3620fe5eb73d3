#include "platform/file-reference.h"

#include "platform/linux/name-spelling.h"
#include "platform/linux/volume-magic.h"
#include "test-folder.h"
#include "volume.h"

using platform::Leaf;
using platform::Likeness;

namespace {

class FileReferenceTest : public FolderTest {
protected:
    static std::string Spelled(const std::string& path, Leaf leaf) {
        std::string spelled = "old";
        const int error = platform::SpelledPath(path, leaf, spelled);
        EXPECT_TRUE(error == 0 || spelled == "old") << path;
        return error == 0 ? spelled : "errno " + std::to_string(error);
    }

    // The same as the standard library has it: links are resolved, but for a name at the end that is to be kept.
    static std::string Canonical(const fs::path& path, Leaf leaf) {
        const std::string name = path.filename();
        const bool isWhole = leaf == Leaf::Follow || name.empty() || name == "." || name == "..";
        std::error_code error;
        const fs::path parent = path.has_parent_path() ? path.parent_path() : ".";
        const fs::path resolved = isWhole ? fs::canonical(path, error) : fs::canonical(parent, error) / name;
        const bool isThere = !error && fs::symlink_status(resolved, error).type() != fs::file_type::not_found;
        return isThere ? resolved.string() : "errno " + std::to_string(error.value());
    }
};

TEST_F(FileReferenceTest, AnOrdinaryFolderTellsAllSpellingsApart) {
    fs::current_path(folder());
    // Two spellings side by side are two names, also where they are one object.
    for (const char* name : {"dir/file", "FILE", "file", "\u00E9", "e\u0301", "caf\xE9 \xFF"}) {
        Write(name, "");
    }
    fs::create_hard_link("FILE", "File");
    for (const auto& [link, target] :
         {std::pair("to-dir", "dir"), {"to-file", "dir/file"}, {"dangling", "nowhere"}, {"loop", "loop"}}) {
        fs::create_symlink(target, link);
    }
    const std::string parts[] = {"dir",  "to-dir", "to-file", "dangling", "loop",         "FILE",   "file",
                                 "File", "fILE",   "\u00E9",  "e\u0301",  "caf\xE9 \xFF", "absent", ".",
                                 "..",   "DIR",    "/",       "dir/",     "..//dir"};
    for (const std::string& one : parts) {
        for (const std::string& two : parts) {
            for (const std::string& path : {one, one + "/" + two, At(one) + "/" + two}) {
                for (const Leaf leaf : {Leaf::Keep, Leaf::Follow}) {
                    EXPECT_EQ(Canonical(path, leaf), Spelled(path, leaf)) << path;
                }
            }
        }
    }
    EXPECT_EQ("errno 2", Spelled("", Leaf::Keep));
}

// However a path's letters are changed, the spelling is that of what was made.
TEST_F(FileReferenceTest, VolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    // Words, each behind it in other letters; two forms are two names there.
    const char* const words[] = {
        "ReadMe.txt", "rEADmE.TXT", "\u00C9t\u00E9",      "\u00E9T\u00C9",     "2", "2", "\u00C5", "\u00E5",
        "A\u030A",    "a\u030A",    "\u041F\u0440\u0438", "\u043F\u0440\u0438"};
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

TEST(NameSpellingTest, OtherSpellingsAndTheirLikeness) {
    const std::pair<std::string, std::string> spellings[] = {
        {"2024-11 @[`{", ""},
        {"ReadMe.txt", "rEADmE.TXT,"},
        {"x\u00E9", "X\u00E9,xe\u0301,"},
        {"e\u0301", "E\u0301,\u00E9,"},
        {"\u00DF\u0131\u017F\u0416\u0436", "\u00DF\u0131\u017F\u0436\u0436,"},  // the first whose case goes both ways
        {"\u00E9", "\u00C9,e\u0301,"},
        {"\U00010428", "\U00010400,"},
        {"a\xFF\u00E9", "A\xFF\u00E9,"}};  // not UTF-8
    for (const auto& [name, expected] : spellings) {
        std::string others;
        for (const std::string& other : platform::OtherSpellings(name)) {
            others += other + ",";
        }
        EXPECT_EQ(others, expected) << name;
    }
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

TEST(VolumeTypeTest, Magic) {
    std::string names;
    for (const std::uint32_t magic : {0x6969U, 0xFF534D42U, 0xFE534D42U, 0x517BU, 0x4D44U, 0xEF53U, 0U}) {
        names += std::string(platform::NameOfVolumeMagic(magic)) + ",";
    }
    EXPECT_EQ(names, "nfs,smbfs,smbfs,smbfs,msdos,,,");
}

}  // namespace
