#include "platform/file-reference.h"

#include <sys/stat.h>
#include <unistd.h>

#include <random>

#include "platform/linux/name-spelling.h"
#include "platform/linux/volume-magic.h"
#include "test-folder.h"
#include "volume.h"

using platform::Leaf;
using platform::Likeness;

namespace {

class FileReferenceTest : public FolderTest {
protected:
    // The path's spelling below the test's folder, or "errno N".
    std::string Spelled(const std::string& path, Leaf leaf = Leaf::Keep) const {
        std::string spelled = "old";
        const int error = platform::SpelledPath(path, leaf, spelled);
        EXPECT_TRUE(error == 0 || spelled == "old") << path;
        const bool isBelow = spelled.find(folder() + "/") == 0;
        return error != 0 ? "errno " + std::to_string(error) : spelled.substr(isBelow ? folder().size() + 1 : 0);
    }
};

TEST_F(FileReferenceTest, PathsOfAnOrdinaryFolder) {
    Write(At("dir/file"), "");
    Write(At("dir/caf\xE9 \xFF"), "");
    fs::create_symlink("dir", At("to-dir"));
    fs::create_symlink("dir/file", At("to-file"));
    fs::create_symlink("nowhere", At("dangling"));
    fs::create_symlink("loop", At("loop"));
    // Two spellings side by side are two names, also where they are one object.
    Write(At("both/FILE"), "");
    Write(At("both/file"), "");
    fs::create_hard_link(At("both/FILE"), At("both/File"));
    Write(At("both/\u00E9"), "");
    Write(At("both/e\u0301"), "");
    const std::string absent = "errno " + std::to_string(ENOENT);
    const std::string noFolder = "errno " + std::to_string(ENOTDIR);
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"./dir//./file", "dir/file", "dir/file"},
        {"dir/", "dir", "dir"},
        {"dir/.", "dir", "dir"},
        {"dir/../dir/..", folder(), folder()},
        {"to-dir", "to-dir", "dir"},
        {"to-dir/", "dir", "dir"},
        {"to-dir/../to-file", "to-file", "dir/file"},
        {"dangling", "dangling", absent},
        {"loop", "loop", "errno " + std::to_string(ELOOP)},
        {"dir/FILE", absent, absent},
        {"DIR/file", absent, absent},
        {"dir/file/", noFolder, noFolder},
        {"dir/file/below", noFolder, noFolder},
        {"", absent, absent},
        {"both/FILE", "both/FILE", "both/FILE"},
        {"both/file", "both/file", "both/file"},
        {"both/File", "both/File", "both/File"},
        {"both/\u00E9", "both/\u00E9", "both/\u00E9"},
        {"both/e\u0301", "both/e\u0301", "both/e\u0301"},
        {"dir/caf\xE9 \xFF", "dir/caf\xE9 \xFF", "dir/caf\xE9 \xFF"}};
    ASSERT_EQ(0, chdir(folder().c_str()));
    for (const auto& [path, kept, followed] : cases) {
        EXPECT_EQ(kept, Spelled(path.empty() ? "" : At(path))) << path;
        EXPECT_EQ(followed, Spelled(path.empty() ? "" : At(path), Leaf::Follow)) << path;
        EXPECT_EQ(kept, Spelled(path)) << path;
    }
    // By a relative path, as long as an absolute one may be, and one byte more.
    const std::string name(200, 'n');
    std::size_t length = folder().size();
    for (; length + 1 + name.size() <= 4095 - 2; length += 1 + name.size()) {
        ASSERT_TRUE(fs::create_directory(name) && chdir(name.c_str()) == 0);
    }
    const std::string fits(4095 - length - 1, 'f');
    for (const Leaf leaf : {Leaf::Keep, Leaf::Follow}) {
        fs::create_directory(fits);
        fs::create_directory(fits + "f");
        EXPECT_EQ(4095U - folder().size() - 1, Spelled(fits, leaf).size());
        EXPECT_EQ("errno " + std::to_string(ENAMETOOLONG), Spelled(fits + "f", leaf));
    }
    ASSERT_EQ(0, chdir("/"));
    for (const char* root : {"/", "//", "/..", "."}) {
        EXPECT_EQ("/", Spelled(root)) << root;
    }
    EXPECT_EQ("/proc", Spelled("/proc"));
}

