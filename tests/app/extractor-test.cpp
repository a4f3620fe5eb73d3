// What a package of the launcher's own never shows: odd entries, a damage behind good ones, and what nothing calls.
#include "extractor.h"

#include <archive_entry.h>

#include "package.h"
#include "posix/archive.h"
#include "resources/str-table.h"
#include "test-folder.h"

namespace {

class ExtractorTest : public FolderTest {
protected:
    ExtractorTest() {
        StrTable::InitStrTable();
        fs::create_directories(At("out"));
        extractor_.sourcePath = At("package");
        extractor_.destPath = At("out");
    }

    // The message of the last line on standard error while an operation runs that returns `expected`.
    std::string MessageOf(int (Extractor::*operation)(), int expected) {
        const std::string text = StandardErrorOf([&] { EXPECT_EQ((extractor_.*operation)(), expected); });
        return text.substr(text.rfind("): ") + 3);
    }

    Extractor extractor_;
};

TEST_F(ExtractorTest, WritesEachEntryAsItStandsBelowTheFolder) {
    umask(027);
    WritePackage(At("package"),
                 {{"a/", "", S_IFDIR, 0755},
                  {"a/file", "one", S_IFREG, 0755},
                  {"a/link", "../outside", S_IFLNK, 0777},
                  {"/absolute", "lands below", S_IFREG, 0666},
                  {"a/file", "two", S_IFREG, 0600}},
                 "pax");
    Write(At("out/a/file"), "was there before");
    EXPECT_EQ(extractor_.Extract(), 0);
    EXPECT_EQ(ReadTree(At("out")), (Tree{{"a", "750 folder"},
                                         {"a/file", "600 file two"},
                                         {"a/link", "777 link ../outside"},
                                         {"absolute", "640 file lands below"}}));
}

TEST_F(ExtractorTest, ADamageEndsTheCountAndTheWork) {
    WritePackage(At("package"), {{"one", std::string(2000, '1')}, {"two", "2"}, {"three", "3"}}, "ustar");
    std::string bytes = Read(At("package"));
    bytes[512 + 2048 + 1024 + 150] = '!';  // in the third header
    Write(At("package"), bytes);
    EXPECT_EQ(extractor_.Count(), 2);
    EXPECT_EQ(MessageOf(&Extractor::Extract, -1).find("archive_read_next_header failed: '"), 0U);
    EXPECT_EQ(ReadTree(At("out")).size(), 2U);
}

TEST_F(ExtractorTest, EmptyPaths) {
    WritePackage(At("package"), {{"one", "1"}, {"folder/two", "2"}});
    for (std::string* path : {&extractor_.sourcePath, &extractor_.destPath}) {
        const std::string before = std::exchange(*path, "");
        EXPECT_EQ(MessageOf(&Extractor::Extract, -1), "Invalid Argument\n");
        EXPECT_EQ(MessageOf(&Extractor::Count, -1), "Invalid argument\n");
        *path = before;
    }
    // A listing says so too, and then lists.
    extractor_.destPath.clear();
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(MessageOf(&Extractor::List, 0), "Invalid argument\n");
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "one\nfolder/two\n");
    extractor_.sourcePath = At("absent");
    EXPECT_NE(MessageOf(&Extractor::List, -1), "");
}

TEST_F(ExtractorTest, CopiesTheDataOfAnEntry) {
    EXPECT_NE(StandardErrorOf([&] { EXPECT_EQ(extractor_.copy_data(nullptr, nullptr), -1); }), "");
    WritePackage(At("package"), {{At("copy"), std::string(100000, 's')}}, "pax");
    const ArchiveReader reader(archive_read_new());
    const ArchiveWriter writer(archive_write_disk_new());
    archive_entry* entry = nullptr;
    archive_read_support_format_all(reader.get());
    ASSERT_EQ(archive_read_open_filename(reader.get(), At("package").c_str(), 10240), ARCHIVE_OK);
    ASSERT_EQ(archive_read_next_header(reader.get(), &entry), ARCHIVE_OK);
    ASSERT_EQ(archive_write_header(writer.get(), entry), ARCHIVE_OK);
    EXPECT_EQ(extractor_.copy_data(reader.get(), writer.get()), 0);
    EXPECT_EQ(archive_write_finish_entry(writer.get()), ARCHIVE_OK);
    EXPECT_EQ(Read(At("copy")), std::string(100000, 's'));
}

}  // namespace
