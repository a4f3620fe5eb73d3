#include "platform/file-reference.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "platform/linux/name-spelling.h"
#include "test-folder.h"
#include "volume.h"

namespace fs = std::filesystem;
using platform::Leaf;
using platform::Likeness;

namespace {

class FileReferenceTest : public FolderTest {
protected:
    // The path's spelling below the test's folder, or "errno N".
    std::string Spelled(const std::string& path, Leaf leaf = Leaf::Keep) const {
        std::string spelled = "old";
        const int error = platform::SpelledPath(path, leaf, spelled);
        if (error != 0) {
            EXPECT_EQ("old", spelled) << path;
            return "errno " + std::to_string(error);
        }
        return spelled.rfind(folder() + "/", 0) == 0 ? spelled.substr(folder().size() + 1) : spelled;
    }
};

TEST_F(FileReferenceTest, PathsOfAnOrdinaryFolder) {
    Write(At("dir/file"), "");
    Write(At("both/FILE"), "");
    Write(At("both/file"), "");
    fs::create_hard_link(At("both/FILE"), At("both/File"));
    fs::create_symlink("FILE", At("both/link"));
    fs::create_symlink("file", At("both/LINK"));
    Write(At("both/\u00E9"), "");
    Write(At("both/e\u0301"), "");
    Write(At("dir/caf\xE9 \xFF"), "");
    fs::create_symlink("dir", At("to-dir"));
    fs::create_symlink("dir/file", At("to-file"));
    fs::create_symlink("nowhere", At("dangling"));
    fs::create_symlink("loop", At("loop"));
    const std::string absent = "errno " + std::to_string(ENOENT);
    const struct {
        std::string path;
        std::string kept;
        std::string followed;
    } cases[] = {
        {"dir/file", "dir/file", "dir/file"},
        {"dir", "dir", "dir"},
        {"dir/", "dir", "dir"},
        {"./dir//./file", "dir/file", "dir/file"},
        {"dir/.", "dir", "dir"},
        {"dir/../dir/..", folder(), folder()},
        {"to-dir", "to-dir", "dir"},
        {"to-dir/", "dir", "dir"},
        {"to-dir/file", "dir/file", "dir/file"},
        {"to-dir/../to-file", "to-file", "dir/file"},
        {"dangling", "dangling", absent},
        {"loop", "loop", "errno " + std::to_string(ELOOP)},
        {"absent", absent, absent},
        {"DIR/file", absent, absent},
        {"dir/FILE", absent, absent},
        {"dir/file/", "errno " + std::to_string(ENOTDIR), "errno " + std::to_string(ENOTDIR)},
        {"dir/file/below", "errno " + std::to_string(ENOTDIR), "errno " + std::to_string(ENOTDIR)},
        {"", absent, absent},
        // Two spellings side by side are two names, also where they are one object.
        {"both/FILE", "both/FILE", "both/FILE"},
        {"both/file", "both/file", "both/file"},
        {"both/File", "both/File", "both/File"},
        {"both/link", "both/link", "both/FILE"},
        {"both/LINK", "both/LINK", "both/file"},
        {"both/\u00E9", "both/\u00E9", "both/\u00E9"},
        {"both/e\u0301", "both/e\u0301", "both/e\u0301"},
        {"dir/caf\xE9 \xFF", "dir/caf\xE9 \xFF", "dir/caf\xE9 \xFF"},
    };
    for (const auto& one : cases) {
        const std::string absolute = one.path.empty() ? "" : At(one.path);
        EXPECT_EQ(one.kept, Spelled(absolute)) << one.path;
        EXPECT_EQ(one.followed, Spelled(absolute, Leaf::Follow)) << one.path;
    }
    ASSERT_EQ(0, chdir(folder().c_str()));
    for (const auto& one : cases) {
        EXPECT_EQ(one.kept, Spelled(one.path)) << one.path;
    }
    ASSERT_EQ(0, chdir("/"));
    for (const char* root : {"/", "//", "/.", "/..", "."}) {
        EXPECT_EQ("/", Spelled(root)) << root;
    }
    EXPECT_EQ("/proc", Spelled("/proc"));
}

TEST_F(FileReferenceTest, LongestPath) {
    // By a relative path, one deeper than any absolute path may be.
    ASSERT_EQ(0, chdir(folder().c_str()));
    std::size_t length = folder().size();
    const std::string name(200, 'n');
    while (length + 1 + name.size() <= 4095 - 2) {
        ASSERT_EQ(0, mkdir(name.c_str(), 0777));
        ASSERT_EQ(0, chdir(name.c_str()));
        length += 1 + name.size();
    }
    const std::string fits(4095 - length - 1, 'f');
    ASSERT_EQ(0, mkdir(fits.c_str(), 0777));
    ASSERT_EQ(0, mkdir((fits + "f").c_str(), 0777));
    std::string spelled;
    for (const Leaf leaf : {Leaf::Keep, Leaf::Follow}) {
        EXPECT_EQ(0, platform::SpelledPath(fits, leaf, spelled));
        EXPECT_EQ(4095U, spelled.size());
        EXPECT_EQ("errno " + std::to_string(ENAMETOOLONG), Spelled(fits + "f", leaf));
    }
    ASSERT_EQ(0, chdir("/"));
}

TEST_F(FileReferenceTest, FolderThatCantBeListed) {
    fs::create_directory(At("open"));
    for (const std::string& path : {folder(), At("open")}) {
        fs::permissions(path, fs::perms::all);
    }
    AsOrdinaryUser([&] {
        Write(At("open/blind/file"), "");
        Write(At("open/blind/FILE"), "");
        fs::permissions(At("open/blind"), fs::perms::owner_exec);
        EXPECT_EQ("open/blind/file", Spelled(At("open/blind/file")));
        fs::permissions(At("open/blind"), fs::perms::none);
        EXPECT_EQ("errno " + std::to_string(EACCES), Spelled(At("open/blind/file")));
        EXPECT_EQ("open/blind", Spelled(At("open/blind")));
        fs::permissions(At("open/blind"), fs::perms::owner_all);
    });
}

TEST_F(FileReferenceTest, VolumeThatIgnoresCase) {
    const Volume volume(Volume::ExFat, At("volume"), 8 << 20);
    KQ_NEED(volume);
    Write(At("volume/Folder/ReadMe.txt"), "");
    Write(At("volume/Folder/2"), "");
    Write(At("volume/\u00C9t\u00E9"), "");
    Write(At("volume/\u041F\u0440\u0438\u0432\u0435\u0442"), "");
    Write(At("volume/\u00C5"), "");
    Write(At("volume/A\u030A"), "");
    const struct {
        const char* path;
        const char* spelled;
    } cases[] = {
        {"volume/Folder/ReadMe.txt", "volume/Folder/ReadMe.txt"},
        {"volume/folder/readme.txt", "volume/Folder/ReadMe.txt"},
        {"volume/FOLDER/../FOLDER/README.TXT", "volume/Folder/ReadMe.txt"},
        {"volume/foldeR/", "volume/Folder"},
        {"volume/FOLDER/2", "volume/Folder/2"},
        {"volume/\u00E9T\u00C9", "volume/\u00C9t\u00E9"},
        {"volume/\u043F\u0440\u0438\u0432\u0435\u0442", "volume/\u041F\u0440\u0438\u0432\u0435\u0442"},
        // Two forms are two names there.
        {"volume/\u00E5", "volume/\u00C5"},
        {"volume/a\u030A", "volume/A\u030A"},
        {"VOLUME", "errno 2"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.spelled, Spelled(At(one.path))) << one.path;
        EXPECT_EQ(one.spelled, Spelled(At(one.path), Leaf::Follow)) << one.path;
    }
}

TEST(NameSpellingTest, OtherSpellings) {
    using Names = std::vector<std::string>;
    const struct {
        const char* name;
        Names others;
    } cases[] = {
        {"2024-11 (1)", {}},
        {"ReadMe.txt", {"rEADmE.TXT"}},
        {"@[`{", {}},                       // neighbours of the letters
        {"\u00E9", {"\u00C9", "e\u0301"}},  // no ASCII letter: another changes
        {"e\u0301", {"E\u0301", "\u00E9"}},
        {"x\u00E9", {"X\u00E9", "xe\u0301"}},
        {"\u00DF\u0131\u017F\u0416\u0436", {"\u00DF\u0131\u017F\u0436\u0436"}},  // the first whose case goes both ways
        {"\U00010428", {"\U00010400"}},
        {"\u6F22\u5B57", {}},
        {"a\xFF\u00E9", {"A\xFF\u00E9"}},  // not UTF-8: bytes
        {"\xFF", {}},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.others, platform::OtherSpellings(one.name)) << one.name;
        for (const std::string& other : one.others) {
            EXPECT_NE(Likeness::None, platform::CompareNames(one.name, other)) << one.name;
        }
    }
}

TEST(NameSpellingTest, CompareNames) {
    const struct {
        const char* left;
        const char* right;
        Likeness likeness;
    } cases[] = {
        {"File", "fILE", Likeness::Case},
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
        {"\xE9", "\xC9", Likeness::None},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.likeness, platform::CompareNames(one.left, one.right)) << one.left << " " << one.right;
        EXPECT_EQ(one.likeness, platform::CompareNames(one.right, one.left)) << one.left << " " << one.right;
    }
}

}  // namespace