// However a path's letters are changed, the spelling is that of what was made.
TEST_F(FileReferenceTest, VolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    // Words in two cases; two forms are two names there.
    const std::pair<std::string, std::string> words[] = {{"ReadMe.txt", "rEADmE.TXT"},
                                                         {"\u00C9t\u00E9", "\u00E9T\u00C9"},
                                                         {"\u041F\u0440\u0438", "\u043F\u0440\u0438"},
                                                         {"\u00C5", "\u00E5"},
                                                         {"A\u030A", "a\u030A"},
                                                         {"2", "2"}};
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        std::string made = "volume";
        std::string asked = "volume";
        for (auto depth = random() % 3 + 1; depth > 0; --depth) {
            const auto& [word, other] = words[random() % std::size(words)];
            made += "/" + word;
            asked += (random() % 4 == 0 ? "/./" : "/") + (random() % 2 == 0 ? word : other);
        }
        fs::create_directories(At(made));
        EXPECT_EQ(made, Spelled(At(asked))) << asked;
        EXPECT_EQ(made, Spelled(At(asked) + "/", Leaf::Follow)) << asked;
    }
    EXPECT_EQ("errno 2", Spelled(At("VOLUME")));
}

TEST(NameSpellingTest, OtherSpellings) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"2024-11 (1)", {}},
        {"ReadMe.txt", {"rEADmE.TXT"}},
        {"@[`{", {}},  // neighbours of the letters
        {"\u00E9", {"\u00C9", "e\u0301"}},
        {"e\u0301", {"E\u0301", "\u00E9"}},
        {"x\u00E9", {"X\u00E9", "xe\u0301"}},
        {"\u00DF\u0131\u017F\u0416\u0436", {"\u00DF\u0131\u017F\u0436\u0436"}},  // the first whose case goes both ways
        {"\U00010428", {"\U00010400"}},
        {"\u6F22\u5B57", {}},
        {"a\xFF\u00E9", {"A\xFF\u00E9"}},
        {"\xFF", {}}};
    for (const auto& [name, others] : cases) {
        EXPECT_EQ(others, platform::OtherSpellings(name)) << name;
        for (const std::string& other : others) {
            EXPECT_NE(Likeness::None, platform::CompareNames(name, other)) << name;
        }
    }
    const std::tuple<const char*, const char*, Likeness> pairs[] = {{"File", "fILE", Likeness::Case},
                                                                    {"File", "File1", Likeness::None},
                                                                    {"@", "`", Likeness::None},
                                                                    {"\u00C5", "\u00E5", Likeness::Case},
                                                                    {"\u00C5", "a\u030A", Likeness::Form},
                                                                    {"\u1EA1\u0307", "A\u0307\u0323", Likeness::Form},
                                                                    {"stra\u00DFe", "STRASSE", Likeness::Form},
                                                                    {"\u03C3", "\u03C2", Likeness::Case},
                                                                    {"k", "\u212A", Likeness::Case},
                                                                    {"\u00E9", "e", Likeness::None},
                                                                    {"\xFFy", "\xFFY", Likeness::Case},
                                                                    {"\xFF", "\xFE", Likeness::None},
                                                                    {"\xE9", "\xC9", Likeness::None}};
    for (const auto& [left, right, likeness] : pairs) {
        EXPECT_EQ(likeness, platform::CompareNames(left, right)) << left << " " << right;
        EXPECT_EQ(likeness, platform::CompareNames(right, left)) << left << " " << right;
    }
}

TEST(VolumeTypeTest, Magic) {
    const std::pair<std::uint32_t, const char*> cases[] = {
        {0x6969, "nfs"},   {0xFF534D42, "smbfs"}, {0xFE534D42, "smbfs"}, {0x517B, "smbfs"},
        {0x4D44, "msdos"}, {0xEF53, ""},          {0x65735546, ""},      {0, ""}};
    for (const auto& [magic, name] : cases) {
        EXPECT_STREQ(name, platform::NameOfVolumeMagic(magic)) << std::hex << magic;
    }
}

}  // namespace
