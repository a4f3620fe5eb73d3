#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QSignalSpy>
#include <filesystem>

#include "notify-adapter.h"
#include "package.h"
#include "resources/str-table.h"
#include "test-folder.h"

namespace fs = std::filesystem;

namespace {

class ExtractorTest : public FolderTest {
protected:
    ExtractorTest() {
        StrTable::InitStrTable();
        fs::create_directories(At("out"));
        extractor_.sourcePath = At("package");
        extractor_.destPath = At("out");
    }

    // The message of the only line on standard error while an operation runs.
    template <typename Action>
    std::string MessageOf(Action action) {
        const std::string text = StandardErrorOf(action);
        const std::size_t start = text.find("): ");
        return start == std::string::npos ? text : text.substr(start + 3);
    }

    Extractor extractor_;
};

TEST_F(ExtractorTest, ReportsEveryEntryInOrderAndKeepsModesAndLinks) {
    const mode_t umaskBefore = umask(027);
    WritePackage(At("package"),
                 {{"a/", "", S_IFDIR, 0755},
                  {"a/file", "one", S_IFREG, 0755},
                  {"a/link", "../outside", S_IFLNK, 0777},
                  {"/absolute", "lands below", S_IFREG, 0666},
                  {"a/file", "two", S_IFREG, 0600}},
                 "pax");
    Write(At("out/a/file"), "was there before");
    QSignalSpy progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    QSignalSpy texts(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText);
    EXPECT_EQ(extractor_.Extract(), 0);
    umask(umaskBefore);

    ASSERT_EQ(progress.size(), 5);
    for (int at = 0; at < 5; ++at) {
        EXPECT_EQ(progress[at], (QList<QVariant>{5, at + 1}));
    }
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts[0][0].toString(), QStringLiteral("Kelvane Quay Client is initializing..."));
    const Tree expected = {{"a", "750 folder"},
                           {"a/file", "600 file two"},
                           {"a/link", "777 link ../outside"},
                           {"absolute", "640 file lands below"}};
    EXPECT_EQ(ReadTree(At("out")), expected);
}

TEST_F(ExtractorTest, RefusesWhatIsNoWholePackage) {
    const std::string failed = "Failed to calculate total file numbers, ret: ";
    const std::string unopened = "archive_read_open_filename failed: 'Failed to open '" + At("package") + "''\n";
    std::string errors = StandardErrorOf([&] { EXPECT_EQ(extractor_.Extract(), -1); });
    EXPECT_NE(errors.find(unopened), std::string::npos) << errors;
    EXPECT_NE(errors.find(failed + "-1\n"), std::string::npos) << errors;

    // An archive without entries has its text sent, and fails at the count.
    WritePackage(At("package"), {}, "zip");
    QSignalSpy texts(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText);
    EXPECT_EQ(MessageOf([&] { EXPECT_EQ(extractor_.Extract(), -1); }), failed + "0\n");
    EXPECT_EQ(texts.size(), 1);

    // Damaged behind its second header: those two count, are written and are reported.
    WritePackage(At("package"), {{"one", std::string(2000, '1')}, {"two", "2"}, {"three", "3"}}, "ustar");
    std::string bytes = Read(At("package"));
    bytes[512 + 2048 + 1024 + 150] = '!';
    Write(At("package"), bytes);
    EXPECT_EQ(extractor_.Count(), 2);
    QSignalSpy progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    EXPECT_EQ(MessageOf([&] { EXPECT_EQ(extractor_.Extract(), -1); }).find("archive_read_next_header failed: '"), 0U);
    EXPECT_EQ(progress.size(), 2);
    EXPECT_EQ(progress.back(), (QList<QVariant>{2, 2}));
    EXPECT_EQ(ReadTree(At("out")).size(), 2U);
}

TEST_F(ExtractorTest, EmptyPaths) {
    WritePackage(At("package"), {{"one", "1"}, {"folder/two", "2"}});
    extractor_.destPath.clear();
    EXPECT_EQ(MessageOf([&] { EXPECT_EQ(extractor_.Extract(), -1); }), "Invalid Argument\n");
    EXPECT_EQ(MessageOf([&] { EXPECT_EQ(extractor_.Count(), -1); }), "Invalid argument\n");
    // A listing says so too, and then lists.
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(MessageOf([&] { EXPECT_EQ(extractor_.List(), 0); }), "Invalid argument\n");
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "one\nfolder/two\n");

    extractor_.sourcePath.clear();
    StandardErrorOf([&] {
        EXPECT_EQ(extractor_.Extract(), -1);
        EXPECT_EQ(extractor_.Count(), -1);
    });
    extractor_.sourcePath = At("absent");
    extractor_.destPath = At("out");
    StandardErrorOf([&] { EXPECT_EQ(extractor_.List(), -1); });
}

TEST_F(ExtractorTest, CopiesTheDataOfASparseEntry) {
    WritePackage(At("package"), {{"file", std::string(100000, 's')}}, "pax");
    EXPECT_EQ(MessageOf([&] { EXPECT_EQ(extractor_.copy_data(nullptr, nullptr), -1); }), "Invalid Argument\n");

    archive* reader = archive_read_new();
    archive_read_support_format_all(reader);
    archive_read_open_filename(reader, At("package").c_str(), 10240);
    archive* writer = archive_write_disk_new();
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(reader, &entry), ARCHIVE_OK);
    archive_entry_set_pathname(entry, At("out/copy").c_str());
    ASSERT_EQ(archive_write_header(writer, entry), ARCHIVE_OK);
    EXPECT_EQ(extractor_.copy_data(reader, writer), 0);
    archive_write_free(writer);
    archive_read_free(reader);
    EXPECT_EQ(Read(At("out/copy")), std::string(100000, 's'));
}

}  // namespace
